// One table of names and places, read in both directions.
#include "tools/grammar_fields.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include "kz/gram_codec.h"
#include "tools/code_page.h"

namespace kzdic {
namespace {

enum class Form {
  kBit,     // the word says that it is set
  kNumber,  // 0 for none
  kLetter,  // a character, 0 for none
  kParadigm,
  kBase  // name of a stem change, or a number without one
};

struct Entry {
  std::string_view name;
  std::string_view value;  // of a bit
  unsigned word;
  unsigned shift;
  unsigned width;
  Form form;
};

constexpr Entry bit(std::string_view name, std::string_view value, unsigned word, unsigned at) {
  return {name, value, word, at, 1, Form::kBit};
}

// In the order of output. A word alone means its first place here.
constexpr std::array kEntries = {
    bit("gender", "masculine", 1, 0),
    bit("gender", "feminine", 1, 1),
    bit("gender", "neuter", 1, 2),
    bit("number", "singular", 1, 3),
    bit("number", "plural", 1, 4),
    bit("number", "no-plural", 1, 5),
    bit("number", "no-singular", 1, 6),
    bit("animacy", "animate", 1, 7),
    bit("case", "nominative", 1, 16),
    bit("case", "genitive", 1, 17),
    bit("case", "dative", 1, 18),
    bit("case", "accusative", 1, 19),
    bit("case", "instrumental", 1, 20),
    bit("case", "prepositional", 1, 21),
    bit("second-case", "nominative", 2, 0),
    bit("second-case", "genitive", 2, 1),
    bit("second-case", "dative", 2, 2),
    bit("second-case", "accusative", 2, 3),
    bit("second-case", "instrumental", 2, 4),
    bit("second-case", "prepositional", 2, 5),
    bit("third-case", "nominative", 4, 8),
    bit("third-case", "genitive", 4, 9),
    bit("third-case", "dative", 4, 10),
    bit("third-case", "accusative", 4, 11),
    bit("third-case", "instrumental", 4, 12),
    bit("third-case", "prepositional", 4, 13),
    bit("extra-case", "genitive", 6, 14),
    bit("extra-case", "dative", 6, 15),
    bit("extra-case", "accusative", 6, 16),
    bit("extra-case", "instrumental", 6, 17),
    bit("extra-case", "prepositional", 6, 18),
    Entry{"person", "", 5, 16, 2, Form::kNumber},
    bit("tense", "past", 1, 10),
    bit("tense", "present", 1, 13),
    bit("tense", "future", 1, 14),
    bit("mood", "imperative", 1, 12),
    bit("aspect", "perfective", 1, 26),
    bit("aspect", "imperfective", 1, 27),
    bit("aspect", "perfective-mark", 1, 9),
    bit("aspect", "never-perfective", 4, 17),
    bit("transitivity", "transitive", 1, 8),
    bit("transitivity", "intransitive", 4, 18),
    bit("voice", "passive", 4, 20),
    bit("voice", "reflexive", 1, 28),
    bit("voice", "reflexive-mark", 1, 22),
    Entry{"paradigm", "", 3, 8, 16, Form::kParadigm},
    Entry{"paradigm-letter", "", 3, 24, 8, Form::kLetter},
    Entry{"paradigm-base", "", 3, 0, 8, Form::kBase},
    Entry{"small-letter", "", 6, 0, 8, Form::kLetter},
    Entry{"small-number", "", 6, 19, 5, Form::kNumber},
};

constexpr std::string_view kFlag = "flag";
constexpr std::string_view kSemantics = "semantics";
constexpr std::string_view kLatinTag = "latin-tag";
constexpr int kNone = 65535;  // the number of no paradigm
constexpr std::int16_t kStemChanges = 2;

constexpr std::uint32_t mask_of(const Entry& entry) { return (1u << entry.width) - 1; }

// The greatest number of a numeric entry.
constexpr int greatest(const Entry& entry) {
  return entry.form == Form::kParadigm ? kNone - 1 : static_cast<int>(mask_of(entry));
}

// The bits of each word that the table names.
constexpr std::array<std::uint32_t, 7> kNamed = [] {
  std::array<std::uint32_t, 7> bits{};
  for (const Entry& entry : kEntries) bits.at(entry.word) |= mask_of(entry) << entry.shift;
  return bits;
}();

std::string utf8(std::string_view bytes) { return to_utf8(decode(bytes, CodePage::kRussian)); }

// Windows-1251; empty for text that it cannot hold.
std::string bytes_of(std::string_view text) {
  try {
    return encode(from_utf8(text), CodePage::kRussian);
  } catch (const std::runtime_error&) {
    return {};
  }
}

std::uint32_t get(const Grammar& grammar, const Entry& entry) {
  return grammar.gram.word[entry.word] >> entry.shift & mask_of(entry);
}

void set(Grammar& grammar, const Entry& entry, std::uint32_t value) {
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
std::optional<Field> base_field(const Entry& entry, std::uint32_t stored) {
  const auto base = static_cast<std::int8_t>(stored);
  if (base == 0 || base == -1) return std::nullopt;
  const char* name = GetAttrNameStr(kStemChanges, base);
  if (name != nullptr) return Field{std::string(entry.name), name};
  return Field{std::string(entry.name), std::to_string(base), Field::Kind::kNumber};
}

std::optional<Field> field_of(const Entry& entry, const Grammar& grammar) {
  const std::uint32_t stored = get(grammar, entry);
  Field field{std::string(entry.name), std::string(entry.value), Field::Kind::kWord};
  switch (entry.form) {
    case Form::kBit:
      if (stored == 0) return std::nullopt;
      return field;
    case Form::kLetter:
      if (stored == 0) return std::nullopt;
      return Field{field.name, utf8(std::string(1, static_cast<char>(stored)))};
    case Form::kBase: return base_field(entry, stored);
    case Form::kNumber:
    case Form::kParadigm: break;
  }
  if (stored == (entry.form == Form::kParadigm ? kNone : 0)) return std::nullopt;
  return Field{field.name, std::to_string(stored), Field::Kind::kNumber};
}

bool add_value(const Entry& entry, std::string_view value, Grammar& grammar) {
  std::optional<int> stored;
  switch (entry.form) {
    case Form::kBit:
      if (value == entry.value) stored = 1;
      break;
    case Form::kNumber:
    case Form::kParadigm: stored = number_of(value, 0, greatest(entry)); break;
    case Form::kLetter: {
      const std::string bytes = bytes_of(value);
      if (bytes.size() == 1) stored = static_cast<unsigned char>(bytes[0]);
      break;
    }
    case Form::kBase: {
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
  std::string tag = utf8(tag_for(code, alone));
  if (tag.empty()) tag = std::to_string(word) + "/" + std::to_string(at);
  return {std::string(kFlag), tag, Field::Kind::kFlag, static_cast<int>(word),
          static_cast<int>(at)};
}

bool is_flag(unsigned word, unsigned at) {
  return word < 7 && at < 32 && !(kNamed[word] >> at & 1);
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
  return std::any_of(kEntries.begin(), kEntries.end(), [&](const Entry& entry) {
    return entry.name == name && add_value(entry, value, grammar);
  });
}

void append_semantics(const SEMANTICS& semantics, std::vector<Field>& fields) {
  std::array<char, 40> letters{};
  set_semantics(letters.data(), &semantics);
  const std::string text = letters.data();
  for (std::size_t i = 1; i < text.size(); ++i) {
    fields.push_back({std::string(kSemantics), utf8(text.substr(i, 1))});
  }
}

}  // namespace

bool operator==(const Field& a, const Field& b) { return a.name == b.name && a.value == b.value; }

std::string to_string(const Field& field) { return field.name + "=" + field.value; }

std::vector<Field> fields_of(char code, const Grammar& grammar) {
  std::vector<Field> fields;
  for (const Entry& entry : kEntries) {
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
    return std::any_of(kEntries.begin(), kEntries.end(), [&](const Entry& entry) {
      return entry.form == Form::kBit && add_value(entry, text, grammar);
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
  for (const Entry& entry : kEntries) {
    const std::string name(entry.name);
    switch (entry.form) {
      case Form::kBit:
        examples.push_back({{name, std::string(entry.value), Field::Kind::kWord}, ""});
        break;
      case Form::kNumber:
      case Form::kParadigm:
        examples.push_back(
            {{name, "1", Field::Kind::kNumber}, "0.." + std::to_string(greatest(entry))});
        break;
      case Form::kLetter: examples.push_back({{name, "а"}, "LETTER"}); break;
      case Form::kBase:
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

}  // namespace kzdic
