// The table of names and places, read in both directions.
#include "lexicon/grammar/fields.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>

#include "kz/gram_codec.h"
#include "lexicon/grammar/entries.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

constexpr std::string_view kFlag = "flag";
constexpr std::string_view kSemantics = "semantics";
constexpr std::string_view kLatinTag = "latin-tag";
constexpr std::int16_t kStemChanges = 2;

// Windows-1251; empty for text that it cannot hold.
std::string bytes_of(std::string_view text) {
  try {
    return encode(from_utf8(text), CodePage::kRussian);
  } catch (const std::runtime_error&) {
    return {};
  }
}

std::uint32_t get(const Grammar& grammar, const GrammarEntry& entry) {
  return grammar.gram.word[entry.word] >> entry.shift & mask_of(entry);
}

void set(Grammar& grammar, const GrammarEntry& entry, std::uint32_t value) {
  std::uint32_t& word = grammar.gram.word[entry.word];
  word = (word & ~(mask_of(entry) << entry.shift)) | value << entry.shift;
}

std::optional<int> number_of(std::string_view text, int least, int most) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  if (number < least || number > most) return std::nullopt;
  return number;
}

// A stored base: 0 and 255 mean none.
std::optional<Field> base_field(const GrammarEntry& entry, std::uint32_t stored) {
  const auto base = static_cast<std::int8_t>(stored);
  if (base == 0 || base == -1) return std::nullopt;
  const char* name = GetAttrNameStr(kStemChanges, base);
  if (name != nullptr) return Field{std::string(entry.name), name};
  return Field{std::string(entry.name), std::to_string(base), Field::Kind::kNumber};
}

std::optional<Field> field_of(const GrammarEntry& entry, const Grammar& grammar) {
  const std::uint32_t stored = get(grammar, entry);
  Field field{std::string(entry.name), std::string(entry.value), Field::Kind::kWord};
  switch (entry.form) {
    case ValueForm::kBit:
      if (stored == 0) return std::nullopt;
      return field;
    case ValueForm::kLetter:
      if (stored == 0) return std::nullopt;
      return Field{field.name, russian_to_utf8(std::string(1, static_cast<char>(stored)))};
    case ValueForm::kBase: return base_field(entry, stored);
    case ValueForm::kNumber:
    case ValueForm::kParadigm: break;
  }
  if (stored == (entry.form == ValueForm::kParadigm ? kNoParadigm : 0)) return std::nullopt;
  return Field{field.name, std::to_string(stored), Field::Kind::kNumber};
}

bool add_value(const GrammarEntry& entry, std::string_view value, Grammar& grammar) {
  std::optional<int> stored;
  switch (entry.form) {
    case ValueForm::kBit:
      if (value == entry.value) stored = 1;
      break;
    case ValueForm::kNumber:
    case ValueForm::kParadigm: stored = number_of(value, 0, greatest(entry)); break;
    case ValueForm::kLetter: {
      const std::string bytes = bytes_of(value);
      if (bytes.size() == 1) stored = static_cast<unsigned char>(bytes[0]);
      break;
    }
    case ValueForm::kBase: {
      const std::int16_t index = GetAttrNameIndex(kStemChanges, std::string(value).c_str());
      stored = index >= 0 ? index : number_of(value, -128, 127);
      break;
    }
  }
  if (!stored) return false;
  set(grammar, entry, static_cast<std::uint32_t>(*stored) & mask_of(entry));
  return true;
}

Field flag_field(char code, unsigned word, unsigned at) {
  Grammar alone = no_grammar();
  alone.gram.word[word] |= 1u << at;
  std::string tag = russian_to_utf8(tag_for(code, alone));
  if (tag.empty()) tag = std::to_string(word) + "/" + std::to_string(at);
  return {std::string(kFlag), tag, Field::Kind::kFlag, static_cast<int>(word),
          static_cast<int>(at)};
}

// A flag by its place, "4/0", or by its tag.
bool add_flag(char code, std::string_view value, Grammar& grammar) {
  const std::size_t slash = value.find('/');
  if (slash != std::string_view::npos) {
    const auto word = number_of(value.substr(0, slash), 0, 6);
    const auto at = number_of(value.substr(slash + 1), 0, 31);
    if (!word || !at) return false;
    const auto w = static_cast<unsigned>(*word);
    if (!is_flag(w, static_cast<unsigned>(*at))) return false;
    grammar.gram.word[w] |= 1u << *at;
    return true;
  }
  const std::string tag = bytes_of(value);
  if (tag.empty() || tag.size() > 2) return false;
  const Grammar set = read_tags(code, tag);
  for (unsigned word = 0; word < 7; ++word) {
    for (unsigned at = 0; at < 32; ++at) {
      Grammar alone = no_grammar();
      alone.gram.word[word] |= 1u << at;
      if (!is_flag(word, at) || !(set == alone)) continue;
      grammar.gram.word[word] |= 1u << at;
      return true;
    }
  }
  return false;
}

