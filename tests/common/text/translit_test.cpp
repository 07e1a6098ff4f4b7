// Transliteration and keyboard layouts.
#include "kz/translit.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <functional>
#include <random>
#include <string>
#include <string_view>

#include "kz/charclass.h"
#include "kz/compare.h"
#include "kz/special.h"
#include "tests/common/text/reference.h"
#include "tests/common/text/text_at_page_end.h"
#include "tests/support/source_tree.h"
#include "tests/support/utf8.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;
using kz::test::encoded_1251;

constexpr const char* no_text = nullptr;
constexpr std::string_view russian_capitals = U"АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"_1251;

std::string bytes(int character) { return std::string(1, static_cast<char>(character)); }

std::string one(int character, const char* language) {
  char out[4];
  EXPECT_EQ(translit(character, out, language, 0), out);
  return out;
}

// Calls write(source, destination) with texts that end at pages that may not be touched.
std::string written(const std::string& source, std::size_t room,
                    const std::function<char*(const char*, char*)>& write) {
  kz_test::GuardedMemory from(source.size() + 1);
  kz_test::GuardedMemory to(room);
  char* const destination = to.last(room);
  const char* const end = write(from.text(source), destination);
  EXPECT_EQ(*end, '\0');
  return std::string(static_cast<const char*>(destination), end);
}

// The letters a to h stand for the forms of several letters.
std::string latin_of(char russian_capital) {
  const char* const forms[] = {"::", "YA", "YU", "SCH", "CH", "SH", "ZH", "YO"};
  const char form = "ABVGDEhgZIYKLMNOPRSTUFHCefd'YIEcb"[russian_capitals.find(russian_capital)];
  return form >= 'a' ? forms[form - 'a'] : std::string(1, form);
}

TEST(TranslitRu, SpellsRussianLettersInTheirCaseAndNothingElse) {
  for (int c = 0; c < 256; ++c) {
    std::string expected(c == 0 ? "" : bytes(c));
    if (isruansialpha(c)) {
      expected = latin_of(static_cast<char>(toruansiupper(c)));
      if (isruansilower(c)) strruansilwr(expected.data());
    }
    char out[4];
    EXPECT_EQ(translitru(c, out), out);
    EXPECT_EQ(out, expected) << c;
    EXPECT_EQ(one(c - 256, "RU"), expected) << c;
  }
}

TEST(TranslitEnRu, SpellsInCapitalsAndConvertsPunctuation) {
  const std::string_view from = ";{}<[>]@ ,.()+-:0123456789\n";
  const std::string_view to = ",{}(())* ,.()+-:0123456789\n";
  for (int c = 0; c < 256; ++c) {
    std::string expected(c == 0 ? "" : bytes(c));
    if (isruansialpha(c)) expected = latin_of(static_cast<char>(toruansiupper(c)));
    if (const auto at = from.find(static_cast<char>(c)); at != from.npos) expected = to[at];
    if (c == '@') expected = "::";
    char out[4];
    EXPECT_EQ(translitenru(c, out), out);
    EXPECT_EQ(out, expected) << c;
    EXPECT_EQ(one(c, "ENRU"), expected) << c;
  }
}

TEST(Translit, GivesTheRussianLetterOfTheBaseLetter) {
  const std::string_view small = U"абсдефгхийклмнопкрстуввхиз"_1251;
  const std::string_view capital = U"АБЦДЕФГХИЙКЛМНОПКРСТУВВХИЗ"_1251;
  for (const char* language : {"FR", "frru", "DE", "DERU", "ru", "XX", "E", "", no_text}) {
    for (int c = 1; c < 256; ++c) {
      const int base = kz_codr_base_member(c, language == nullptr ? "FRRU" : language);
      const auto at = static_cast<std::size_t>(base - 'a');
      std::string expected = bytes(c);
      if (base >= 'a' && base <= 'z') expected = isansiupper(c) ? capital[at] : small[at];
      EXPECT_EQ(one(c, language), expected) << c << ' ' << (language ? language : "null");
    }
  }
  EXPECT_EQ(one('C', "FR"), U"Ц"_1251);
  EXPECT_EQ(one('C', "DE"), "C");
  EXPECT_EQ(one('w', no_text), U"в"_1251);
}

