// Cross-language mapping of grammar into the word record.
#include "kz/gram_map.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "tests/common/grammar/map_reference.h"

namespace {

using kz::operator""_1251;
using kz_test::SlowMap;

// A word record at an odd address, exactly as long as the functions may touch, with its text
// buffer.
struct Word {
  std::vector<std::uint8_t> bytes = std::vector<std::uint8_t>(1 + WORD_RECORD_SIZE);
  std::string buffer = std::string(1, '\0') + std::string(63, '#');

  explicit Word(char code = 0) { view().code() = static_cast<std::uint8_t>(code); }
  std::uint8_t* record() { return bytes.data() + 1; }
  WordRecordView view() { return WordRecordView(record()); }
};

// Word records in which every condition of the rules is met often.
class RandomWords {
 public:
  std::vector<std::uint8_t> next() {
    std::vector<std::uint8_t> bytes(1 + WORD_RECORD_SIZE);
    for (std::uint8_t& byte : bytes) byte = next_byte();
    const WordRecordView view(bytes.data() + 1);
    std::ranges::copy(
        pick<const char*>({"of", "Of", "be", "BE", "oft", "b", ""}) + std::string(1, 0),
        view.word());
    view.code() = pick<std::uint8_t>({'G', 'N', 'n', 'P', 'S', 'R', 'V', U'м'_1251});
    view.context_code() = pick<std::uint8_t>({'B', 'E', 'z', 'V', 0});
    for (std::uint8_t* field : {&view.number(), &view.tense(), &view.person(), &view.aspect(),
                                &view.cases(), &view.gender(), &view.second_cases()}) {
      *field = pick<std::uint8_t>({0, 0, 1, 2, 3, 8, 32});
    }
    view.level() = 0;
    return bytes;
  }
  // Bits that are rare in one record, even in another, frequent in a third.
  std::uint8_t next_byte() {
    const auto a = random_(), b = random_();
    return static_cast<std::uint8_t>(a % 3 == 0   ? b
                                     : a % 3 == 1 ? b & b >> 8
                                                  : b & b >> 8 & b >> 16);
  }
  template <class T>
  T pick(const std::vector<T>& values) {
    return values[random_() % values.size()];
  }

 private:
  std::mt19937 random_{7};
};

template <class Fast, class Slow>
void expect_same_for_every_code(const char* name, Fast fast, Slow slow) {
  RandomWords random;
  std::vector<std::vector<std::uint8_t>> words(200);
  for (auto& word : words) word = random.next();
  for (int code = 0; code < 256; ++code) {
    // Codes arrive through signed characters too.
    for (const int argument : {code, int{static_cast<signed char>(code)}}) {
      for (std::size_t i = 0; i < words.size(); ++i) {
        std::vector<std::uint8_t> word = words[i], slow_word = words[i];
        fast(word.data() + 1, static_cast<std::int16_t>(argument));
        SlowMap map(slow_word.data() + 1);
        slow(map, static_cast<unsigned char>(code));
        ASSERT_EQ(word, slow_word) << name << " code " << argument << " word " << i;
      }
    }
  }
}

TEST(GrammarMapping, FollowsTheRulesOfEveryCode) {
  expect_same_for_every_code("er_set_rgram", er_set_rgram,
                             [](SlowMap& map, unsigned char code) { map.er_rgram(code); });
  expect_same_for_every_code("er_set_egram", er_set_egram,
                             [](SlowMap& map, unsigned char code) { map.er_egram(code); });
  expect_same_for_every_code("re_set_rgram", re_set_rgram,
                             [](SlowMap& map, unsigned char code) { map.re_rgram(code); });
  expect_same_for_every_code(
      "re_set_egram",
      [](std::uint8_t* record, std::int16_t code) { re_set_egram(record, code, "rest"); },
      [](SlowMap& map, unsigned char code) { map.re_egram(code); });
}

TEST(VerbSummary, ComesFromAnyRecordOfGrammar) {
  RandomWords words;
  for (int i = 0; i < 1000; ++i) {
    const std::vector<std::uint8_t> word = words.next();
    GRAMINFO aligned;
    std::memcpy(&aligned, word.data() + 1 + (i % 2 == 0 ? 139 : 167), sizeof aligned);
    const auto expect_same = [&](auto fast, auto slow) {
      std::vector<std::uint8_t> inside = word, outside = word, slow_word = word;
      fast(inside.data() + 1, inside.data() + 1 + (i % 2 == 0 ? 139 : 167));
      fast(outside.data() + 1, &aligned);
      SlowMap map(slow_word.data() + 1);
      map.g = i % 2 == 0 ? map.foreign : map.russian;
      (map.*slow)();
      ASSERT_EQ(inside, slow_word);
      ASSERT_EQ(outside, slow_word);
    };
    expect_same(er_set_vgram, &SlowMap::er_vgram);
    expect_same(re_set_vgram, &SlowMap::re_vgram);
  }
}

// The reading functions again, with the tags read into records of their own.
struct SlowReader {
  std::uint8_t* r;
  SlowMap map{r};

