// Conversion of entries and mixed texts between code pages, and the normal form of entries.
#include "kz/entry_convert.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "kz/charclass.h"
#include "kz/codepage.h"
#include "kz/entry.h"
#include "tests/support/source_tree.h"
#include "tests/support/utf8.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;
using kz::operator""_1252;

constexpr const char* no_text = nullptr;

using Convert = char* (*)(const char*, char*);
using ConvertEntry = char* (*)(const char*, char*, const char*);

std::string converted(Convert convert, const std::string& text) {
  std::string result(text.size() + 1, 'x');
  EXPECT_EQ(convert(text.c_str(), result.data()), result.data() + text.size());
  result.pop_back();
  return result;
}

// Converts into a buffer of just the size needed and in place, with the same result.
std::string converted(ConvertEntry convert, const std::string& text, const char* language,
                      bool gives_end) {
  std::vector<char> result(text.size() + 1, 'x');
  EXPECT_EQ(convert(text.c_str(), result.data(), language),
            result.data() + (gives_end ? text.size() : 0));
  EXPECT_EQ(result.back(), '\0');
  std::string in_place = text;
  convert(in_place.data(), in_place.data(), language);
  EXPECT_EQ(in_place, result.data());
  return in_place;
}

std::string entry_to_oem(const std::string& text, const char* language) {
  return converted(DicEntryAnsiToOem, text, language, language == nullptr);
}
std::string entry_to_ansi(const std::string& text, const char* language) {
  return converted(DicEntryOemToAnsi, text, language, language == nullptr);
}
std::string mixed_to_oem(const std::string& text, const char* language) {
  return converted(strdicansitooem, text, language, true);
}
std::string mixed_to_ansi(const std::string& text, const char* language) {
  return converted(strdicoemtoansi, text, language, true);
}

// A stretch of text in one script.
struct Piece {
  enum Script { russian, western } script;
  std::string ansi;

  std::string oem() const {
    return converted(script == russian ? strruansitooem : stransitooem, ansi);
  }
};
using Pieces = std::vector<Piece>;

Piece russian(std::string_view text) { return {Piece::russian, std::string(text)}; }
Piece western(std::string_view text) { return {Piece::western, std::string(text)}; }

struct Texts {
  std::string ansi, oem;
};

Texts join(const Pieces& pieces) {
  Texts texts;
  for (const Piece& piece : pieces) {
    texts.ansi += piece.ansi;
    texts.oem += piece.oem();
  }
  return texts;
}

TEST(MixedText, DecidesEachLetterInDoubtByItsWord) {
  const struct {
    const char* language;
    Pieces pieces;
  } rows[] = {
      {"RUDE", {western(U"Übung über Straße früh"_1252)}},
      {"RUDE", {russian(U"Дом для ЬЬ ьюди"_1251), western(U" grün"_1252)}},
      {"RUDE", {western(U"Wörter"_1252), russian(U" и цДФ"_1251)}},
      {"DE", {western(U"über"_1252), russian(U" ццц"_1251)}},
      {"RUFR", {western(U"été où"_1252), russian(U" еда"_1251)}},
      {"FR", {western(U"été, le Noël"_1252)}},
      // As many Russian as Latin letters, none at first: the letter behind it decides.
      {"RUDE", {russian(U"ц"_1251)}},
      {"RUDE", {russian(U"ц.ц 1ц1"_1251)}},
      {"RUDE", {russian(U"цд"_1251)}},
      {"RUDE", {western("a"), russian(U"бц"_1251)}},
      {"RUDE", {western("a"), russian(U"б"_1251), western(U"öxä"_1252)}},
      // The word goes on over some characters and begins anew behind others.
      {"RUDE", {western(U"Groß-ä.ö/ü&ä7ö"_1252), russian(U" ц"_1251)}},
      {"RUDE", {western("Bad"), russian(U",ц"_1251)}},
      {"RUDE", {russian(U"до"_1251), western("x"), russian(U"ц"_1251)}},
      // No letter of the language is also a Russian one.
      {"RUEN", {western("x"), russian(U"цё"_1251)}},
      {"FRRU", {western("x"), russian(U"ёц"_1251)}},
      {"DEU", {western("x"), russian(U"ц"_1251)}},
      {"de", {western(U"xä"_1252)}},
      {"", {western("x"), russian(U"ц"_1251)}},
      {no_text, {western("x"), russian(U"ц"_1251)}},
      // Longer than a direction: undecided letters are Western.
      {"RUDEX", {western(U"ä ö."_1252)}},
      {"RUDEX", {russian(U"цё"_1251)}},
      {"XXRUDE", {western("x"), russian(U"ц"_1251)}},
  };
  for (const auto& [language, pieces] : rows) {
    const Texts texts = join(pieces);
    EXPECT_EQ(mixed_to_oem(texts.ansi, language), texts.oem) << texts.ansi;
    EXPECT_EQ(mixed_to_ansi(texts.oem, language), texts.ansi) << texts.ansi;
  }
}

