// Tag strings: reading and writing.
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

constexpr std::uint32_t no_paradigm = 65535u << 8;

struct Result {
  GRAMINFO gram{};
  SEMANTICS semantics{};
  char code = 0;
  char area[2] = {0, 0};
  std::size_t end = 0;
};

bool operator==(const GRAMINFO& a, const GRAMINFO& b) { return std::memcmp(&a, &b, sizeof a) == 0; }

using ReadFunction = const char*(const char*, char*, GRAMINFO*, SEMANTICS*, int, char*);

// Reads from memory that ends with the text, so that the sanitizer sees a step too far.
Result read(const std::string& text, char code, Result to = {},
            ReadFunction* function = StrToGram) {
  const std::vector<char> exact(text.c_str(), text.c_str() + text.size() + 1);
  const char* end = function(exact.data(), &to.code, &to.gram, &to.semantics, code, to.area);
  to.end = static_cast<std::size_t>(end - exact.data());
  return to;
}

std::string write(char code, const GRAMINFO& gram, std::uint32_t semantics = 0) {
  const SEMANTICS flags{semantics};
  std::array<char, GRAM_STRING_SIZE + 8> out;
  out.fill('~');
  EXPECT_EQ(GramToStr(code, &gram, &flags, out.data()), out.data());
  const std::size_t length = std::strlen(out.data());
  EXPECT_LT(length, std::size_t{GRAM_STRING_SIZE});
  EXPECT_EQ(std::string(out.data() + length + 1, out.data() + out.size()),
            std::string(out.size() - length - 1, '~'));
  return out.data();
}

// One code of each group.
const std::string codes = "NAVIR";

TEST(TagString, IsWrittenAndReadAsDocumented) {
  struct Example {
    char code;
    const char* text;
    const char* canonical;  // of a record without paradigm, after reading the text
  };
  const Example examples[] = {
      {'N', "SM%NA#5", "MS%NA"},
      {'N', "SM#12a:3%NA", "MS#12a:3%NA"},
      {'N', "S-P", "S-P"},
      {'N', "-P", "S-P"},
      {'N', "-S", "P-S"},
      {'N', "-MT", "M-T"},
      {'N', "-M-ST", "MP-ST"},
      {'N', "3И", ""},
      {'N', "ИР", "ИР"},
      {'V', "И", "И"},
      {'V', "ДИВ", "ИВ"},
      {'V', "CВД", "CД"},
      {'V', "CВ:Д", "CВ:Д"},
      {'V', "C:Д", "Д"},
      {'V', "CЕM", "M"},
      {'V', "-vE-E", "-EE-V"},
      {'V', "13", "3"},
      {'V', "PSMFn1ИР<T", "PSMFn1Р<T"},
      {'I', "ИРS-P", "PSР"},
      {'R', "2ДP", "P"},
      {'A', "?P#", "P"},
      {'A', "=VПS", "SП"},
      {'A', "-=NP", "S"},
      {'N', "#12a:300", "#12a:44"},
      {'N', "#12:M", "M#12"},
      {'N', "#65536", ""},
      {'N', "#00", "#0"},
      {'N', "#99999999999", ""},
      {'N', "#7ж$.&40", "$.&8#7ж"},
      {'Q', "$M&3%В|x", "$&3M%В"},
      {'W', "$M&3#5%В", "$&3%В"},
  };
  for (const auto& [code, text, canonical] : examples) {
    Result start;
    start.gram.word[3] = no_paradigm;
    const Result result = read(encoded_1251(text), code, start);
    EXPECT_EQ(write(code, result.gram, result.semantics.word), encoded_1251(canonical))
        << code << ' ' << text;
  }
}