TEST(Translit, ChoosesTheDirectionByTheLanguage) {
  for (const char* language : {"R", "RU", "RUEN", "Russian"}) {
    EXPECT_EQ(one(U'ю'_1251, language), "yu") << language;
    EXPECT_EQ(one('a', language), "a") << language;
  }
  for (const char* language : {"EN", "en", "ENRU", "enRu"}) {
    EXPECT_EQ(one(U'ю'_1251, language), "YU") << language;
    EXPECT_EQ(one('a', language), "a") << language;
  }
  for (const char* language : {"ENR", "ENFR", "ENRUX", "r", "ruen", "FR"}) {
    EXPECT_EQ(one(U'ю'_1251, language), U"ю"_1251) << language;
    EXPECT_EQ(one('a', language), U"а"_1251) << language;
  }
}

TEST(TranslitTexts, AreTheCharactersOneAfterAnother) {
  for (const std::size_t size : {0, 1, 2, 3, 50, 1000}) {
    const std::string text = kz_test::random_text(size, 5);
    std::string letters[2];
    for (const char* language : {"RU", "EN", "DE"}) {
      std::string expected;
      for (const char c : text) expected += one(c, language);
      EXPECT_EQ(written(text, 3 * size + 1,
                        [&](const char* from, char* to) {
                          return strtransliterate(from, to, language, 0);
                        }),
                expected);
    }
    if (size == 0) continue;
    for (const char c : text) {
      const std::string latin = one(c, "RU");
      const bool is_russian_capital = isruansiupper(c) != 0;
      letters[0] += latin;
      for (const char l : latin) {
        letters[1] += is_russian_capital ? l : static_cast<char>(__tolower(l));
      }
    }
    for (const bool lower : {false, true}) {
      EXPECT_EQ(written(text, 3 * size + 1,
                        [&](const char* from, char* to) { return xliteratr(to, from, lower); }),
                letters[lower]);
    }
  }
  EXPECT_EQ(written("", 1,
                    [](const char* from, char* to) {
                      *to = '\0';
                      return xliteratr(to, from, 1);
                    }),
            "");
}

TEST(TranslitTexts, AreNotWrittenWithoutASource) {
  char out[] = "unchanged";
  for (const char* source : {no_text, ""}) {
    EXPECT_EQ(strtransliterateenrusmart(source, out, 1), out);
    EXPECT_EQ(xliteratr(out, source, 1), out);
  }
  EXPECT_EQ(strtransliterateenrusmart("a", nullptr, 1), no_text);
  EXPECT_EQ(xliteratr(nullptr, "a", 1), no_text);
  EXPECT_STREQ(out, "unchanged");
}

std::string smart(const std::string& text, int capitals) {
  return written(text, 2 * text.size() + 1, [capitals](const char* from, char* to) {
    return strtransliterateenrusmart(from, to, static_cast<std::int16_t>(capitals));
  });
}

// The rules once more, as a listener would state them, with their cases spelled out.
class SlowSmart {
 public:
  explicit SlowSmart(std::string text) : text_(std::move(text)) {}

  std::string run(bool keep_capitals) {
    std::string result;
    while (position_ < text_.size()) {
      const bool is_capital = _isupper(at(0)) != 0 && keep_capitals;
      const bool more_capitals = _isupper(at(1)) != 0;
      std::size_t size = 1;
      std::string letters = bytes(at(0));
      if (_isalpha(at(0))) letters = step(size);
      for (std::size_t i = 0; is_capital && i < (more_capitals ? letters.size() : 1); ++i) {
        letters[i] = static_cast<char>(toruansiupper(letters[i]));
      }
      result += letters.substr(0, letters.find('\0'));
      position_ += size;
    }
    return result;
  }