TEST(MixedText, ConvertsWhatIsNoLetterLikeRussianText) {
  std::string text;
  for (int c = 1; c < 256; ++c) text += {static_cast<char>(c), ' '};
  for (const char* language : {"EN", "RU", "ENRU", "RUEN", no_text}) {
    EXPECT_EQ(mixed_to_oem(text, language), converted(strruansitooem, text));
    EXPECT_EQ(mixed_to_ansi(text, language), converted(strruoemtoansi, text));
  }
  EXPECT_EQ(mixed_to_oem(text, "RUDE"), converted(strruansitooem, text)) << "lone letters";
  EXPECT_EQ(mixed_to_ansi(text, "RUFR"), converted(strruoemtoansi, text)) << "lone letters";
}

TEST(MixedText, OfRandomWordsComesBack) {
  std::mt19937 random(4);
  const std::string_view russian_letters =
      U"абвгдеёжзийклмнопрстуфхцчшщъыьэюяАБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"_1251;
  const struct {
    const char* language;
    std::string_view letters;
  } rows[] = {{"RUDE", U"abcxyzäöüßÄÖÜ"_1252}, {"RUFR", U"abcdeéèêëàâçîïôùûÉÀ"_1252}};
  for (const auto& [language, letters] : rows) {
    for (int i = 0; i < 2000; ++i) {
      Pieces pieces;
      for (auto words = random() % 10; words > 0; --words) {
        const bool is_russian = random() % 2 != 0;
        // A Western word whose first two letters are accented would read as Russian.
        Piece word = is_russian ? russian("") : western("k");
        const std::string_view alphabet = is_russian ? russian_letters : letters;
        for (auto size = 1 + random() % 8; size > 0; --size) {
          word.ansi += alphabet[random() % alphabet.size()];
        }
        pieces.push_back(word);
        pieces.push_back(russian(std::string_view(" ;,()#12").substr(random() % 5, 1)));
      }
      const Texts texts = join(pieces);
      ASSERT_EQ(mixed_to_oem(texts.ansi, language), texts.oem);
      ASSERT_EQ(mixed_to_ansi(texts.oem, language), texts.ansi);
    }
  }
}

// Random characters but the marks of an entry.
std::string random_section(std::mt19937& random, std::size_t size) {
  std::string text;
  while (text.size() < size) {
    const char c = static_cast<char>(1 + random() % 255);
    if (std::string_view("*[]{} ;\\").find(c) == std::string_view::npos) text += c;
  }
  return text;
}

TEST(EntryConversion, TakesTheTableOfEachSection) {
  const struct {
    const char* language;
    char head, body;  // R: Russian, W: Western, M: mixed
  } rows[] = {{"RUEN", 'R', 'R'}, {"ENRU", 'R', 'R'}, {"RUDE", 'R', 'M'}, {"DERU", 'W', 'R'},
              {"RUFR", 'R', 'W'}, {"FRRU", 'W', 'R'}, {"RU", 'R', 'R'},   {"EN", 'R', 'R'},
              {"DE", 'W', 'W'},   {"FR", 'W', 'W'},   {"R", 'R', 'R'},    {"", 'W', 'W'},
              {"FRDE", 'W', 'M'}, {"ENFR", 'R', 'W'}, {"ruen", 'W', 'W'}, {"DED", 'W', 'M'}};
  std::mt19937 random(6);
  for (const bool to_oem : {true, false}) {
    const Convert russian_table = to_oem ? strruansitooem : strruoemtoansi;
    const Convert western_table = to_oem ? stransitooem : stroemtoansi;
    for (const auto& [language, head, body] : rows) {
      const auto convert = [&, code = language](char table, const std::string& text) {
        if (table == 'M') return to_oem ? mixed_to_oem(text, code) : mixed_to_ansi(text, code);
        return converted(table == 'R' ? russian_table : western_table, text);
      };
      for (int i = 0; i < 300; ++i) {
        std::string entry;
        std::string expected;
        const auto add = [&](char table, const std::string& text) {
          entry += text;
          expected += convert(table, text);
        };
        add(head, random_section(random, random() % 5));
        if (i % 10 != 0 && random() % 4 == 0) {
          add('R', "*");
          add(head, random_section(random, 3));  // of several asterisks the last one counts
        }
        if (i % 10 != 0) {
          add('R', "*");
          if (i % 10 != 1) add('R', random_section(random, 1));
        }
        if (i % 10 > 2 && i % 3 != 0) {
          const std::string extension = random_section(random, random() % 7);
          entry += extension;
          expected += extension;
          add('R', "[" + random_section(random, 1 + random() % 9) + "]");
        }
        if (i % 10 > 1 && random() % 4 != 0) {
          add(body, random_section(random, 8) + "[" + random_section(random, 3));
        }
        if (i % 10 > 1 && random() % 2 != 0) {
          add(head, "\\" + random_section(random, 3) + "\\\\" + random_section(random, 4));
        }
        const std::string result =
            to_oem ? entry_to_oem(entry, language) : entry_to_ansi(entry, language);
        ASSERT_EQ(result, expected) << language << ' ' << i << ' ' << entry;
      }
    }
  }
}

