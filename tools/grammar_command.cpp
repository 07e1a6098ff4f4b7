// Tag strings to fields and back.
#include "tools/grammar_command.h"

#include <iostream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "kzlexicon/grammar.h"
#include "tools/grammar_lines.h"
#include "tools/grammar_output.h"
#include "tools/status.h"

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
  std::cout.flush();
  if (!std::cout) throw Failure(Status::kFile, "cannot write to standard output");
  return status;
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

}  // namespace kzdic