 private:
  int at(std::size_t offset) const {
    const std::size_t place = position_ + offset;
    return place < text_.size() ? static_cast<unsigned char>(text_[place]) : 0;
  }
  int low(std::size_t offset) const { return __tolower(at(offset)); }
  bool in(std::size_t offset, std::string_view letters) const {
    return at(offset) != 0 && letters.find(static_cast<char>(low(offset))) != letters.npos;
  }
  bool group(std::string_view letters) const {
    for (std::size_t i = 0; i < letters.size(); ++i) {
      if (low(1 + i) != letters[i]) return false;
    }
    return true;
  }
  bool ends(std::size_t offset) const { return at(offset) == 0 || _isspace(at(offset)); }
  bool open() const { return !isvowel(at(1)) && in(2, "ey"); }
  bool behind_vowel() const { return position_ > 0 && isvowel(text_[position_ - 1]); }

  std::string step(std::size_t& size) const {
    const auto take = [&size](std::size_t count, std::string_view letters) {
      size = count;
      return std::string(letters);
    };
    switch (low(0)) {
      case 'a':
        if (in(1, "uw")) return take(2, U"о"_1251);
        if (in(1, "i")) return take(2, in(2, "r") ? U"еа"_1251 : U"ей"_1251);
        if (in(1, "l") && !isvowel(at(2))) {
          if (in(2, "k")) return take(2, U"ок"_1251);
          return in(2, "l") ? take(2, U"ол"_1251) : take(1, U"а"_1251);
        }
        if (in(1, "y")) return take(2, U"ей"_1251);
        if (open()) return take(1, U"ей"_1251);
        return group("ble") ? take(2, U"ейб"_1251) : take(1, U"а"_1251);
      case 'b': return take(1, U"б"_1251);
      case 'c':
        if (in(1, "h")) return take(2, U"ч"_1251);
        if (in(1, "eiy")) return take(1, U"с"_1251);
        return take(in(1, "k") ? 2 : 1, U"к"_1251);
      case 'd': return group("ge") ? take(3, U"дж"_1251) : take(1, U"д"_1251);
      case 'e':
        if (in(1, "uw")) return take(2, position_ == 0 ? U"ю"_1251 : U"ью"_1251);
        if (in(1, "ae")) return take(2, at(2) == 'r' ? U"иа"_1251 : U"и"_1251);
        if (in(1, "i")) return take(2, at(2) == 'r' ? U"еа"_1251 : U"ей"_1251);
        if (in(1, "y")) return take(2, U"ей"_1251);
        if (open()) return take(1, U"и"_1251);
        if (position_ >= 3 && !behind_vowel() && ends(1)) return take(1, "");
        if (position_ >= 3 && in(1, "s") && ends(2)) return take(2, U"з"_1251);
        return take(1, U"е"_1251);
      case 'f': return take(1, U"ф"_1251);
      case 'g':
        if (in(1, "eiy")) return take(1, U"дж"_1251);
        return take(1, in(1, "h") ? std::string_view() : U"г"_1251);
      case 'h': return take(1, U"х"_1251);
      case 'i': return take(1, open() || group("ld") || group("nd") ? U"ай"_1251 : U"и"_1251);
      case 'j': return take(1, U"дж"_1251);
      case 'k': return in(1, "n") ? take(2, U"н"_1251) : take(1, U"к"_1251);
      case 'l': return take(1, U"л"_1251);
      case 'm': return take(1, U"м"_1251);
      case 'n': return take(1, U"н"_1251);
      case 'o':
        if (in(1, "o")) return take(2, at(2) == 'r' ? U"уа"_1251 : U"у"_1251);
        if (in(1, "a")) return take(2, at(2) == 'r' ? U"о"_1251 : U"оу"_1251);
        if (in(1, "e") || (low(2) == 'l' && low(3) == 'd')) return take(2, U"оу"_1251);
        if (group("ught")) return take(1, U"о"_1251);
        if (in(1, "u")) return take(2, at(2) == 'r' ? U"аа"_1251 : U"ау"_1251);
        return take(1, open() ? U"оу"_1251 : U"о"_1251);
      case 'p': return in(1, "h") ? take(2, U"ф"_1251) : take(1, U"п"_1251);
      case 'q': return take(1, U"к"_1251);
      case 'r': return group("ui") ? take(3, U"рю"_1251) : take(1, U"р"_1251);
      case 's':
        if (in(1, "h")) return take(2, U"ш"_1251);
        if (group("tion")) return take(5, U"счн"_1251);
        if (group("sion")) return take(5, U"шн"_1251);
        if (group("ion")) return take(4, behind_vowel() ? U"жн"_1251 : U"шн"_1251);
        return take(1, U"с"_1251);
      case 't':
        if (in(1, "h")) {
          if (position_ == 0 && in(2, "e") && ends(3)) return take(3, "");
          if (ends(2) || !behind_vowel() || !in(2, "e")) return take(2, U"т"_1251);
          return take(3, U"зе"_1251);
        }
        if (group("ch")) return take(3, U"ч"_1251);
        return group("ion") ? take(4, U"шн"_1251) : take(1, U"т"_1251);
      case 'u': return take(1, open() ? U"ью"_1251 : U"у"_1251);
      case 'v': return take(1, U"в"_1251);
      case 'w':
        if (in(1, "r")) return take(2, U"р"_1251);
        if (in(1, "a")) return take(2, U"уо"_1251);
        if (in(1, "h")) return take(2, at(2) == 'o' ? U"х"_1251 : U"у"_1251);
        return take(1, U"у"_1251);
      case 'x':
        if (group("ion")) return take(4, U"кшн"_1251);
        return group("ious") ? take(5, U"кшас"_1251) : take(1, U"кс"_1251);
      case 'y':
        if (in(1, "aeiouy")) {
          const std::size_t vowel = std::string_view("aeiouy").find(static_cast<char>(low(1)));
          return take(2, bytes(U'й'_1251) + U"аеиоуы"_1251[vowel]);
        }
        return take(1, at(1) != 0 && open() ? U"ей"_1251 : U"и"_1251);
      default: return take(1, U"з"_1251);
    }
  }

