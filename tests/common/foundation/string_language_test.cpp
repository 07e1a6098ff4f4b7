// ZCString: the operations that the language tag decides.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "kz/string.h"
#include "text/literal.h"

using kz::operator""_1251;
using kz::operator""_1252;

namespace {

constexpr int kGerman = 1031;
constexpr int kEnglish = 1033;
constexpr int kFrench = 1036;
constexpr int kRussian = 1049;
constexpr int kOther = 1034;

ZCString tagged(std::string_view text, int tag) {
  ZCString result(text.data(), static_cast<int>(text.size()));
  result.SetLanguage(tag);
  return result;
}

// The changed text. Every '@' stands for a NUL, which must not end the change.
std::string changed(std::string_view text, int tag, void (ZCString::*change)()) {
  std::string bytes(text);
  std::replace(bytes.begin(), bytes.end(), '@', '\0');
  ZCString string = tagged(bytes, tag);
  (string.*change)();
  bytes.assign(string, static_cast<std::size_t>(string.GetLength()));
  std::replace(bytes.begin(), bytes.end(), '\0', '@');
  return bytes;
}

// The text with its second character changed.
std::string changed_at_1(std::string_view text, int tag, void (ZCString::*change)(int)) {
  ZCString string = tagged(text, tag);
  (string.*change)(1);
  return std::string(string);
}

TEST(StringLanguage, CaseOfTheWholeStringFollowsTheTag) {
  for (const int tag : {kEnglish, kRussian}) {
    EXPECT_EQ(changed(U"ёлка – Q, я@zя"_1251, tag, &ZCString::MakeUpper), U"ЁЛКА – Q, Я@ZЯ"_1251);
    EXPECT_EQ(changed(U"ЁЛКА – Q, Я@ZЯ"_1251, tag, &ZCString::MakeLower), U"ёлка – q, я@zя"_1251);
  }
  for (const int tag : {kGerman, kFrench}) {
    EXPECT_EQ(changed(U"äœß÷ÿ@z"_1252, tag, &ZCString::MakeUpper), U"ÄŒß÷Ÿ@Z"_1252);
    EXPECT_EQ(changed(U"ÄŒß×Ÿ@Z"_1252, tag, &ZCString::MakeLower), U"äœß×ÿ@z"_1252);
  }
  for (const int tag : {0, kOther}) {
    EXPECT_EQ(changed(U"аёz@z"_1251, tag, &ZCString::MakeUpper), U"аёZ@Z"_1251);
    EXPECT_EQ(changed(U"АЁZ@Z"_1251, tag, &ZCString::MakeLower), U"АЁz@z"_1251);
  }
}

TEST(StringLanguage, CaseOfOneCharacterFollowsTheTag) {
  EXPECT_EQ(changed_at_1(U"яёё"_1251, kRussian, &ZCString::ToUpper), U"яЁё"_1251);
  EXPECT_EQ(changed_at_1(U"ЁЯЯ"_1251, kEnglish, &ZCString::ToLower), U"ЁяЯ"_1251);
  for (const int tag : {kGerman, kFrench, 0, kOther}) {
    EXPECT_EQ(changed_at_1(U"äÿÿ"_1252, tag, &ZCString::ToUpper), U"äŸÿ"_1252);
    EXPECT_EQ(changed_at_1(U"ÄŠŠ"_1252, tag, &ZCString::ToLower), U"ÄšŠ"_1252);
    EXPECT_EQ(changed_at_1(U"zё"_1251, tag, &ZCString::ToUpper), U"zё"_1251);
  }
}

TEST(StringLanguage, CodePageConversionFollowsTheTag) {
  for (const int tag : {kEnglish, kRussian, 0, kOther}) {
    EXPECT_EQ(changed(U"ая@«"_1251, tag, &ZCString::CharToOemA), "\xA0\xEF@\"");
    EXPECT_EQ(changed("\xA0\xEF@\xCD", tag, &ZCString::OemToCharA), U"ая@="_1251);
  }
  for (const int tag : {kGerman, kFrench}) {
    EXPECT_EQ(changed(U"äÇ"_1252, tag, &ZCString::CharToOemA), "\x84\x80");
    EXPECT_EQ(changed("\x84\x80", tag, &ZCString::OemToCharA), U"äÇ"_1252);
  }
}

TEST(StringLanguage, ClassesOfOneCharacterFollowTheTag) {
  const auto classes = [](unsigned char c, int tag) {
    const char text[] = {' ', static_cast<char>(c)};
    const ZCString string = tagged({text, 2}, tag);
    return std::to_string(string.IsAlpha(1)) + std::to_string(string.IsAlphaNum(1)) +
           std::to_string(string.IsUpper(1)) + std::to_string(string.IsLower(1));
  };
  for (const int tag : {kEnglish, kRussian, kGerman, kFrench, 0, kOther}) {
    const bool russian = tag == kEnglish || tag == kRussian;
    EXPECT_EQ(classes('7', tag), "0100");
    EXPECT_EQ(classes('Q', tag), "1110");
    EXPECT_EQ(classes('q', tag), "1101");
    EXPECT_EQ(classes(U'м'_1251, tag), russian ? "1101" : "0000");
    EXPECT_EQ(classes(U'Ё'_1251, tag), russian ? "1110" : "0000");
    EXPECT_EQ(classes(U'œ'_1252, tag), "1101") << "a letter of one code page is enough";
    EXPECT_EQ(classes(U'ß'_1252, tag), "1111");
    EXPECT_EQ(classes(' ', tag), "0000");
  }
}

TEST(StringLanguage, OnlyCharactersOfTheStringHaveACaseAndAClass) {
  // Letters lie in the buffer behind the string, and in the tag in front of it.
  ZCString text("abcd");
  text.SetLanguage('q');
  char* const characters = text.GetBuffer(4);
  text.ReleaseBuffer(2);
  const int tag = -static_cast<int>(sizeof(ZCStringData)) + 4;
  for (const int index : {tag, -1, 2, 3}) {
    text.ToUpper(index);
    text.ToLower(index);
    EXPECT_EQ(text.IsAlpha(index) + text.IsAlphaNum(index) + text.IsLower(index), 0) << index;
    text.ToUpper(index);
    EXPECT_EQ(text.IsUpper(index), 0) << index;
  }
  EXPECT_EQ(std::string(characters, 4), std::string("ab\0d", 4));
  EXPECT_EQ(text.GetLanguage(), 'q');
}

TEST(StringLanguage, CaselessComparisonFollowsTheTag) {
  const char* const lower = U"мир"_1251.data();
  for (const int tag : {kEnglish, kRussian, kGerman, kFrench, 0, kOther}) {
    const bool western = tag == kGerman || tag == kFrench;
    const bool russian = tag == kEnglish || tag == kRussian;
    const ZCString upper = tagged(U"МИР"_1251, tag);
    EXPECT_EQ(upper.CompareNoCase(lower) == 0, !western) << tag;
    EXPECT_EQ(upper.StartsWithNoCase(U"ми"_1251.data()), russian) << tag;
    EXPECT_EQ(upper.EndsWithNoCase(U"ир"_1251.data()), russian) << tag;
    EXPECT_EQ(upper.IsFlexNoCase(2, U"ми"_1251.data()), russian) << tag;
    EXPECT_EQ(upper.StartsWithNoCase(U"мира"_1251.data()), 0) << tag;
    EXPECT_EQ(upper.IsFlexNoCase(U"амир"_1251.data()), 0) << tag;
    const ZCString word = tagged("Tables", tag);
    EXPECT_EQ(word.StartsWithNoCase("tAB") + word.IsFlexNoCase("LES"), 2) << tag;
    EXPECT_EQ(word.IsFlexNoCase(1, "ta") + word.IsFlexNoCase(7, "") + word.IsFlexNoCase("@"), 0);
    EXPECT_EQ(word.IsFlexNoCase(0, ""), 1);
    EXPECT_LT(word.CompareNoCase("tablet"), 0);
  }
}

TEST(StringLanguage, AChangeLeavesSharersAloneAndTakesTheTagFromBefore) {
  for (const auto change : {&ZCString::MakeUpper, &ZCString::CharToOemA}) {
    const ZCString sharer = tagged(U"яя"_1251, kRussian);
    ZCString text(sharer);
    (text.*change)();
    EXPECT_EQ(sharer, U"яя"_1251.data());
    EXPECT_EQ(std::string(text), changed(U"яя"_1251, kRussian, change));
    EXPECT_EQ(text.GetLanguage(), 0);
  }
  ZCString text = tagged(U"яя"_1251, kRussian);
  text.MakeUpper();
  EXPECT_EQ(text.GetLanguage(), kRussian) << "an own buffer is kept";
}

}  // namespace
