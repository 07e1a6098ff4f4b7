// Names of compact attributes, and what the classes stand for.
#include <algorithm>
#include <array>
#include <iostream>
#include <nlohmann/json.hpp>
#include <utility>

#include "kzlexicon/code_page.h"
#include "kzlexicon/grammar.h"
#include "tools/grammar_command.h"
#include "tools/grammar_lines.h"
#include "tools/grammar_output.h"
#include "tools/status.h"

namespace kzdic {
namespace {

constexpr std::array<std::string_view, 3> kKinds = {"class", "addition", "change"};

// 0 to 2.
int kind_of(const std::string& text) {
  for (std::size_t kind = 0; kind < kKinds.size(); ++kind) {
    if (text == kKinds[kind] || text == std::to_string(kind)) return static_cast<int>(kind);
  }
  throw Failure(Status::kUsage,
                "no kind '" + text + "': the kinds are 0 or class, 1 or addition, 2 or change");
}

void print_attribute(const AttributeName& attribute) {
  const auto kind = static_cast<std::size_t>(attribute.kind);
  std::cout << kKinds.at(kind) << ' ' << attribute.index << ' ' << attribute.name << '\n';
  if (!attribute.code.empty()) print_part_of_speech(attribute.code, std::cout);
  print_fields(attribute.fields, std::cout);
}

void print_object(const AttributeName& attribute) {
  nlohmann::ordered_json object = {
      {"kind", attribute.kind}, {"index", attribute.index}, {"name", attribute.name}};
  if (attribute.kind < 2) {
    object["code"] = attribute.code;
    object["fields"] = fields_json(attribute.fields);
  }
  print_json(object);
}

// Why a name has no index.
std::pair<Status, std::string> reason_of(const std::string& name) {
  try {
    from_utf8(name);
    return {Status::kNotFound, "not found"};
  } catch (const BadUtf8& bad) {
    return {Status::kDamaged, "byte " + std::to_string(bad.offset + 1) + ' ' + bad.what()};
  }
}

Status name_one(int kind, const std::string& text, bool json, bool line) {
  const AttributeName attribute = find_attribute(kind, text);
  if (attribute.index < 0) {
    const auto [status, message] = reason_of(text);
    if (json) {
      print_json({{"kind", kind}, {"query", text}, {"error", message}});
    } else {
      (line ? std::cout : std::cerr) << text << ": " << message << '\n';
    }
    return status;
  }
  if (json) {
    print_object(attribute);
  } else {
    print_attribute(attribute);
  }
  return Status::kOk;
}

}  // namespace

Status name_grammar(const GrammarOptions& options) {
  const int kind = kind_of(options.kind);
  Status status = Status::kOk;
  for (const std::string& text : options.texts) {
    const Status one = text == "-" ? answer_lines(options.json,
                                                  [&](const std::string& line) {
                                                    return name_one(kind, line, options.json, true);
                                                  })
                                   : name_one(kind, text, options.json, false);
    if (status == Status::kOk) status = one;
  }
  std::cout.flush();
  if (!std::cout) throw Failure(Status::kFile, "cannot write to standard output");
  return status;
}

}  // namespace kzdic