  std::string text_;
  std::size_t position_ = 0;
};

TEST(SmartTranslit, FollowsItsRulesInRandomTexts) {
  const std::string_view pieces[] = {
      "tion", "sion", "ion", "ious", "ial", "ian", "ught", "ble", "the", "ld",   "nd", "all",
      "alk",  "air",  "eir", "eer",  "oor", "oar", "our",  "who", "ge",  "ch",   "th", "ui",
      "es",   "e ",   " ",   "\t",   ".",   "7",   "R",    "O",   "E",   "\xFF", "W",  "Y"};
  std::mt19937 random(8);
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (auto count = random() % 16; count > 0; --count) {
      if (random() % 3 != 0) {
        text += static_cast<char>('a' + random() % 26);
      } else {
        text += pieces[random() % std::size(pieces)];
      }
      if (random() % 8 == 0) text.back() = static_cast<char>(__toupper(text.back()));
    }
    const bool keep_capitals = random() % 2 != 0;
    if (text.empty()) continue;
    ASSERT_EQ(smart(text, keep_capitals), SlowSmart(text).run(keep_capitals)) << text;
  }
}

TEST(SmartTranslit, GivesTheExamplesOfItsPage) {
  std::ifstream page(kz::test::source_tree() / "docs/conversions.md");
  std::string line;
  while (std::getline(page, line) && line != "```smart") continue;
  int examples = 0;
  for (; std::getline(page, line) && line != "```"; ++examples) {
    const std::string english = line.substr(0, line.find("  "));
    std::string russian = line.substr(line.find_first_not_of(' ', english.size()));
    if (russian.front() == '"') russian = russian.substr(1, russian.size() - 2);
    EXPECT_EQ(smart(english, 1), encoded_1251(russian)) << english;
    std::string small = encoded_1251(russian);
    std::string small_english = english;
    __strlwr(small_english.data());
    EXPECT_EQ(smart(small_english, 1), strruansilwr(small.data())) << english;
    EXPECT_EQ(smart(small_english, 0), small) << english;
  }
  EXPECT_GE(examples, 30);
}

