// Tag strings: reading and writing, by the tables of docs/grammar.md.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "kz/gram_codec.h"
#include "tests/common/grammar/reference.h"

namespace {

using reference::encoded_1251;

const std::string codes = encoded_1251("NAVIRДвм");  // of each group
std::mt19937 random_number(4);

GRAMINFO random_gram() {
  GRAMINFO gram;
  const bool sparse = random_number() % 2 == 0;
  for (std::uint32_t& word : gram.word) {
    word = static_cast<std::uint32_t>(random_number());
    if (sparse) word &= static_cast<std::uint32_t>(random_number() & random_number());
  }
  if (random_number() % 8 == 0) gram.word[3] |= 65535u << 8;
  if (random_number() % 8 == 0) gram.word[1] = 1u << 16;
  return gram;
}

char random_code() {
  return random_number() % 4 == 0 ? static_cast<char>(random_number())
                                  : codes[random_number() % codes.size()];
}

TEST(TagString, IsWrittenAsThePageSays) {
  for (int i = 0; i < 5000; ++i) {
    const char code = random_code();
    const GRAMINFO gram = random_gram();
    const SEMANTICS flags{
        static_cast<std::uint32_t>(i % 3 == 0 ? 0 : random_number() & random_number())};
    const std::string wanted = reference::format(code, gram, flags.word);
    // A code may come as a signed or as an unsigned character.
    for (const int argument : {int{code}, int{static_cast<unsigned char>(code)}}) {
      std::array<char, GRAM_STRING_SIZE> out;
      out.fill('~');
      EXPECT_EQ(GramToStr(static_cast<std::int16_t>(argument), &gram, &flags, out.data()), wanted);
      EXPECT_EQ(std::string(out.data() + wanted.size() + 1, out.data() + out.size()),
                std::string(out.size() - wanted.size() - 1, '~'));
    }
  }
}

TEST(TagString, IsReadAsThePageSays) {
  const std::string often = encoded_1251(
      "ИРДВТПИРДВТПнгдаЁё!#123<>?@ACDEFGHIJKLMNOPQRSTUVWXYZ^abcdefghijklmnopqrstuvwxyz"
      "--------------###&&&&%$.=:::CCC0456789");
  const std::string alphabet = often + "|)]\\";  // few texts end early
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (auto length = random_number() % 24; length > 0; --length) {
      const std::string& from = random_number() % 16 == 0 ? alphabet : often;
      text += random_number() % 64 == 0 ? static_cast<char>(1 + random_number() % 255)
                                        : from[random_number() % from.size()];
    }
    const char code = random_code();
    reference::Reader reader{text, random_number() % 2 == 0 ? random_gram() : GRAMINFO{}};
    // Memory that ends with the text, so that the sanitizer sees a step too far.
    const std::vector<char> exact(text.c_str(), text.c_str() + text.size() + 1);
    GRAMINFO gram = reader.gram;
    SEMANTICS semantics{};
    char code_out = 0, area[2] = {0, 0};
    const bool whole = random_number() % 2 == 0;
    const char* end =
        (whole ? StrToGram : StrToGram1)(exact.data(), &code_out, &gram, &semantics, code, area);

    EXPECT_EQ(static_cast<std::size_t>(end - exact.data()),
              whole ? reader.read_all(code) : reader.read_item(code))
        << text;
    EXPECT_EQ(std::memcmp(&gram, &reader.gram, sizeof gram), 0) << code << ' ' << text;
    EXPECT_EQ(semantics.word, reader.semantics) << text;
    EXPECT_EQ(code_out, reader.code_out) << text;
    EXPECT_EQ(std::string(area, 2), reader.area) << text;
  }
}

TEST(TagString, LongestOneFitsTheDocumentedRoom) {
  GRAMINFO gram;
  for (std::uint32_t& word : gram.word) word = 0xFFFFFFFF;
  gram.word[3] = std::uint32_t{'z'} << 24 | 65534u << 8 | 0x80;
  const SEMANTICS flags{0xFFFFFFFF};
  char out[GRAM_STRING_SIZE];
  EXPECT_EQ(std::strlen(GramToStr('V', &gram, &flags, out)), std::size_t{GRAM_STRING_SIZE} - 1);
}

TEST(Semantics, AreWrittenWithAZeroIfThereAreAnyAndReadToTheEndOfTheTags) {
  char out[34] = "unchanged";
  const SEMANTICS none{0}, all{0xFFFFFFFF}, some{1u << 9 | 1u};
  EXPECT_EQ(set_semantics(out, &none), out);
  EXPECT_EQ(set_semantics(out, nullptr), out);
  EXPECT_STREQ(out, "unchanged");
  EXPECT_EQ(set_semantics(out, &some), out + 3);
  EXPECT_STREQ(out, "%NA");
  EXPECT_EQ(set_semantics(out, &all), out + 33);
  for (const char* text : {"NAx|]M", "NAx|)M", "NAx|\\M", "NAx|"}) {
    SEMANTICS back{4};
    EXPECT_EQ(get_semantics(text, &back), text + 4);
    EXPECT_EQ(back.word, some.word | 4);
  }
}

TEST(TagString, NullArgumentsAreHarmless) {
  const char text[] = "M&X1%N]";
  EXPECT_EQ(StrToGram(nullptr, nullptr, nullptr, nullptr, 'N', nullptr), nullptr);
  EXPECT_EQ(StrToGram1(nullptr, nullptr, nullptr, nullptr, 'N', nullptr), nullptr);
  EXPECT_EQ(StrToGram(text, nullptr, nullptr, nullptr, 'N', nullptr), text + 7);
  EXPECT_EQ(StrToGram1(text, nullptr, nullptr, nullptr, 'N', nullptr), text);
  EXPECT_EQ(get_semantics(nullptr, nullptr), nullptr);
  EXPECT_EQ(get_semantics("N", nullptr)[0], '\0');
  EXPECT_EQ(set_semantics(nullptr, nullptr), nullptr);
  char out[GRAM_STRING_SIZE] = "old";
  EXPECT_STREQ(GramToStr('N', nullptr, nullptr, out), "");
  EXPECT_EQ(GramToStr('N', nullptr, nullptr, nullptr), nullptr);
}

}  // namespace