TEST(TagString, EndsAtABracketABackslashABarOrTheZero) {
  struct End {
    const char* text;
    std::size_t whole, item;  // what StrToGram and StrToGram1 return
  };
  const End ends[] = {
      {"", 0, 0},        {")x", 1, 0},   {"MS)x", 3, 0},   {"MS]x", 3, 0}, {"MS\\x", 3, 0},
      {"MS|x", 2, 0},    {"|x", 0, 0},   {"-", 1, 1},      {"-|x", 1, 1},  {"-]x", 2, 1},
      {"-MT", 3, 2},     {"=NP", 3, 1},  {"=", 1, 1},      {"=]x", 2, 1},  {"=|x", 1, 1},
      {"#12a:3M", 7, 5}, {"#M", 2, 0},   {"#5:x", 4, 1},   {"&X1M", 4, 2}, {"&X", 2, 1},
      {"&", 1, 0},       {"&12M", 4, 2}, {"%N|A]x", 5, 4}, {"%", 1, 1},    {"-%N", 3, 3},
  };
  for (const auto& [text, whole, item] : ends) {
    EXPECT_EQ(read(text, 'N').end, whole) << text;
    EXPECT_EQ(read(text, 'N', {}, StrToGram1).end, item) << text;
  }
}

TEST(TagString, KeepsTheLatinTagAndTheCodeForTheCaller) {
  Result result = read("&X1", 'N');
  EXPECT_EQ(std::string(result.area, 2), "X1");
  EXPECT_EQ(result.code, 0) << "no letter of the group was read";
  result = read("&XM", 'N');
  EXPECT_EQ(result.area[0], 'X');
  EXPECT_EQ(result.gram.word[1], unsigned{GRAM_MASCULINE});
  EXPECT_EQ(result.code, 'N');
  EXPECT_EQ(read("-=VE", 'N').code, 'V');
  EXPECT_EQ(read("M", 'W').code, 0) << "a code without group";
  EXPECT_EQ(read("&1", 'N').area[0], 0);
}

TEST(TagString, MarksOfAmpersandGoIntoTheLastWord) {
  const GRAMINFO gram = read(encoded_1251("&аР12&Д&ёЖ"), 'W').gram;
  EXPECT_EQ(gram.word[6],
            static_cast<std::uint32_t>(static_cast<unsigned char>(encoded_1251("ё")[0])) |
                1u << 14 | 1u << 15 | 12u << 19);
}

// What reading the noun's tag of a bit sets besides.
std::uint32_t implied(char group, const reference::Bit& row) {
  if (group != 'N') return 0;
  return row.name == "no-plural" ? GRAM_SINGULAR : row.name == "no-singular" ? GRAM_PLURAL : 0;
}

// What a bit reads back as, when it alone is set, written and read. Everything lost on the way is
// listed here.
GRAMINFO after_round_trip(char group, std::uint32_t word, std::uint32_t bit, GRAMINFO start) {
  GRAMINFO kept = start;
  kept.word[word] |= 1u << bit;
  const auto in = [bit](std::uint32_t first, std::uint32_t last) {
    return bit >= first && bit <= last;
  };
  if (word == 0) return bit == 0 || bit == 3 ? kept : start;
  if (word == 6 && in(19, 23)) return kept;
  if (word == 1 && in(16, 21)) {
    if (group == 'R') return start;                                 // not written
    if (bit == 16 && (group == 'N' || group == 'A')) return start;  // the nominative alone
    return kept;
  }
  if (word == 5 && in(16, 17)) return group == 'V' ? kept : start;  // a noun's is not read
  if (word == 2 && in(0, 5)) return group == 'V' ? kept : start;
  if (word == 4 && in(8, 13)) {
    if (group == 'V') start.word[1] |= 1u << (16 + bit - 8);  // alone it reads as the case set
    return start;
  }
  if (group == 'A' && word == 4 && bit == 16) return start;  // "?" is only read
  for (const reference::Bit& row : reference::page().bits) {
    if (row.word != word || row.bit != bit || !row.tags.contains(group)) continue;
    kept.word[1] |= implied(group, row);
    return kept;
  }
  return start;  // a bit without tag
}