bool add_semantics(std::string_view value, Grammar& grammar) {
  const std::string letter = bytes_of(value);
  SEMANTICS flags{};
  if (letter.size() != 1) return false;
  get_semantics(letter.c_str(), &flags);
  grammar.semantics.word |= flags.word;
  return flags.word != 0;
}

// A Latin letter and perhaps a digit, as the library reads them.
bool add_latin_tag(std::string_view value, Grammar& grammar) {
  const Grammar read = read_tags('N', "&" + std::string(value));
  const std::size_t length = read.latin[0] == 0 ? 0 : read.latin[1] == 0 ? 1 : 2;
  if (length == 0 || length != value.size()) return false;
  grammar.latin = read.latin;
  return true;
}

bool add_named(char code, std::string_view name, std::string_view value, Grammar& grammar) {
  if (name == kFlag) return add_flag(code, value, grammar);
  if (name == kSemantics) return add_semantics(value, grammar);
  if (name == kLatinTag) return add_latin_tag(value, grammar);
  return std::any_of(kGrammarEntries.begin(), kGrammarEntries.end(),
                     [&](const GrammarEntry& entry) {
                       return entry.name == name && add_value(entry, value, grammar);
                     });
}

void append_semantics(const SEMANTICS& semantics, std::vector<Field>& fields) {
  std::array<char, 40> letters{};
  set_semantics(letters.data(), &semantics);
  const std::string text = letters.data();
  for (std::size_t i = 1; i < text.size(); ++i) {
    fields.push_back({std::string(kSemantics), russian_to_utf8(text.substr(i, 1))});
  }
}

}  // namespace

bool operator==(const Field& a, const Field& b) { return a.name == b.name && a.value == b.value; }

std::string to_string(const Field& field) { return field.name + "=" + field.value; }

std::vector<Field> fields_of(char code, const Grammar& grammar) {
  std::vector<Field> fields;
  for (const GrammarEntry& entry : kGrammarEntries) {
    if (const std::optional<Field> field = field_of(entry, grammar)) fields.push_back(*field);
  }
  for (unsigned word = 0; word < 7; ++word) {
    for (unsigned at = 0; at < 32; ++at) {
      if (!is_flag(word, at) || !(grammar.gram.word[word] >> at & 1)) continue;
      fields.push_back(flag_field(code, word, at));
    }
  }
  if (grammar.latin[0] != 0) {
    const std::size_t length = grammar.latin[1] == 0 ? 1 : 2;
    const std::string value(grammar.latin.data(), length);
    fields.push_back({std::string(kLatinTag), value});
  }
  append_semantics(grammar.semantics, fields);
  return fields;
}

bool add_field(char code, std::string_view text, Grammar& grammar) {
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos) {
    return std::any_of(kGrammarEntries.begin(), kGrammarEntries.end(),
                       [&](const GrammarEntry& entry) {
                         return entry.form == ValueForm::kBit && add_value(entry, text, grammar);
                       });
  }
  const std::string_view name = text.substr(0, equals);
  for (std::size_t begin = equals + 1; begin <= text.size();) {
    const std::size_t end = std::min(text.find(',', begin), text.size());
    if (!add_named(code, name, text.substr(begin, end - begin), grammar)) return false;
    begin = end + 1;
  }
  return true;
}

std::vector<Example> known_fields(char code) {
  std::vector<Example> examples;
  for (const GrammarEntry& entry : kGrammarEntries) {
    const std::string name(entry.name);
    switch (entry.form) {
      case ValueForm::kBit:
        examples.push_back({{name, std::string(entry.value), Field::Kind::kWord}, ""});
        break;
      case ValueForm::kNumber:
      case ValueForm::kParadigm:
        examples.push_back(
            {{name, "1", Field::Kind::kNumber}, "0.." + std::to_string(greatest(entry))});
        break;
      case ValueForm::kLetter: examples.push_back({{name, "а"}, "LETTER"}); break;
      case ValueForm::kBase:
        examples.push_back({{name, GetAttrNameStr(kStemChanges, 1)}, "NAME"});
        break;
    }
  }
  for (unsigned word = 0; word < 7; ++word) {
    for (unsigned at = 0; at < 32; ++at) {
      if (is_flag(word, at)) examples.push_back({flag_field(code, word, at), ""});
    }
  }
  examples.push_back({{std::string(kLatinTag), "X"}, "LETTER"});
  std::vector<Field> semantics;
  append_semantics({0xFFFFFFFFu}, semantics);
  for (const Field& field : semantics) examples.push_back({field, ""});
  return examples;
}

}  // namespace kz::lexicon
