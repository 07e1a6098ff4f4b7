// Tag strings to fields and back, and names of compact attributes.
#include "tools/grammar_command.h"

#include <array>
#include <iostream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "kzlexicon/code_page.h"
#include "kzlexicon/grammar.h"
#include "tools/grammar_output.h"
#include "tools/status.h"
#include "tools/streams.h"

namespace kzdic {
namespace {

using Json = nlohmann::ordered_json;

void decode_one(const std::string& code, const std::string& tags, bool json) {
  const Decoded decoded = decode_tags(code, tags);
  if (json) {
    print_json(decoded_json(decoded));
  } else {
    print_decoded(decoded, std::cout);
  }
}

void encode_one(const std::string& code, const std::vector<std::string>& fields, bool json) {
  const std::string tags = encode_fields(code, fields);
  if (json) {
    print_json(decoded_json(decode_tags(code, tags)));
  } else {
    std::cout << tags << '\n';
  }
}

// What decode --json printed.
void encode_object(const std::string& line, bool json) {
  const Json object = Json::parse(line, nullptr, false);
  if (!object.is_object() || !object.contains("code") || !object["code"].is_string() ||
      !object.contains("fields") || !object["fields"].is_array()) {
    throw Failure(Status::kDamaged, "not an object with code and fields");
  }
  std::vector<std::string> fields;
  for (const Json& field : object["fields"]) {
    if (!field.is_object() || !field.contains("name") || !field["name"].is_string() ||
        !field.contains("value")) {
      throw Failure(Status::kDamaged, "a field without name and value");
    }
    const Json& value = field["value"];
    fields.push_back(field["name"].get<std::string>() + "=" +
                     (value.is_string() ? value.get<std::string>() : value.dump()));
  }
  encode_one(object["code"].get<std::string>(), fields, json);
}

Status finish(Status status) {
  finish_output();
  return status;
}

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

Status decode_grammar(const GrammarOptions& options) {
  if (options.code == "-" && options.texts.empty()) {
    return finish(answer_lines(options.json, [&options](const std::string& line) {
      const auto [code, tags] = first_word(line);
      decode_one(code, tags, options.json);
      return Status::kOk;
    }));
  }
  if (options.texts.size() != 1) throw Failure(Status::kUsage, "one tag string is needed");
  decode_one(options.code, options.texts[0], options.json);
  return finish(Status::kOk);
}

Status encode_grammar(const GrammarOptions& options) {
  if (options.code == "-" && options.texts.empty()) {
    return finish(answer_lines(options.json, [&options](const std::string& line) {
      if (line.starts_with('{')) {
        encode_object(line, options.json);
        return Status::kOk;
      }
      const auto [code, rest] = first_word(line);
      std::istringstream words(rest);
      std::vector<std::string> fields;
      for (std::string field; words >> field;) fields.push_back(field);
      encode_one(code, fields, options.json);
      return Status::kOk;
    }));
  }
  encode_one(options.code, options.texts, options.json);
  return finish(Status::kOk);
}

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
  return finish(status);
}

}  // namespace kzdic