TEST(TagString, EverySingleBitReadsBackOrIsAKnownLoss) {
  for (const char code : codes) {
    for (const std::uint32_t word : {0u, 1u, 2u, 4u, 5u, 6u}) {
      for (std::uint32_t bit = 0; bit < 32; ++bit) {
        Result start;
        start.gram.word[3] = no_paradigm;
        GRAMINFO gram = start.gram;
        gram.word[word] |= 1u << bit;
        const std::string text = write(code, gram);
        EXPECT_TRUE(read(text, code, start).gram == after_round_trip(code, word, bit, start.gram))
            << code << " word " << word << " bit " << bit << ": " << text;
      }
    }
  }
}

TEST(TagString, AnySetOfFlagsReadsBack) {
  std::mt19937 random(2);
  for (int i = 0; i < 3000; ++i) {
    const char code = codes[random() % codes.size()];
    GRAMINFO gram{};
    gram.word[3] = no_paradigm;
    for (const reference::Bit& row : reference::page().bits) {
      const bool lost = code == 'A' && row.tags.contains('A') && row.tags.at('A') == "?";
      if (!row.tags.contains(code) || lost || random() % 4 != 0) continue;
      gram.word[row.word] |= 1u << row.bit;
      gram.word[1] |= implied(code, row);
    }
    Result start;
    start.gram.word[3] = no_paradigm;
    EXPECT_TRUE(read(write(code, gram), code, start).gram == gram) << write(code, gram);
  }
}

TEST(TagString, ParadigmReadsBackButForNegativeBasesAndOtherLetters) {
  const std::string letters = encoded_1251("azAZаяЁё") + '\0';
  std::mt19937 random(3);
  for (std::uint32_t number = 0; number < 65535; number += 13) {
    const auto letter = static_cast<unsigned char>(letters[random() % letters.size()]);
    const std::uint32_t paradigm = number << 8 | std::uint32_t{letter} << 24 | random() % 128;
    GRAMINFO gram{};
    gram.word[3] = paradigm;
    for (const char code : {'N', 'A', 'V'}) {
      const std::string text = write(code, gram);
      EXPECT_EQ(read(text, code).gram.word[3], paradigm) << text;
    }
  }
  const auto back = [](std::uint32_t paradigm) {
    GRAMINFO gram{};
    gram.word[3] = paradigm;
    return read(write('N', gram), 'N').gram.word[3];
  };
  EXPECT_EQ(back(5 << 8 | 0x80), 5u << 8) << "written as :-128, which is no number to the reader";
  EXPECT_EQ(back(5 << 8 | 0xFF), 5u << 8);
  EXPECT_EQ(write('N', {{0, 0, 0, 5 << 8 | 0xFF, 0, 0, 0}}), "#5") << "base 255 is none";
  EXPECT_EQ(back(5 << 8 | std::uint32_t{'!'} << 24), 5u << 8);
  EXPECT_EQ(back(no_paradigm | 7), 0u) << "number 65535 is not written at all";
}

GRAMINFO random_gram(std::mt19937& random) {
  GRAMINFO gram;
  const bool sparse = random() % 2 == 0;
  for (std::uint32_t& word : gram.word) {
    word = static_cast<std::uint32_t>(random());
    if (sparse) word &= static_cast<std::uint32_t>(random() & random());
  }
  return gram;
}

TEST(TagString, WritesWhatTheReferenceWrites) {
  std::mt19937 random(4);
  for (int i = 0; i < 5000; ++i) {
    const auto code = static_cast<char>(i);
    const GRAMINFO gram = random_gram(random);
    const auto semantics = static_cast<std::uint32_t>(i % 3 == 0 ? 0 : random() & random());
    EXPECT_EQ(write(code, gram, semantics), reference::format(code, gram, semantics));
  }
}

