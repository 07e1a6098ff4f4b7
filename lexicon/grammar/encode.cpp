// Fields to tag strings: written, read back, and completed with what writing left out.
#include <algorithm>
#include <map>
#include <numeric>

#include "kz/gram_codec.h"
#include "kzlexicon/error.h"
#include "lexicon/grammar/fields.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

constexpr int kSmallNumberShift = 19;  // in word 6

std::string part_of_speech(char code) {
  const std::string_view group = tag_group(code);
  std::string text = "part of speech " + russian_to_utf8(std::string(1, code));
  if (!group.empty()) text += " (" + std::string(group) + " tags)";
  return text;
}

std::vector<Field> missing_from(const std::vector<Field>& fields, char code,
                                const std::string& tags) {
  const std::vector<Field> read = fields_of(code, read_tags(code, tags));
  std::vector<Field> missing;
  for (const Field& field : fields) {
    if (std::find(read.begin(), read.end(), field) == read.end()) missing.push_back(field);
  }
  return missing;
}

// Takes a paradigm out whose base the library writes as a negative number, which it does not read;
// the tag has the base as a byte.
std::string take_wide_base(Grammar& grammar) {
  const std::uint32_t paradigm = grammar.gram.word[3];
  const std::uint32_t base = paradigm & 0xFF;
  const std::uint32_t number = paradigm >> GRAM_PARADIGM_NUMBER_SHIFT & 0xFFFF;
  if (base < 128 || number == 65535) return {};
  grammar.gram.word[3] = no_grammar().gram.word[3];
  std::string tag = "#" + std::to_string(number);
  const char letter = static_cast<char>(paradigm >> GRAM_PARADIGM_LETTER_SHIFT);
  if (letter != 0) tag += letter;
  return tag + ":" + std::to_string(base);
}

struct Written {
  std::string tags;
  std::vector<Field> without_tag;  // that the part of speech cannot say
  std::vector<Field> lost;         // that others displace
};

Written write_tags(char code, Grammar grammar) {
  const std::vector<Field> fields = fields_of(code, grammar);
  Written written;
  written.tags = canonical_tags(code, grammar);
  if (missing_from(fields, code, written.tags).empty()) return written;

  const std::string paradigm = take_wide_base(grammar);
  std::string extra;
  // "&" and what belongs to it are last: they would take letters and digits after them along.
  std::string marks;
  // The number of "&" comes first in canonical strings.
  grammar.gram.word[6] &= ~(31u << kSmallNumberShift);
  const std::string canonical = canonical_tags(code, grammar);
  for (const Field& field : missing_from(fields, code, canonical + paradigm)) {
    if (field.name == "latin-tag") {
      marks += "&" + field.value;
      continue;
    }
    Grammar alone = no_grammar();
    add_field(code, to_string(field), alone);
    const std::string tag = tag_for(code, alone);
    (tag.starts_with('&') ? marks : extra) += tag;
    // Letter and base have no tag of their own.
    if (tag.empty() && !field.name.starts_with("paradigm-")) written.without_tag.push_back(field);
  }
  const std::size_t end = std::min(canonical.find_first_of("#%"), canonical.size());
  written.tags = canonical.substr(0, end) + extra + marks + paradigm + canonical.substr(end);
  written.lost = missing_from(fields, code, written.tags);
  return written;
}

// "gender=masculine,feminine" and so on: what the part of speech has tags for, of all fields or of
// one name; empty if that has none.
std::string vocabulary(char code, std::string_view only = {}) {
  std::vector<std::string> names;
  std::map<std::string, std::string> values;
  for (const Example& example : known_fields(code)) {
    if (!only.empty() && example.field.name != only) continue;
    Grammar grammar = no_grammar();
    if (example.field.name.starts_with("paradigm-")) add_field(code, "paradigm=1", grammar);
    add_field(code, to_string(example.field), grammar);
    if (!write_tags(code, grammar).lost.empty()) continue;
    std::string& list = values[example.field.name];
    if (list.empty()) names.push_back(example.field.name);
    const bool placed = !example.placeholder.empty();
    list += (list.empty() ? "=" : ",") + (placed ? example.placeholder : example.field.value);
  }
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? " " : "; ") + name + values[name];
  return text;
}

// How many characters have to be changed, added or taken away.
std::size_t distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (const char c : a) {
    std::size_t diagonal = row[0]++;
    for (std::size_t i = 0; i < b.size(); ++i) {
      const std::size_t changed = diagonal + (c == b[i] ? 0 : 1);
      diagonal = row[i + 1];
      row[i + 1] = std::min({changed, row[i] + 1, diagonal + 1});
    }
  }
  return row.back();
}

[[noreturn]] void refuse_unknown(char code, const std::string& text) {
  const std::size_t equals = text.find('=');
  std::string near;
  for (const Example& example : known_fields(code)) {
    // Only words can be mistyped; numbers, letters and flags cannot.
    if (example.field.kind != Field::Kind::kWord) continue;
    const std::string known =
        equals == std::string::npos ? example.field.value : to_string(example.field);
    if (distance(text, known) > 2 || near.find(known) != std::string::npos) continue;
    near += (near.empty() ? "" : " or ") + known;
  }
  std::string message = "unknown field '" + text + "'";
  if (!near.empty()) throw Error(ErrorCode::kArgument, message + "; did you mean " + near + "?");
  // Of a known name with another value, what the name takes.
  std::string taken;
  if (equals != 0) taken = vocabulary(code, std::string_view(text).substr(0, equals));
  if (taken.empty()) {
    taken = vocabulary(code);
  } else if (equals != std::string::npos) {
    message = "no such value: '" + text + "'";
  }
  throw Error(ErrorCode::kArgument, message + "; " + part_of_speech(code) + " takes" + taken);
}

std::string joined(const std::vector<Field>& fields) {
  std::string text;
  for (const Field& field : fields) text += (text.empty() ? "" : ", ") + to_string(field);
  return text;
}

}  // namespace

std::string encode_fields(std::string_view code, const std::vector<std::string>& fields) {
  const char byte = code_byte(code);
  Grammar grammar = no_grammar();
  for (const std::string& field : fields) {
    if (!add_field(byte, field, grammar)) refuse_unknown(byte, field);
  }
  const Written written = write_tags(byte, grammar);
  if (!written.without_tag.empty()) {
    throw Error(ErrorCode::kArgument,
                part_of_speech(byte) + " has no tag for " + joined(written.without_tag));
  }
  if (!written.lost.empty()) {
    throw Error(ErrorCode::kArgument, "no tag string of " + part_of_speech(byte) +
                                          " says all of it: lost would be " + joined(written.lost));
  }
  return russian_to_utf8(written.tags);
}

}  // namespace kz::lexicon
