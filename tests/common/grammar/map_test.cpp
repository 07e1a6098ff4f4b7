// What the examples of docs/grammar.md do not show of the mapping.
#include "kz/gram_map.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "text/literal.h"

namespace {

using kz::operator""_1251;

// A word record at an odd address, exactly as long as the functions may touch.
struct Word {
  std::vector<std::uint8_t> bytes = std::vector<std::uint8_t>(1 + WORD_RECORD_SIZE);

  explicit Word(char code = 0) { view().code() = static_cast<std::uint8_t>(code); }
  std::uint8_t* record() { return bytes.data() + 1; }
  WordRecordView view() { return WordRecordView(record()); }
};

TEST(ReadingGrammar, AddsToWhatTheRecordHolds) {
  Word word;
  for (const char* text : {"[M&X1%A]", "[@&Y%N]"}) er_get_wgram(3, text, word.record(), 'N');
  EXPECT_EQ(word.view().foreign_gram().word[1], unsigned{GRAM_MASCULINE | GRAM_ANIMATE});
  EXPECT_EQ(word.view().semantics().word, 1u << 0 | 1u << 9);
  EXPECT_EQ(std::string(word.view().latin_area(), 2), "Y1");
}

TEST(RestOfTranslation, IsAppendedAboveLevelFour) {
  const struct {
    int level;
    const char *rest, *wanted;
  } rows[] = {{5, "abc", "x1abc"}, {5, "2abc", "x2abc"}, {200, "-", "x1-"}, {5, "", "x"},
              {4, "abc", "x"},     {0, "2", "x"},        {5, nullptr, "x"}};
  for (const auto& [level, rest, wanted] : rows) {
    Word word;
    word.view().level() = static_cast<std::uint8_t>(level);
    re_set_egram(word.record(), 'N', rest);  // no buffer
    char buffer[8] = "x";
    word.view().set_text_buffer(buffer);
    re_set_egram(word.record(), 'N', rest);
    EXPECT_STREQ(buffer, wanted);
  }
  // It begins after the grammar, with the backslash that is then stepped over.
  Word word('N');
  char buffer[8] = "";
  word.view().level() = 5;
  word.view().set_text_buffer(buffer);
  EXPECT_STREQ(re_get_wgram(1, "[P]\\7", word.record(), 'N'), "7");
  EXPECT_STREQ(buffer, "1\\7");
}

TEST(VerbalCodes, AreOneInTheSyntax) {
  for (int code = 0; code < 256; ++code) {
    const int wanted = std::strchr("EGVZegv", code) != nullptr && code != 0 ? 'V' : code;
    EXPECT_EQ(xv_syn(code), wanted);
    EXPECT_EQ(xv_syn(code - 256), wanted);
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
  EXPECT_EQ(get_equ(nullptr, "a"), nullptr);
  EXPECT_EQ(get_equ("a", nullptr), nullptr);
}

TEST(GrammarMapping, TakesNullArguments) {
  const GRAMINFO gram{};
  Word word('N'), untouched('N');
  for (const char* text : {"[S]\\", static_cast<const char*>(nullptr)}) {
    std::uint8_t* const record = text == nullptr ? word.record() : nullptr;
    EXPECT_EQ(er_get_wgram(1, text, record, 'N'), text);
    EXPECT_EQ(re_get_wgram(1, text, record, 'N'), text);
    EXPECT_EQ(er_get_rgram_gt(text, record), text);
    EXPECT_EQ(re_get_egram_gt(text, record), text);
    er_set_vgram(record, record == nullptr ? &gram : nullptr);
    re_set_vgram(record, record == nullptr ? &gram : nullptr);
  }
  er_set_rgram(nullptr, 'N');
  er_set_egram(nullptr, 'N');
  re_set_rgram(nullptr, 'N');
  re_set_egram(nullptr, 'N', "[S]");
  EXPECT_EQ(word.bytes, untouched.bytes);
}

}  // namespace
