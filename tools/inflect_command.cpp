// Endings of words and what the table says of them.
#include "tools/inflect_command.h"

#include <array>
#include <cstring>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string_view>

#include "kz/gram_attr.h"
#include "kz/gram_codec.h"
#include "kz/gram_record.h"
#include "lexicon/grammar/grammar_fields.h"
#include "lexicon/search/inflect_table.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/text/code_page.h"
#include "tools/input_lines.h"
#include "tools/status.h"

namespace kzdic {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::pair<std::string_view, std::string_view> kParts[] = {
    {"N", "noun"},        {"n", "noun"},         {"A", "adjective"},
    {"a", "adjective"},   {"d", "adjective"},    {"V", "verb"},
    {"v", "verb"},        {"G", "participle"},   {"E", "participle"},
    {"д", "gerund"},      {"Я", "predicative"},  {"Ы", "parenthetical word"},
    {"D", "adverb"},      {"I", "numeral"},      {"P", "preposition"},
    {"C", "conjunction"}, {"J", "interjection"}, {"w", "phrase"},
    {"M", "pronoun"},     {"O", "pronoun"},      {"R", "personal pronoun"},
};

std::string part_name(char code) {
  const std::string letter = russian_to_utf8(std::string_view(&code, 1));
  for (const auto& [part, name] : kParts) {
    if (part == letter) return std::string(name);
  }
  return "word";
}

std::string name_of_attribute(std::int16_t kind, std::uint32_t index) {
  if (index == 0) return {};
  const char* name = GetAttrNameStr(kind, static_cast<std::int16_t>(index));
  return name != nullptr ? name : "?";
}

// One attribute record in names and in words.
struct Reading {
  explicit Reading(const std::uint32_t (&record)[2])
      : word_class(name_of_attribute(0, record[0] & 0xFF)),
        addition(name_of_attribute(1, record[0] >> 8 & 0x3F)),
        stem_change(name_of_attribute(2, record[0] >> 16 & 0xFF)),
        paradigm(record[1] & 0xFFFF),
        letter(record[1] >> 16 & 0xFF) {
    Grammar read;
    SetGrSrcAttr(&read.gram, record);
    const char code = static_cast<char>(read.gram.word[2] >> GRAM_CODE_SHIFT);
    grammar.push_back(part_name(code));
    // Code and indices are no flags; the paradigm is told as the table has it.
    read.gram.word[2] &= 0xFF;
    read.gram.word[3] = no_grammar().gram.word[3];
    for (const Field& field : fields_of(code, read)) {
      if (field.kind == Field::Kind::kWord) grammar.push_back(field.value);
      if (field.kind == Field::Kind::kNumber) grammar.push_back(field.name + ' ' + field.value);
    }
  }

  std::string words() const {
    std::string text;
    for (const std::string& word : grammar) text += (text.empty() ? "" : ", ") + word;
    if (paradigm != 0) text += ", paradigm " + std::to_string(paradigm) + letter_text();
    if (!stem_change.empty()) text += ", stem change " + stem_change;
    return text;
  }

  Json json() const {
    return {{"class", word_class},     {"addition", addition},       {"paradigm", paradigm},
            {"letter", letter_text()}, {"stem_change", stem_change}, {"grammar", grammar}};
  }

  std::string letter_text() const {
    const char c = static_cast<char>(letter);
    return c == 0 ? std::string() : russian_to_utf8(std::string_view(&c, 1));
  }

  std::string word_class;
  std::string addition;
  std::string stem_change;
  std::uint32_t paradigm;
  std::uint32_t letter;
  std::vector<std::string> grammar;
};

// The word as the table has it; empty for one that cannot be a Russian word. Throws BadUtf8.
std::string table_word(const std::string& word) {
  try {
    const std::string bytes = encode(from_utf8(word), CodePage::kRussian);
    return bytes.find('\0') == std::string::npos ? lower_case(bytes, "RU") : std::string();
  } catch (const Unmappable&) {
    return {};
  }
}

class Inflection {
 public:
  explicit Inflection(const InflectOptions& options)
      : options_(options), table_(load_table(options.table)) {}

  // Answers one word; `line` tells that it is a line of standard input.
  void answer(const std::string& word, bool line) {
    const std::string bytes = table_word(word);
    std::vector<const CGrSrcWordObj*> endings = known_endings(*table_, bytes);
    if (!options_.all && endings.size() > 1) endings.erase(endings.begin() + 1, endings.end());
    all_known_ = all_known_ && !endings.empty();
    if (options_.json) {
      print_json(word, bytes, endings);
    } else {
      print_text(word, endings, line);
    }
    std::cout.flush();
  }

  // Says why a word cannot be taken apart.
  void refuse(const std::string& word, const std::string& message, bool line) {
    if (options_.json) {
      print({{"word", word}, {"error", message}});
    } else {
      (line ? std::cout : std::cerr << "kzdic: ")
          << word << ": " << message << (line ? "\n\n" : "\n");
    }
    std::cout.flush();
  }

  bool all_known() const { return all_known_; }

 private:
  // As the text of the table has it, with single blanks.
  std::string attributes(const CGrSrcWordObj& entry) {
    std::array<char, GR_SRC_FLEX_STRING_SIZE> text{};
    table_->GetStrAttr(&entry, text.data());
    std::istringstream words(text.data());
    std::string result;
    for (std::string word; words >> word;) result += (result.empty() ? "" : " ") + word;
    return russian_to_utf8(result);
  }

  void print_text(const std::string& word, const std::vector<const CGrSrcWordObj*>& endings,
                  bool line) {
    for (const CGrSrcWordObj* entry : endings) {
      std::cout << word << "  " << attributes(*entry) << '\n';
      for (int i = 0; i < entry->count; ++i) {
        std::cout << "    " << Reading(entry->attributes[i]).words() << '\n';
      }
    }
    if (endings.empty()) (line ? std::cout : std::cerr) << word << ": no known ending\n";
    if (line) std::cout << '\n';
  }

  void print_json(const std::string& word, const std::string& bytes,
                  const std::vector<const CGrSrcWordObj*>& endings) {
    Json answer = {{"word", word}, {"found", !endings.empty()}, {"endings", Json::array()}};
    for (const CGrSrcWordObj* entry : endings) {
      Json records = Json::array();
      for (int i = 0; i < entry->count; ++i) {
        records.push_back(Reading(entry->attributes[i]).json());
      }
      const std::size_t length = std::strlen(entry->ending);
      answer["endings"].push_back(
          {{"ending", russian_to_utf8(entry->ending)},
           {"rest", russian_to_utf8(bytes.substr(0, bytes.size() - length))},
           {"attributes", attributes(*entry)},
           {"records", records}});
    }
    print(answer);
  }

  static void print(const Json& answer) {
    std::cout << answer.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
  }

  const InflectOptions& options_;
  std::unique_ptr<CGrSrcWordFlex> table_;
  bool all_known_ = true;
};

}  // namespace

Status inflect(const InflectOptions& options) {
  if (options.source.empty() && options.words.empty()) {
    throw Failure(Status::kUsage, "no word is given");
  }
  if (!options.source.empty()) build_table(options.source, options.table, &std::cin);
  if (options.words.empty()) return Status::kOk;
  Inflection session(options);
  const Status status =
      for_each_word(options.words,
                    {[&session](const std::string& word, bool line) { session.answer(word, line); },
                     [&session](const std::string& word, const std::string& message, bool line) {
                       session.refuse(word, message, line);
                     }});
  if (status != Status::kOk) return status;
  return session.all_known() ? Status::kOk : Status::kNotFound;
}

}  // namespace kzdic
