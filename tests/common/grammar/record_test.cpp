// The classes that hold the grammar of a word.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>

#include "kz/gram_record.h"

namespace {

CGramInfo with(std::uint32_t word1, std::uint32_t word4 = 0) {
  CGramInfo info;
  info.G().word[1] = word1;
  info.G().word[4] = word4;
  return info;
}

TEST(GramInfo, HoldsTheRecordsAtTheirPlaces) {
  CWordGram word;
  const auto offset = [&word](const void* member) {
    return static_cast<const char*>(member) - reinterpret_cast<const char*>(&word);
  };
  EXPECT_EQ(offset(&word.G()), static_cast<std::ptrdiff_t>(sizeof(void*)));
  EXPECT_EQ(offset(&word.S()), static_cast<std::ptrdiff_t>(sizeof(void*) + 28));
  EXPECT_EQ(offset(&word.GetWord()), static_cast<std::ptrdiff_t>(sizeof(void*) + 32));
  EXPECT_EQ(word.GetGramInfo(), &word.G());
  EXPECT_EQ(word.GetSemantics(), &word.S());
}

void expect_holds(CGramInfo info, const GRAMINFO& gram, std::uint32_t semantics) {
  EXPECT_EQ(std::memcmp(&info.G(), &gram, sizeof gram), 0);
  EXPECT_EQ(info.S().word, semantics);
}

TEST(GramInfo, StartsClearedAndCopiesAndClearsRecords) {
  const GRAMINFO gram = {{1, 2, 3, 4, 5, 6, 7}}, cleared = {};
  const SEMANTICS semantics = {8};
  CGramInfo info;
  expect_holds(info, cleared, 0);
  info.SetGramInfo(&gram);
  info.SetSemantics(&semantics);
  info.SetGramInfo(nullptr);
  info.SetSemantics(nullptr);
  expect_holds(info, gram, 8);
  CGramInfo copy = info, other = info;
  copy.ClearGramInfo();
  expect_holds(copy, cleared, 8);
  other.ClearSemantics();
  expect_holds(other, gram, 0);
  info.ClearAllGramInfo();
  expect_holds(info, cleared, 0);
}

TEST(GramInfo, NumberComesFromPluralSingularAndNoSingular) {
  for (std::uint32_t bits = 0; bits < 16; ++bits) {
    const bool singular = bits & 1, plural = bits & 2, no_singular = bits & 8;
    const int expected = singular && plural ? 2 : plural || no_singular ? 1 : 0;
    EXPECT_EQ(with(bits << 3).GetNumber(), expected) << bits;
  }
}

TEST(GramInfo, SetNumberKeepsToTheFormsOfTheWord) {
  // Bits 3 to 6: singular 1, plural 2, no plural 4, no singular 8.
  constexpr struct {
    std::int16_t number;
    std::uint32_t before, after;
  } rows[] = {{0, 2, 1}, {0, 10, 8}, {1, 1, 2},  {1, 5, 4}, {2, 0, 3},
              {2, 4, 5}, {2, 9, 11}, {2, 8, 10}, {3, 1, 1}, {-1, 2, 2}};
  for (const auto& [number, before, after] : rows) {
    CGramInfo info = with(before << 3);
    info.SetNumber(number);
    EXPECT_EQ(info.G().word[1], after << 3) << number << ' ' << before;
  }
}

TEST(GramInfo, GenderAddsUp) {
  const std::uint32_t bits[] = {4, 1, 2, 3};
  for (std::int16_t gender = 0; gender < 4; ++gender) {
    CGramInfo info;
    info.SetGender(gender);
    EXPECT_EQ(info.G().word[1], bits[gender]);
    EXPECT_EQ(info.GetGender(), gender);
    EXPECT_EQ(info.GetGender1(), gender == 3 ? 1 : gender);
    info.SetGender(4);
    info.SetGender(-1);
    EXPECT_EQ(info.G().word[1], bits[gender]);
    info.SetGender(3);
    EXPECT_EQ(info.G().word[1], bits[gender] | 3);
  }
}

TEST(GramInfo, AspectGoesByMarkAndFlagBeforeTheAspectBits) {
  constexpr std::uint32_t perfective = 1u << 26, imperfective = 1u << 27, mark = 1u << 9;
  for (const std::uint32_t bits : {0u, imperfective, perfective | imperfective}) {
    EXPECT_EQ(with(bits).IsPerfective(), 0);
    EXPECT_EQ(with(bits | mark).IsPerfective(), 1);
  }
  EXPECT_EQ(with(perfective).IsPerfective(), 1);
  EXPECT_EQ(with(perfective | mark, 1u << 17).IsPerfective(), 0);
}

TEST(GramInfo, FieldsStandAtTheirBits) {
  // What each bit of the words changes: code, person, cases, third cases, tenses, reflexive.
  for (std::size_t word = 0; word < 7; ++word) {
    for (std::uint32_t bit = 0; bit < 32; ++bit) {
      CGramInfo info;
      info.G().word[word] = 1u << bit;
      const auto at = [=](std::size_t in, std::uint32_t low, std::uint32_t high) {
        return word == in && bit >= low && bit <= high ? 1 << (bit - low) : 0;
      };
      EXPECT_EQ(static_cast<unsigned char>(info.GetSyn()), at(2, 8, 15));
      EXPECT_EQ(info.GetPerson(), at(5, 16, 17));
      EXPECT_EQ(info.GetCase(), at(1, 16, 21));
      EXPECT_EQ(info.GetCase2(), at(4, 8, 13));
      EXPECT_EQ(info.GetTensePast(), at(1, 10, 10));
      EXPECT_EQ(info.GetTensePresent(), at(1, 13, 13));
      EXPECT_EQ(info.GetTenseFuture(), at(1, 14, 14));
      EXPECT_EQ(info.IsReflexive(), at(1, 22, 22) | at(1, 28, 28));
    }
  }
}

TEST(GramInfo, ParadigmIsSetWholeAndBuiltBack) {
  CGramInfo info;
  info.G().word[3] = 0xFFFFFFFF;
  info.SetParadigmInfo(0x12345678, 'b');
  EXPECT_EQ(info.G().word[3], 0x34u | 0x5678u << 8 | std::uint32_t{'b'} << 24);
  EXPECT_EQ(info.MakeParadigm(), 0x00345678u);
  info.SetParadigmInfo(std::int16_t{-2}, std::int16_t{0x1FE}, static_cast<char>(0xE0));
  EXPECT_EQ(info.G().word[3], 0xFEu | 0xFFFEu << 8 | 0xE0u << 24);
  EXPECT_EQ(info.MakeParadigm(), 0xFFFEFFFEu) << "the base is a signed byte";
  info.SetParadigmInfo(std::int16_t{-1}, std::int16_t{5}, '\0');
  EXPECT_EQ(info.MakeParadigm(), 0xFFFFFFFFu);
}

TEST(WordGram, KeepsTheWordBesideTheRecords) {
  CWordGram word;
  EXPECT_TRUE(word.GetWord().IsEmpty());
  word.SetWord("table");
  const ZCString other = "chair";
  CWordGram copy = word;
  word.SetWord(other);
  EXPECT_STREQ(word.GetWord(), "chair");
  EXPECT_STREQ(copy.GetWord(), "table");
  copy.SetWord(nullptr);
  EXPECT_TRUE(copy.GetWord().IsEmpty());
  ZCObject* object = new CWordGram(word);
  delete object;
}

}  // namespace
