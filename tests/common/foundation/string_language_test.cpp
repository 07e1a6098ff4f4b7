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

std::string changed_at(std::string_view text, int tag, void (ZCString::*change)(int)) {
  ZCString string = tagged(text, tag);
  (string.*change)(0);
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
  EXPECT_EQ(changed_at(U"ёё"_1251, kRussian, &ZCString::ToUpper), U"Ёё"_1251);
  EXPECT_EQ(changed_at(U"ЯЯ"_1251, kEnglish, &ZCString::ToLower), U"яЯ"_1251);
  for (const int tag : {kGerman, kFrench, 0, kOther}) {
    EXPECT_EQ(changed_at(U"ÿÿ"_1252, tag, &ZCString::ToUpper), U"Ÿÿ"_1252);
    EXPECT_EQ(changed_at(U"ŠŠ"_1252, tag, &ZCString::ToLower), U"šŠ"_1252);
    EXPECT_EQ(changed_at(U"ё"_1251, tag, &ZCString::ToUpper), U"ё"_1251);
  }
  ZCString text = tagged("ab", kRussian);
  for (const int index : {-1, 2, 3}) {
    text.ToUpper(index);
    text.ToLower(index);
  }
  EXPECT_STREQ(text, "ab");
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
    const char text = static_cast<char>(c);
    const ZCString string = tagged({&text, 1}, tag);
    return std::to_string(string.IsAlpha(0)) + std::to_string(string.IsAlphaNum(0)) +
           std::to_string(string.IsUpper(0)) + std::to_string(string.IsLower(0));
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
  const ZCString text = tagged("ab", kRussian);
  EXPECT_EQ(text.IsAlpha(-1) + text.IsAlpha(2) + text.IsLower(3) + text.IsAlphaNum(2), 0);
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
