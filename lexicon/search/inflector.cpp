// Endings of words, and the records of their classes in words.
#include "kzlexicon/inflector.h"

#include <array>
#include <cstring>
#include <sstream>
#include <utility>

#include "kz/gram_attr.h"
#include "kz/gram_codec.h"
#include "kz/gram_record.h"
#include "kzlexicon/entry.h"
#include "lexicon/grammar/fields.h"
#include "lexicon/search/inflect_table.h"
#include "lexicon/search/inflector_table.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

// "word" for a code without a name.
std::string name_of_part(char code) {
  const std::string name = part_name(russian_to_utf8(std::string_view(&code, 1)));
  return name.empty() ? "word" : name;
}

std::string name_of_attribute(std::int16_t kind, std::uint32_t index) {
  if (index == 0) return {};
  const char* name = GetAttrNameStr(kind, static_cast<std::int16_t>(index));
  return name != nullptr ? name : "?";
}

std::string character(std::uint32_t byte) {
  const char c = static_cast<char>(byte);
  return c == 0 ? std::string() : russian_to_utf8(std::string_view(&c, 1));
}

InflectionReading reading_of(const std::uint32_t (&record)[2]) {
  InflectionReading reading;
  reading.word_class = name_of_attribute(0, record[0] & 0xFF);
  reading.addition = name_of_attribute(1, record[0] >> 8 & 0x3F);
  reading.stem_change = name_of_attribute(2, record[0] >> 16 & 0xFF);
  reading.paradigm = static_cast<int>(record[1] & 0xFFFF);
  reading.letter = character(record[1] >> 16 & 0xFF);
  Grammar read;
  SetGrSrcAttr(&read.gram, record);
  const char code = static_cast<char>(read.gram.word[2] >> GRAM_CODE_SHIFT);
  reading.grammar.push_back(name_of_part(code));
  // Code and indices are no flags; the paradigm is given as the table has it.
  read.gram.word[2] &= 0xFF;
  read.gram.word[3] = no_grammar().gram.word[3];
  for (const Field& field : fields_of(code, read)) {
    if (field.kind == Field::Kind::kWord) reading.grammar.push_back(field.value);
    if (field.kind == Field::Kind::kNumber) {
      reading.grammar.push_back(field.name + ' ' + field.value);
    }
  }
  return reading;
}

// The word as the table has it; empty for one that cannot be a Russian word. Throws BadUtf8.
std::string table_word(std::string_view word) {
  try {
    const std::string bytes = encode_utf8(word, CodePage::kRussian);
    return bytes.find('\0') == std::string::npos ? lower_case(bytes, "RU") : std::string();
  } catch (const Unmappable&) {
    return {};
  }
}

// As the text of the table has it, with single blanks.
std::string attributes_of(CGrSrcWordFlex& table, const CGrSrcWordObj& entry) {
  std::array<char, GR_SRC_FLEX_STRING_SIZE> text{};
  table.GetStrAttr(&entry, text.data());
  std::istringstream words(text.data());
  std::string result;
  for (std::string word; words >> word;) result += (result.empty() ? "" : " ") + word;
  return russian_to_utf8(result);
}

}  // namespace

Inflector::Inflector(const std::string& path) : table_(std::make_unique<Table>()) {
  table_->table = load_table(path);
}

Inflector::~Inflector() = default;
Inflector::Inflector(Inflector&& other) noexcept = default;
Inflector& Inflector::operator=(Inflector&& other) noexcept = default;

std::vector<Ending> Inflector::endings(std::string_view word) const {
  const std::string bytes = table_word(word);
  const std::lock_guard lock(table_->mutex);
  std::vector<Ending> endings;
  for (const CGrSrcWordObj* const entry : known_endings(*table_->table, bytes)) {
    Ending ending;
    ending.ending = russian_to_utf8(entry->ending);
    ending.rest = russian_to_utf8(bytes.substr(0, bytes.size() - std::strlen(entry->ending)));
    ending.attributes = attributes_of(*table_->table, *entry);
    for (int i = 0; i < entry->count; ++i) {
      ending.readings.push_back(reading_of(entry->attributes[i]));
    }
    endings.push_back(std::move(ending));
  }
  return endings;
}

std::vector<HeadwordForm> Inflector::headwords(std::string_view word) const {
  std::vector<HeadwordForm> forms;
  for (HeadwordCandidate& form : table_->candidates(table_word(word))) {
    forms.push_back({russian_to_utf8(form.headword), form.group, russian_to_utf8(form.ending),
                     std::move(form.word_class)});
  }
  return forms;
}

}  // namespace kz::lexicon
