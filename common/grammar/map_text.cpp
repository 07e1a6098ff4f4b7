// Grammar read from a translation's text into the word record; equivalents within a text.
#include <cstring>
#include <string_view>

#include "kz/gram_codec.h"
#include "kz/gram_map.h"
#include "text/case_letters.h"
#include "text/char_classes.h"

namespace kz {
namespace {

const char* read_tags(const char* text, WordRecordView word, std::int16_t code, GRAMINFO& gram,
                      std::uint8_t& read_code) {
  SEMANTICS semantics = word.semantics();
  text = StrToGram(text, reinterpret_cast<char*>(&read_code), &gram, &semantics, code,
                   word.latin_area());
  word.set_semantics(semantics);
  return text;
}

const char* read_foreign(const char* text, WordRecordView word, std::int16_t code) {
  GRAMINFO gram = word.foreign_gram();
  text = read_tags(text, word, code, gram, word.foreign_code());
  word.set_foreign_gram(gram);
  return text;
}

const char* read_russian(const char* text, WordRecordView word, std::int16_t code) {
  GRAMINFO gram = word.russian_gram();
  text = read_tags(text, word, code, gram, word.russian_code());
  word.set_russian_gram(gram);
  return text;
}

const char* behind(char c, const char* text) { return *text == c ? text + 1 : text; }

// Reads case letters, each of which takes the place of the one before. The nominative is no case
// that a preposition asks for: it leaves the field empty.
const char* read_case(const char* text, WordRecordView word) {
  for (;; ++text) {
    const unsigned one = case_of(*text);
    if (one == 0) return text;
    word.cases() = static_cast<std::uint8_t>(one & ~unsigned{GRAM_NOMINATIVE});
  }
}

}  // namespace
}  // namespace kz

const char* er_get_wgram(std::int16_t mode, const char* text, std::uint8_t* record,
                         std::int16_t code) {
  if (text == nullptr || record == nullptr) return text;
  const WordRecordView word(record);
  text = kz::behind('[', text);
  if (mode == 0) {
    text = kz::read_russian(text, word, code);
    er_set_rgram(record, code);
  } else if (mode == 1 || mode == 3) {
    text = kz::read_foreign(text, word, code);
    if (mode == 3 && *text == '|') text = kz::read_russian(text + 1, word, code);
    er_set_egram(record, code);
  }
  return kz::behind('\\', text);
}

const char* re_get_wgram(std::int16_t mode, const char* text, std::uint8_t* record,
                         std::int16_t code) {
  if (text == nullptr || record == nullptr) return text;
  const WordRecordView word(record);
  text = kz::behind('[', text);
  if (mode == 0 || mode == 2) {
    text = kz::read_russian(text, word, code);
    if (*text == '|') text = kz::read_foreign(text + 1, word, code);
    re_set_rgram(record, code);
  } else if (mode == 1) {
    text = kz::read_foreign(text, word, code);
    re_set_egram(record, code, text);
  }
  return kz::behind('\\', text);
}

const char* er_get_rgram_gt(const char* text, std::uint8_t* record) {
  if (text == nullptr || record == nullptr) return text;
  const WordRecordView word(record);
  if (*text == '[') return er_get_wgram(0, text, record, word.code());
  switch (word.code()) {
    case 'P': return kz::read_case(text, word);
    case 'S': word.person() = 3; break;
    case 'n':
      word.number() = 1;
      word.code() = 'N';
      break;
    default: break;
  }
  return text;
}

const char* re_get_egram_gt(const char* text, std::uint8_t* record) {
  if (text == nullptr || record == nullptr) return text;
  const WordRecordView word(record);
  if (*text == '[') return re_get_wgram(1, text, record, word.code());
  if (word.code() == 'S') word.person() = 3;
  return text;
}

int xv_syn(int code) {
  const auto c = static_cast<unsigned char>(code);
  constexpr std::string_view kVerbal = "EGVZegv";
  return kVerbal.find(static_cast<char>(c)) != std::string_view::npos ? 'V' : c;
}

const char* get_equ(const char* text, const char* key) {
  if (text == nullptr || key == nullptr || *text == '\0') return nullptr;
  if (const char* const found = std::strstr(text, key)) return found + 1;
  constexpr kz::CharClass kCapital = kz::char_class::kAsciiUpper | kz::char_class::kRuAnsiUpper;
  for (; *text != '\0'; ++text) {
    if (*text == '{' || *text == '[') {
      text = std::strchr(text, *text == '{' ? '}' : ']');
      if (text == nullptr) return nullptr;
    } else if (*text == *key || kz::is_in(*text, kCapital)) {
      return text;
    }
  }
  return nullptr;
}
