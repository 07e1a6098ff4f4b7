// ZCString: the operations that the language tag decides.
#include <algorithm>
#include <string>
#include <string_view>

#include "kz/string.h"
#include "tests/common/foundation/fixture.h"
#include "text/literal.h"

using kz::operator""_1251;
using kz::operator""_1252;

namespace {

constexpr int kGerman = 1031, kEnglish = 1033, kFrench = 1036, kRussian = 1049, kOther = 1034;

// The changed text, whose sharers stay. Every '@' stands for a NUL, which must not end the change.
std::string changed(std::string_view before, int tag, void (ZCString::*change)()) {
  std::string bytes(before);
  std::replace(bytes.begin(), bytes.end(), '@', '\0');
  ZCString own = tagged(bytes, tag);
  const ZCString sharer = tagged(bytes, tag);
  ZCString sharing = sharer;
  (own.*change)();
  (sharing.*change)();
  EXPECT_EQ(text(sharer), bytes);
  EXPECT_EQ(text(sharing), text(own));
  EXPECT_EQ(sharing.GetLanguage(), 0);
  EXPECT_EQ(own.GetLanguage(), tag) << "an own buffer is kept";
  bytes = text(own);
  std::replace(bytes.begin(), bytes.end(), '\0', '@');
  return bytes;
}

TEST(StringLanguage, CaseAndCodePageOfTheWholeStringFollowTheTag) {
  constexpr auto upper = &ZCString::MakeUpper, lower = &ZCString::MakeLower;
  constexpr auto to_oem = &ZCString::CharToOemA, from_oem = &ZCString::OemToCharA;
  for (const int tag : {kEnglish, kRussian}) {
    EXPECT_EQ(changed(U"ёлка – Q, я@zя"_1251, tag, upper), U"ЁЛКА – Q, Я@ZЯ"_1251);
    EXPECT_EQ(changed(U"ЁЛКА – Q, Я@ZЯ"_1251, tag, lower), U"ёлка – q, я@zя"_1251);
  }
  for (const int tag : {kGerman, kFrench}) {
    EXPECT_EQ(changed(U"äœß÷ÿ@z"_1252, tag, upper), U"ÄŒß÷Ÿ@Z"_1252);
    EXPECT_EQ(changed(U"ÄŒß×Ÿ@Z"_1252, tag, lower), U"äœß×ÿ@z"_1252);
    EXPECT_EQ(changed(U"äÇ"_1252, tag, to_oem), "\x84\x80");
    EXPECT_EQ(changed("\x84\x80", tag, from_oem), U"äÇ"_1252);
  }
  for (const int tag : {0, kOther}) {
    EXPECT_EQ(changed(U"аёz@z"_1251, tag, upper), U"аёZ@Z"_1251);
    EXPECT_EQ(changed(U"АЁZ@Z"_1251, tag, lower), U"АЁz@z"_1251);
  }
  for (const int tag : {kEnglish, kRussian, 0, kOther}) {
    EXPECT_EQ(changed(U"ая@«"_1251, tag, to_oem), "\xA0\xEF@\"");
    EXPECT_EQ(changed("\xA0\xEF@\xCD", tag, from_oem), U"ая@="_1251);
  }
}

TEST(StringLanguage, CaseOfOneCharacterFollowsTheTag) {
  const auto changed_at_1 = [](std::string_view before, int tag, void (ZCString::*change)(int)) {
    ZCString string = tagged(before, tag);
    (string.*change)(1);
    return text(string);
  };
  EXPECT_EQ(changed_at_1(U"яёё"_1251, kRussian, &ZCString::ToUpper), U"яЁё"_1251);
  EXPECT_EQ(changed_at_1(U"ЁЯЯ"_1251, kEnglish, &ZCString::ToLower), U"ЁяЯ"_1251);
  for (const int tag : {kGerman, kFrench, 0, kOther}) {
    EXPECT_EQ(changed_at_1(U"äÿÿ"_1252, tag, &ZCString::ToUpper), U"äŸÿ"_1252);
    EXPECT_EQ(changed_at_1(U"ÄŠŠ"_1252, tag, &ZCString::ToLower), U"ÄšŠ"_1252);
    EXPECT_EQ(changed_at_1(U"zё"_1251, tag, &ZCString::ToUpper), U"zё"_1251);
  }
}

TEST(StringLanguage, ClassesOfOneCharacterFollowTheTag) {
  const auto classes = [](unsigned char c, int tag) {
    const ZCString string = tagged({std::string(2, static_cast<char>(c))}, tag);
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
  // Letters lie in the buffer after the string, and in the tag before it.
  ZCString string = tagged("abcd", 'q');
  char* const characters = string.GetBuffer(4);
  string.ReleaseBuffer(2);
  const int tag = -static_cast<int>(sizeof(ZCStringData)) + 4;
  for (const int index : {tag, -1, 2, 3}) {
    string.ToUpper(index);
    string.ToLower(index);
    EXPECT_EQ(string.IsAlpha(index) + string.IsAlphaNum(index) + string.IsLower(index), 0);
    string.ToUpper(index);
    EXPECT_EQ(string.IsUpper(index), 0) << index;
  }
  EXPECT_EQ(std::string(characters, 4), std::string("ab\0d", 4));
  EXPECT_EQ(string.GetLanguage(), 'q');
}

TEST(StringLanguage, CaselessComparisonFollowsTheTag) {
  for (const int tag : {kEnglish, kRussian, kGerman, kFrench, 0, kOther}) {
    const bool western = tag == kGerman || tag == kFrench;
    const bool russian = tag == kEnglish || tag == kRussian;
    const ZCString upper = tagged(U"МИР"_1251, tag), word = tagged("Tables", tag);
    EXPECT_EQ(upper.CompareNoCase(U"мир"_1251.data()) == 0, !western) << tag;
    EXPECT_EQ(upper.StartsWithNoCase(U"ми"_1251.data()), russian) << tag;
    EXPECT_EQ(upper.EndsWithNoCase(U"ир"_1251.data()), russian) << tag;
    EXPECT_EQ(upper.IsFlexNoCase(2, U"ми"_1251.data()), russian) << tag;
    EXPECT_EQ(upper.StartsWithNoCase(U"мира"_1251.data()), 0) << tag;
    EXPECT_EQ(upper.IsFlexNoCase(U"амир"_1251.data()), 0) << tag;
    EXPECT_EQ(word.StartsWithNoCase("tAB") + word.IsFlexNoCase("LES"), 2) << tag;
    EXPECT_EQ(word.IsFlexNoCase(1, "ta") + word.IsFlexNoCase(7, "") + word.IsFlexNoCase("@"), 0);
    EXPECT_EQ(word.IsFlexNoCase(0, ""), 1);
    EXPECT_LT(word.CompareNoCase("tablet"), 0);
  }
}

}  // namespace
