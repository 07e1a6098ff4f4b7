// Decoded grammar as text and as JSON.
#include <iomanip>
#include <nlohmann/json.hpp>
#include <ostream>

#include "kzlexicon/entry.h"
#include "tools/grammar_output.h"
#include "tools/status.h"

namespace kzdic {
namespace {

constexpr int kNameWidth = 17;

void print_line(const std::string& name, const std::string& value, std::ostream& out) {
  out << std::left << std::setw(kNameWidth) << name << value << '\n';
}

std::string place_of(const Field& field) {
  return "word " + std::to_string(field.word) + " bit " + std::to_string(field.bit);
}

std::string hex(std::uint32_t word) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text = "0x";
  for (int shift = 28; shift >= 0; shift -= 4) text += kDigits[word >> shift & 15];
  return text;
}

}  // namespace

void print_part_of_speech(const std::string& code, std::ostream& out) {
  std::string text = code;
  const std::string name = part_name(code);
  const std::string_view group = tag_group_of(code);
  if (!name.empty()) text += ", " + name;
  text += group.empty() ? " (common tags only)" : " (" + std::string(group) + " tags)";
  print_line("part-of-speech", text, out);
}

void print_fields(const std::vector<Field>& fields, std::ostream& out) {
  for (std::size_t i = 0; i < fields.size();) {
    const std::string& name = fields[i].name;
    std::string values;
    for (; i < fields.size() && fields[i].name == name; ++i) {
      values += (values.empty() ? "" : ", ") + fields[i].value;
      if (fields[i].kind == Field::Kind::kFlag) values += " (" + place_of(fields[i]) + ")";
    }
    print_line(name, values, out);
  }
}

void print_decoded(const Decoded& decoded, std::ostream& out) {
  print_part_of_speech(decoded.code, out);
  print_fields(decoded.fields, out);
  std::string canonical = decoded.canonical;
  for (const Field& field : decoded.left_out) {
    canonical += (&field == decoded.left_out.data() ? "  (without " : ", ") + to_string(field);
  }
  print_line("canonical", canonical + (decoded.left_out.empty() ? "" : ")"), out);
  if (!decoded.ignored.empty()) print_line("ignored", decoded.ignored, out);
  if (!decoded.unread.empty()) print_line("not read", decoded.unread, out);
}

nlohmann::ordered_json fields_json(const std::vector<Field>& fields) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const Field& field : fields) {
    nlohmann::ordered_json object = {{"name", field.name}, {"value", field.value}};
    if (field.kind == Field::Kind::kNumber) object["value"] = std::stoi(field.value);
    if (field.kind == Field::Kind::kFlag) {
      object["word"] = field.word;
      object["bit"] = field.bit;
    }
    list.push_back(object);
  }
  return list;
}

nlohmann::ordered_json decoded_json(const Decoded& decoded) {
  nlohmann::ordered_json words = nlohmann::ordered_json::array();
  for (const std::uint32_t word : decoded.words) words.push_back(hex(word));
  return {{"code", decoded.code},
          {"tags", decoded.tags},
          {"canonical", decoded.canonical},
          {"fields", fields_json(decoded.fields)},
          {"left_out", fields_json(decoded.left_out)},
          {"ignored", decoded.ignored},
          {"unread", decoded.unread},
          {"words", words},
          {"semantics", hex(decoded.semantics)}};
}

nlohmann::ordered_json grammar_json(const std::vector<WordGrammar>& words) {
  nlohmann::ordered_json object = nlohmann::ordered_json::object();
  for (const WordGrammar& word : words) {
    nlohmann::ordered_json decoded = decoded_json(word.grammar);
    if (word.side == WordGrammar::Side::kSynonym) {
      decoded["synonym"] = word.synonym;
      object["synonyms"].push_back(decoded);
    } else {
      object[word.side == WordGrammar::Side::kSource ? "source" : "target"] = decoded;
    }
  }
  return object;
}

}  // namespace kzdic
