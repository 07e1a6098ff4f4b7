// Names of compact attributes, and what the classes stand for.
#include <algorithm>
#include <array>
#include <charconv>
#include <iostream>
#include <nlohmann/json.hpp>

#include "kz/gram_attr.h"
#include "kz/gram_codec.h"
#include "lexicon/grammar/grammar_decode.h"
#include "lexicon/text/code_page.h"
#include "tools/grammar_command.h"
#include "tools/grammar_lines.h"
#include "tools/grammar_output.h"
#include "tools/status.h"

namespace kzdic {
namespace {

constexpr std::array<std::string_view, 3> kKinds = {"class", "addition", "change"};

// 0 to 2.
std::int16_t kind_of(const std::string& text) {
  for (std::size_t kind = 0; kind < kKinds.size(); ++kind) {
    if (text == kKinds[kind] || text == std::to_string(kind))
      return static_cast<std::int16_t>(kind);
  }
  throw Failure(Status::kUsage,
                "no kind '" + text + "': the kinds are 0 or class, 1 or addition, 2 or change");
}

std::int16_t count_of(std::int16_t kind) {
  std::int16_t count = 0;
  while (GetAttrNameStr(kind, count) != nullptr) ++count;
  return count;
}

struct Attribute {
  std::int16_t kind = 0;
  std::int16_t index = 0;
  std::string code;  // empty for none
  std::vector<Field> fields;
};

// No names are numbers: digits are an index. -1 for a name that is none.
std::int16_t index_of(std::int16_t kind, const std::string& text) {
  if (text.find_first_not_of("-0123456789") != std::string::npos || text.empty()) {
    return GetAttrNameIndex(kind, text.c_str());
  }
  int index = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), index);
  const int last = count_of(kind) - 1;
  if (error != std::errc() || end != text.data() + text.size() || index < 0 || index > last) {
    throw Failure(Status::kUsage, "no index " + text + ": those of kind " + std::to_string(kind) +
                                      " are 0 to " + std::to_string(last));
  }
  return static_cast<std::int16_t>(index);
}

Attribute attribute_of(std::int16_t kind, std::int16_t index) {
  Attribute attribute{kind, index, "", {}};
  if (kind > 1) return attribute;
  const std::array<std::uint32_t, 2> compact = {
      static_cast<std::uint32_t>(index) << (kind == 0 ? 0 : 8), 0};
  Grammar grammar;
  SetGrSrcAttr(&grammar.gram, compact.data());
  const char code = static_cast<char>(grammar.gram.word[2] >> GRAM_CODE_SHIFT);
  if (code != 0) attribute.code = to_utf8(decode(std::string_view(&code, 1), CodePage::kRussian));
  // Code and indices are told above, and there is no paradigm.
  grammar.gram.word[2] &= 0xFF;
  grammar.gram.word[3] = no_grammar().gram.word[3];
  attribute.fields = fields_of(code, grammar);
  return attribute;
}

void print_attribute(const Attribute& attribute) {
  const auto kind = static_cast<std::size_t>(attribute.kind);
  std::cout << kKinds.at(kind) << ' ' << attribute.index << ' '
            << GetAttrNameStr(attribute.kind, attribute.index) << '\n';
  if (!attribute.code.empty()) print_part_of_speech(attribute.code, std::cout);
  print_fields(attribute.fields, std::cout);
}

void print_object(const Attribute& attribute) {
  nlohmann::ordered_json object = {{"kind", attribute.kind},
                                   {"index", attribute.index},
                                   {"name", GetAttrNameStr(attribute.kind, attribute.index)}};
  if (attribute.kind < 2) {
    object["code"] = attribute.code;
    object["fields"] = fields_json(attribute.fields);
  }
  print_json(object);
}

Status name_one(std::int16_t kind, const std::string& text, bool json, bool line) {
  const std::int16_t index = index_of(kind, text);
  if (index < 0) {
    const std::string message = "not found";
    if (json) {
      print_json({{"kind", kind}, {"query", text}, {"error", message}});
    } else {
      (line ? std::cout : std::cerr) << text << ": " << message << '\n';
    }
    return Status::kNotFound;
  }
  const Attribute attribute = attribute_of(kind, index);
  if (json) {
    print_object(attribute);
  } else {
    print_attribute(attribute);
  }
  return Status::kOk;
}

}  // namespace

Status name_grammar(const GrammarOptions& options) {
  const std::int16_t kind = kind_of(options.kind);
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