using InPlace = std::function<char*(char*)>;

std::string changed(std::string_view text, const InPlace& change, std::size_t expected_end) {
  kz_test::GuardedMemory memory(text.size() + 1);
  char* const start = memory.text(std::string(text));
  EXPECT_EQ(change(start) - start, static_cast<std::ptrdiff_t>(expected_end)) << text;
  return start;
}

TEST(KeyboardLayout, RepairsTextOfTheOtherLayout) {
  constexpr std::string_view latin =
      "`qwertyuiop[]asdfghjkl;'zxcvbnm,.~QWERTYUIOP{}ASDFGHJKL:\"ZXCVBNM<> 1/?\x01\x80";
  const std::string russian =
      std::string(U"ёйцукенгшщзхъфывапролджэячсмитьбюЁЙЦУКЕНГШЩЗХЪФЫВАПРОЛДЖЭЯЧСМИТЬБЮ"_1251) +
      " 1/?\x01\x80";
  EXPECT_EQ(changed(latin, strruscase, latin.size()), russian);
  EXPECT_EQ(changed(russian, strlatcase, russian.size()), latin);
  EXPECT_EQ(changed(russian, strruscase, russian.size()), russian);
  EXPECT_EQ(changed(U"руддщ"_1251, strlatcase, 5), "hello");
  EXPECT_EQ(changed("", strlatcase, 0), "");
  EXPECT_EQ(changed("", strruscase, 0), "");
  EXPECT_EQ(strlatcase(nullptr), no_text);
  EXPECT_EQ(strruscase(nullptr), no_text);
}

TEST(LookAlikes, AreTwelveSmallAndElevenCapitalLetters) {
  constexpr std::string_view latin = "ageukmonpcyxABEKMHOPCYX";
  constexpr std::string_view russian = U"адеикмопрсухАВЕКМНОРСУХ"_1251;
  for (int c = 1; c < 256; ++c) {
    const auto in_russian = russian.find(static_cast<char>(c));
    const auto in_latin = latin.find(static_cast<char>(c));
    char text[] = {static_cast<char>(c), '\0'};
    strlat(text, 0);
    EXPECT_EQ(text[0], in_russian == russian.npos ? static_cast<char>(c) : latin[in_russian]) << c;
    text[0] = static_cast<char>(c);
    strrus(text, 0);
    EXPECT_EQ(text[0], in_latin == latin.npos ? static_cast<char>(c) : russian[in_latin]) << c;
  }
  EXPECT_EQ(strlat(nullptr, 0), no_text);
  EXPECT_EQ(strrus(nullptr, '.'), no_text);
}

TEST(LookAlikes, EndAtTheStopCharacter) {
  const struct {
    std::string_view text, expected;
    int stop;
    std::size_t end;
  } rows[] = {
      {U"сор.сор"_1251, U"cop.сор"_1251, '.', 3}, {U"сор"_1251, "cop", '.', 3},
      {U"сор"_1251, U"cор"_1251, U'о'_1251, 1},   {U"сор"_1251, U"cор"_1251, U'о'_1251 - 256, 1},
      {U".сор"_1251, U".сор"_1251, '.', 0},       {"", "", 'x', 0},
  };
  for (const auto& [text, expected, stop, end] : rows) {
    const auto before = [stop = stop](char* start) { return strlat(start, stop); };
    EXPECT_EQ(changed(text, before, end), expected) << stop;
  }
  EXPECT_EQ(changed(
                "cop", [](char* text) { return strrus(text, 'p'); }, 2),
            U"соp"_1251);
}

}  // namespace