TEST(TagString, ReadsWhatTheReferenceReads) {
  const std::string alphabet = encoded_1251(
      "ИРДВТПИРДВТПнгдаЁё!#123<>?@ACDEFGHIJKLMNOPQRSTUVWXYZ^abcdefghijklmnopqrstuvwxyz"
      "--------------###&&&&%$.=:::CCC0456789|)]\\");
  const std::string often = alphabet.substr(0, alphabet.size() - 4);  // few texts end early
  std::mt19937 random(5);
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (auto length = random() % 24; length > 0; --length) {
      const std::string& from = random() % 16 == 0 ? alphabet : often;
      text +=
          random() % 64 == 0 ? static_cast<char>(1 + random() % 255) : from[random() % from.size()];
    }
    const char code = random() % 8 == 0 ? static_cast<char>(random()) : codes[random() % 5];
    Result start;
    if (random() % 2 == 0) start.gram = random_gram(random);
    const bool whole = random() % 2 == 0;
    const Result result = read(text, code, start, whole ? StrToGram : StrToGram1);

    reference::Reader reader{text, start.gram};
    EXPECT_EQ(result.end, whole ? reader.read_all(0, code) : reader.read_item(0, code)) << text;
    EXPECT_TRUE(result.gram == reader.gram) << code << ' ' << text;
    EXPECT_EQ(result.semantics.word, reader.semantics) << text;
    EXPECT_EQ(result.code, reader.code_out) << text;
    EXPECT_EQ(std::string(result.area, 2), std::string(reader.area, 2)) << text;
  }
}

TEST(TagString, LongestOneFitsTheDocumentedRoom) {
  GRAMINFO gram;
  for (std::uint32_t& word : gram.word) word = 0xFFFFFFFF;
  gram.word[3] = std::uint32_t{'z'} << 24 | 65534u << 8 | 0x80;
  EXPECT_EQ(write('V', gram, 0xFFFFFFFF).size(), std::size_t{GRAM_STRING_SIZE} - 1);
}

TEST(TagString, CodeMayBeASignedCharacter) {
  GRAMINFO gram{};
  gram.word[1] = GRAM_NEUTER;
  char out[GRAM_STRING_SIZE];
  const auto code = static_cast<unsigned char>(encoded_1251("Д")[0]);
  EXPECT_STREQ(GramToStr(code, &gram, nullptr, out), "N#0");
  EXPECT_STREQ(GramToStr(static_cast<std::int16_t>(code - 256), &gram, nullptr, out), "N#0");
  GRAMINFO back{};
  StrToGram("N#0", nullptr, &back, nullptr, code - 256, nullptr);
  EXPECT_TRUE(back == gram);
}

TEST(Semantics, EveryFlagHasItsLetterInTheWrittenOrder) {
  const SEMANTICS all{0xFFFFFFFF};
  char out[34];
  EXPECT_EQ(set_semantics(out, &all), out + 33);
  EXPECT_EQ(out, encoded_1251("%@NAWSOTPDIQnZCpMFGLarsd1234ioВТП"));
  for (std::uint32_t bit = 0; bit < 32; ++bit) {
    const SEMANTICS one{1u << bit};
    EXPECT_EQ(set_semantics(out, &one), out + 2);
    EXPECT_EQ(out, std::string("%") + reference::semantic_letters()[bit]);
    SEMANTICS back{0};
    EXPECT_EQ(get_semantics(out + 1, &back), out + 2);
    EXPECT_EQ(back.word, one.word);
  }
  for (const char* text : {"NAx|]M", "NAx|)M", "NAx|\\M"}) {
    SEMANTICS back{4};
    EXPECT_EQ(get_semantics(text, &back), text + 4);
    EXPECT_EQ(back.word, 4u | 1u << 9 | 1u << 0);
  }
}

TEST(Semantics, NoFlagsWriteNothing) {
  char out[] = "unchanged";
  const SEMANTICS none{0};
  EXPECT_EQ(set_semantics(out, &none), out);
  EXPECT_EQ(set_semantics(out, nullptr), out);
  EXPECT_STREQ(out, "unchanged");
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