  const char* read(const char* text, unsigned char code, std::uint8_t* gram_bytes,
                   std::uint8_t& code_out) const {
    GRAMINFO gram;
    SEMANTICS semantics;
    std::memcpy(&gram, gram_bytes, 28);
    std::memcpy(&semantics, r + 195, 4);
    char read_code = static_cast<char>(code_out),
         area[2] = {static_cast<char>(r[209]), static_cast<char>(r[210])};
    text = StrToGram(text, &read_code, &gram, &semantics, code, area);
    std::memcpy(gram_bytes, &gram, 28);
    std::memcpy(r + 195, &semantics, 4);
    std::memcpy(r + 209, area, 2);
    code_out = static_cast<std::uint8_t>(read_code);
    return text;
  }
  const char* get(bool er, int mode, const char* text, unsigned char code) {
    const bool russian = mode == 0 || (mode == 2 && !er), foreign = mode == 1 || (mode == 3 && er);
    if (text[0] == '[') text += 1;
    if (russian) text = read(text, code, map.russian, r[138]);
    if (foreign) text = read(text, code, map.foreign, r[137]);
    if (text[0] == '|' && foreign && mode == 3) text = read(text + 1, code, map.russian, r[138]);
    if (text[0] == '|' && russian && !er) text = read(text + 1, code, map.foreign, r[137]);
    if (russian) er ? map.er_rgram(code) : map.re_rgram(code);
    if (foreign) er ? map.er_egram(code) : map.re_egram(code);
    return text[0] == '\\' ? text + 1 : text;
  }
};

TEST(ReadingGrammar, AddsTheTagsAndDerivesTheSummary) {
  constexpr std::string_view alphabet = U"MFSPPSET12<>-%&#[]|||\\\\NaВДРм"_1251;
  RandomWords words;
  for (int i = 0; i < 20000; ++i) {
    std::string text = i % 3 == 0 ? "" : "[";
    for (int length = words.next_byte() % 12; length != 0; --length) {
      text += alphabet[words.next_byte() % alphabet.size()];
    }
    std::vector<std::uint8_t> word = words.next(), slow_word = word;
    SlowReader slow{slow_word.data() + 1};
    const auto mode = static_cast<std::int16_t>(i % 6 - 1);
    const std::uint8_t code =
        words.pick<std::uint8_t>({'N', 'V', 'P', 'A', 'R', U'м'_1251, U'Й'_1251});
    const bool er = i / 6 % 2 == 0;
    const char* at = (er ? er_get_wgram : re_get_wgram)(mode, text.c_str(), word.data() + 1, code);
    const char* slow_at = slow.get(er, mode, text.c_str(), code);
    ASSERT_EQ(at - text.c_str(), slow_at - text.c_str()) << text << " mode " << mode;
    ASSERT_EQ(word, slow_word) << text << " mode " << mode;
  }
}

TEST(ReadingGrammar, BehindAWordTakesTheBracketsOfTheCurrentCode) {
  constexpr const char* text = "[SM|FP]\\ rest";
  for (const char code : U"NPVм"_1251) {
    Word er(code), re(code), er_wanted(code), re_wanted(code);
    EXPECT_EQ(er_get_rgram_gt(text, er.record()), er_get_wgram(0, text, er_wanted.record(), code));
    EXPECT_EQ(er.bytes, er_wanted.bytes);
    EXPECT_EQ(re_get_egram_gt(text, re.record()), re_get_wgram(1, text, re_wanted.record(), code));
    EXPECT_EQ(re.bytes, re_wanted.bytes);
  }
}

TEST(ReadingGrammar, BehindAWordWithoutBracketsGoesByTheCurrentCode) {
  const struct {
    char code;
    std::string_view text;
    int read, cases, person, number;
    char new_code;
  } rows[] = {
      {'P', U"ВДx"_1251, 2, 4, 7, 7, 'P'}, {'P', U"РТПВ"_1251, 4, 8, 7, 7, 'P'},
      {'P', U"ВИ"_1251, 2, 0, 7, 7, 'P'},  {'P', U"КВ"_1251, 0, 7, 7, 7, 'P'},
      {'P', "\\", 0, 7, 7, 7, 'P'},        {'S', U"В"_1251, 0, 7, 3, 7, 'S'},
      {'n', "MS", 0, 7, 7, 1, 'N'},        {'R', U"В"_1251, 0, 7, 7, 7, 'R'},
      {'r', "1", 0, 7, 7, 7, 'r'},         {'V', U"В"_1251, 0, 7, 7, 7, 'V'},
  };
  for (const auto& row : rows) {
    Word er(row.code), re(row.code);
    for (Word* word : {&er, &re}) {
      word->view().cases() = word->view().person() = word->view().number() = 7;
    }
    EXPECT_EQ(er_get_rgram_gt(row.text.data(), er.record()), row.text.data() + row.read);
    EXPECT_EQ(er.view().cases(), row.cases) << row.text;
    EXPECT_EQ(er.view().person(), row.person) << row.text;
    EXPECT_EQ(er.view().number(), row.number) << row.text;
    EXPECT_EQ(er.view().code(), row.new_code) << row.text;
    EXPECT_EQ(re_get_egram_gt(row.text.data(), re.record()), row.text.data());
    EXPECT_EQ(re.view().person(), row.code == 'S' ? 3 : 7) << row.text;
    EXPECT_EQ(re.view().cases(), 7) << row.text;
  }
}

TEST(RestOfTranslation, IsAppendedAboveLevelFour) {
  const struct {
    int level;
    const char *rest, *wanted;
  } rows[] = {{5, "abc", "x1abc"}, {5, "2abc", "x2abc"}, {200, "-", "x1-"}, {5, "", "x"},
              {4, "abc", "x"},     {0, "2", "x"},        {5, nullptr, "x"}};
  for (const auto& [level, rest, wanted] : rows) {
    Word word;
    word.record()[15] = static_cast<std::uint8_t>(level);
    re_set_egram(word.record(), 'N', rest);  // no buffer
    char* const buffer = word.buffer.data();
    std::memcpy(word.record() + 269, &buffer, sizeof buffer);
    word.buffer.replace(0, 2, std::string("x") + '\0');
    re_set_egram(word.record(), 'N', rest);
    EXPECT_STREQ(word.buffer.c_str(), wanted);
  }
}

TEST(RestOfTranslation, BeginsBehindTheGrammarWithItsBackslash) {
  Word word('N');
  word.view().level() = 5;
  word.view().set_text_buffer(word.buffer.data());
  constexpr const char* text = "[P]\\7";
  EXPECT_EQ(re_get_wgram(1, text, word.record(), 'N'), text + 4);
  EXPECT_STREQ(word.buffer.c_str(), "1\\7");
}

TEST(VerbalCodes, AreOneInTheSyntax) {
  for (int code = 0; code < 256; ++code) {
    const bool verbal =
        std::string_view("EGVZegv").find(static_cast<char>(code)) != std::string_view::npos;
    EXPECT_EQ(xv_syn(code), verbal ? 'V' : code);
    EXPECT_EQ(xv_syn(static_cast<signed char>(code)), verbal ? 'V' : code);
  }
}

TEST(Equivalent, IsTheKeyOrTheFirstCapitalOutsideOfBrackets) {
  const struct {
    std::string_view text, key;
    int found;  // -1 for none
  } rows[] = {
      {"a{key}b", "key", 3}, {"a{X}b[Y]cZ", "q", 9}, {"{X}[a]b", "bc", 6}, {U"{Д}яЁ"_1251, "q", 4},
      {"abcA", "cx", 2},     {"a{X", "b", -1},       {"[A}B", "b", -1},    {"{[}A", "b", 3},
      {"lower", "q", -1},    {"", "q", -1},          {"", "", -1},         {"ab", "", 1},
      {"a{b}", "{c", -1},    {U"яжД"_1251, "q", 2},
  };
  for (const auto& [text, key, found] : rows) {
    EXPECT_EQ(get_equ(text.data(), key.data()), found < 0 ? nullptr : text.data() + found) << text;
  }
}

TEST(GrammarMapping, TakesNullArguments) {
  constexpr const char* text = "[S]\\";
  GRAMINFO gram{};
  Word word('N'), untouched('N');
  EXPECT_EQ(er_get_wgram(1, nullptr, word.record(), 'N'), nullptr);
  EXPECT_EQ(re_get_wgram(1, nullptr, word.record(), 'N'), nullptr);
  EXPECT_EQ(er_get_rgram_gt(nullptr, word.record()), nullptr);
  EXPECT_EQ(re_get_egram_gt(nullptr, word.record()), nullptr);
  er_set_vgram(word.record(), nullptr);
  re_set_vgram(word.record(), nullptr);
  EXPECT_EQ(word.bytes, untouched.bytes);
  EXPECT_EQ(er_get_wgram(1, text, nullptr, 'N'), text);
  EXPECT_EQ(re_get_wgram(1, text, nullptr, 'N'), text);
  EXPECT_EQ(er_get_rgram_gt(text, nullptr), text);
  EXPECT_EQ(re_get_egram_gt(text, nullptr), text);
  er_set_vgram(nullptr, &gram);
  re_set_vgram(nullptr, &gram);
  er_set_rgram(nullptr, 'N');
  er_set_egram(nullptr, 'N');
  re_set_rgram(nullptr, 'N');
  re_set_egram(nullptr, 'N', text);
  EXPECT_EQ(get_equ(nullptr, "a"), nullptr);
  EXPECT_EQ(get_equ("a", nullptr), nullptr);
}

}  // namespace
