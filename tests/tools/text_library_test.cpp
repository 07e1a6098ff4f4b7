// kzlexicon/text.h as programs use it; filter_test.cpp has what becomes of texts.
#include <gtest/gtest.h>

#include "kzlexicon/text.h"

namespace {

using namespace kz::lexicon;

TEST(Text, MakesWhatTheHeaderSays) {
  EXPECT_EQ(transliteration({.to = Alphabet::kLatin})->apply("ёж"), "yozh");
  EXPECT_EQ(keyboard_layout({.to = Alphabet::kRussian})->apply("ghbdtn"), "привет");
  EXPECT_EQ(Conversion("utf-8", "html").apply("мир"), "&#1084;&#1080;&#1088;");
}

TEST(Text, RefusesOptionsThatDoNotGoTogether) {
  using Options = TransliterationOptions;
  for (const Options& options :
       {Options{.smart = true}, Options{.language = "FR"},
        Options{.to = Alphabet::kRussian, .capitals = true},
        Options{.to = Alphabet::kRussian, .small_letters = true},
        Options{.to = Alphabet::kRussian, .language = "RUEN"},
        Options{.to = Alphabet::kRussian, .smart = true, .language = "DE"}}) {
    EXPECT_THROW(transliteration(options), Error);
  }
}

TEST(Text, MissingCharactersAreRefusedOrReplaced) {
  const Conversion conversion("html", "windows-1251");
  EXPECT_THROW(conversion.apply("≤"), Unmappable);
  std::string out;
  std::string places;
  conversion.append(
      "a\n&#1078;b≤c", out, [&](const MissingCharacter& missing, std::string& answer) {
        places += std::to_string(missing.line) + ":" + std::to_string(missing.column) + " ";
        answer += "<=";
      });
  EXPECT_EQ(out,
            "a\n\xE6"
            "b<=c");
  EXPECT_EQ(places, "2:3 ");
}

TEST(Text, PiecesCountFromTheBeginningOfTheirLine) {
  std::string line;
  while (line.size() < 100'000) line += "ж";
  const std::size_t bad = line.size();
  line += '\xFF';
  const auto filter = transliteration({.to = Alphabet::kLatin});
  std::string out;
  const std::size_t first = filter->append_piece(line, 0, out);
  EXPECT_EQ(out, filter->apply(line.substr(0, first)));
  try {
    filter->append_piece(line, first, out);
    ADD_FAILURE();
  } catch (const BadUtf8& error) {
    EXPECT_EQ(error.offset, bad);
  }
}

}  // namespace