TEST(EntryConversion, WithoutALanguageIsThatOfAText) {
  const std::string entry(U"дом*N[М]«слово»\\ёж"_1251);
  EXPECT_EQ(entry_to_oem(entry, nullptr), converted(strruansitooem, entry));
  EXPECT_EQ(entry_to_ansi(entry, nullptr), converted(strruoemtoansi, entry));
}

enum class Page { russian, western, by_word };

// The bytes of a UTF-8 section in a code page, as pieces of one script.
Pieces encoded(std::string_view utf8, Page page) {
  Pieces pieces;
  std::u32string word;
  const auto end_word = [&] {
    bool is_western = page == Page::western;
    for (const char32_t c : word) is_western |= page == Page::by_word && c < 0x80;
    Piece piece = is_western ? western("") : russian("");
    for (const char32_t c : word) {
      piece.ansi += static_cast<char>(is_western ? kz::to_1252(c) : kz::to_1251(c));
    }
    EXPECT_EQ(piece.ansi.find('\0'), std::string::npos) << utf8;
    pieces.push_back(piece);
    word.clear();
  };
  for (const char32_t c : kz::test::decoded(utf8)) {
    if (c < 0x80 && !_isalpha(static_cast<int>(c))) {
      end_word();
      pieces.push_back(russian(std::string(1, static_cast<char>(c))));
    } else {
      word += c;
    }
  }
  end_word();
  return pieces;
}

Page page_of(std::string_view language) {
  return language == "RU" || language == "EN" ? Page::russian : Page::western;
}

TEST(EntryConversion, OfTheSampleDictionariesGivesOemTextAndComesBack) {
  const auto data = kz::test::source_tree() / "data";
  for (const std::string language : {"ENRU", "RUEN", "DERU", "RUDE", "FRRU", "RUFR"}) {
    std::string name = "base" + language + ".txt";
    std::ifstream source(data / __strlwr(name.data()));
    const Page head = page_of(language.substr(0, 2));
    const Page body = language == "RUDE" ? Page::by_word : page_of(language.substr(2));
    int entries = 0;
    for (std::string line; std::getline(source, line);) {
      if (line.empty() || line[0] == '*') continue;
      const std::size_t part = line.rfind('*') + 1;
      const bool is_russian_part = static_cast<unsigned char>(line[part]) >= 0xC0;  // of two bytes
      std::size_t body_begin = part + (is_russian_part ? 2 : 1);
      const std::size_t bracket = line.find_first_of("[\\", body_begin);
      if (bracket < body_begin + 8 && line[bracket] == '[') body_begin = line.find(']') + 1;
      const std::size_t body_end = std::min(line.find('\\', body_begin), line.size());
      Pieces pieces;
      const auto add = [&](std::size_t begin, std::size_t end, Page page) {
        const Pieces more = encoded(std::string_view(line).substr(begin, end - begin), page);
        pieces.insert(pieces.end(), more.begin(), more.end());
      };
      add(0, part, head);
      add(part, body_begin, Page::russian);
      add(body_begin, body_end, body);
      add(body_end, line.size(), head);
      const Texts texts = join(pieces);
      EXPECT_EQ(entry_to_oem(texts.ansi, language.c_str()), texts.oem) << line;
      EXPECT_EQ(entry_to_ansi(texts.oem, language.c_str()), texts.ansi) << line;
      ++entries;
    }
    EXPECT_GE(entries, 90) << language;
  }
}

TEST(EntryCoding, GivesTheNormalFormOfAnEntry) {
  const struct {
    std::string_view full, normal;
  } rows[] = {
      {U"стол*N[M]table;desk\\ref\\\\Стол"_1251, U"стол*N[M]table;desk\\ref\\\\Стол"_1251},
      {U"стол"_1251, U"стол*"_1251},
      {"", ""},
      {"*N[M]text", ""},
  };
  for (const auto& [full, normal] : rows) {
    CDicEntry entry("RUEN", 'C');
    char buffer[64] = "x";
    const char* const result = entry.Code(full.data(), buffer);
    EXPECT_EQ(result, entry.GetFullEntry(nullptr));
    EXPECT_EQ(result, normal);
    EXPECT_EQ(buffer, normal);
    EXPECT_EQ(entry.Decode(full.data(), nullptr), normal);
    EXPECT_EQ(entry.Decode(entry.GetFullEntry(nullptr), buffer), normal);
  }
  CDicEntry entry("ENRU", 'c');
  entry.Code(U"table*N1.стол/2.таблица"_1251.data(), nullptr);
  EXPECT_EQ(entry.GetMeaningsSize(), 2) << "the meanings are parsed";
  entry.CodeFullEntry();
  entry.DecodeFullEntry();
  EXPECT_EQ(entry.GetFullEntry(nullptr), U"table*N1.стол/2.таблица"_1251);
}

}  // namespace
