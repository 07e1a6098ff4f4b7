// Plain functions over entry text: worked cases in buffers of the exact size.
#include "kz/entry_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include "kz/strutil.h"
#include "text/literal.h"

using kz::operator""_1251;
using Text = std::string;

namespace {

// A text on the heap with nothing after its zero, so that the sanitizer sees every overrun.
class Exact {
 public:
  explicit Exact(std::string_view source) : text_(new char[source.size() + 1]) {
    *std::copy(source.begin(), source.end(), text_.get()) = 0;
  }
  char* get() { return text_.get(); }

 private:
  std::unique_ptr<char[]> text_;
};

TEST(EntryText, SkipsLabels) {
  EXPECT_STREQ(SkipLabels("a)b)word"), "word");
  EXPECT_STREQ(SkipLabels("abcdefgh)x"), "x");
  EXPECT_STREQ(SkipLabels("abcdefghij)x"), "abcdefghij)x");
  EXPECT_STREQ(SkipLabels("a)b;c)word"), "b;c)word");
  EXPECT_STREQ(SkipLabels("a)"), "");
  EXPECT_EQ(SkipLabels(nullptr), nullptr);
}

TEST(EntryText, SkipsLabelsAndBlocksAndCutsABracketGroup) {
  const struct {
    const char *source, *skipped, *whole;
  } cases[] = {{"a) [x[y]z] word [1] 2;[3]", "word ;[3]", "a) [x[y]z] word ;[3]"},
               {"a)word [1]", "word ", "a)word "},
               {"word;[1]", "word;[1]", "word;[1]"},
               {"[x] [y];z", ";z", "[x] ;z"},
               {"a)  [x]z", " ", "a)  "},
               {"[x[y]", "", "[x[y]"},
               {"", "", ""}};
  for (const auto& c : cases) {
    Exact source(c.source);
    EXPECT_STREQ(SkipCLabels(source.get()), c.skipped);
    EXPECT_STREQ(source.get(), c.whole);
  }
}

TEST(EntryText, TakesInflectionsUpToTheirStop) {
  KzWordRecord word = {};
  const struct {
    const char *source, *inflection, *stop;
  } cases[] = {{"%abCd%x", "%abCd", "%x"}, {"%abC:x", "%ab", "C:x"},  {"]a]", "]a", "]"},
               {"%a\\b", "%a", "\\b"},     {"%abC", "%abC", nullptr}, {"", "", nullptr}};
  for (const auto& c : cases) {
    Exact source(c.source);
    EXPECT_STREQ(GetInf(source.get(), &word), c.stop);
    EXPECT_STREQ(word.inflection, c.inflection);
    EXPECT_STREQ(source.get(), c.source);
  }
  kz_misc_free(word.inflection);
}

TEST(EntryText, TakesExtendedSynonymCodes) {
  const struct {
    Text source, code, rest;
  } cases[] = {{"Abc [x]", "Abc", "[x]"},
               {Text(U"ABЖслово"_1251), Text(U"ABЖ"_1251), Text(U"слово"_1251)},
               {"123456  x", "123456", " x"},
               {"1234567 x", "", "1234567 x"},
               {"Ab", "Ab", ""},
               {"AWb ", "old", "AWb "},
               {"", "", ""}};
  for (const auto& c : cases) {
    KzWordRecord word = {nullptr, "old"};
    Exact source(c.source);
    EXPECT_EQ(GetExtSyn(source.get(), &word), c.rest);
    EXPECT_EQ(word.extended_code, c.code);
  }
  KzWordRecord word = {};
  EXPECT_EQ(GetExtSyn(nullptr, &word), nullptr);
  EXPECT_STREQ(GetExtSyn("NAb", nullptr), "NAb");
}

TEST(EntryText, FindsAnAttributeBlockNearTheStart) {
  EXPECT_STREQ(GetAttrBegin("ab[x]"), "[x]");
  EXPECT_STREQ(GetAttrBegin("123456[x]"), "[x]");
  for (const char* none : {"1234567[x]", "a{[x]", "a][x]", "a;[x]", "a [x]", "a\\[x]", "[", ""})
    EXPECT_EQ(GetAttrBegin(none), none);
}

TEST(EntryText, GroupsTheVerbCodes) {
  for (int c = 0; c < 256; ++c) {
    const char part_text[] = {static_cast<char>(c), 'x', 0};
    const bool verb = c != 0 && std::string("EGUVXYZeghvz").find(part_text[0]) != std::string::npos;
    EXPECT_EQ(DicEntryGetSynPartCode(part_text), verb ? 'V' : c);
  }
}

TEST(EntryText, TellsNewPartsByTargetLanguage) {
  const struct {
    const char* language;
    std::string_view opening;
  } cases[] = {{"ENRU", "aA&"},     {"RUEN", U"AДд"_1251}, {"RUDE", "A"},    {"RU", "aA&"},
               {"EN", U"AДд"_1251}, {"FR", "A"},           {nullptr, "aA&"}, {"", "A"}};
  for (const auto& [language, opening] : cases) {
    for (const char c : std::string_view(U"aA&Дд1;"_1251)) {
      const bool opens = opening.find(c) != std::string_view::npos;
      const char text[] = {c, ')', 0};
      EXPECT_EQ(IsDicEntryNewPart(text, language, 'N'), opens ? static_cast<unsigned char>(c) : 0);
    }
  }
  EXPECT_EQ(IsDicEntryNewPart("a1", "ENRU", 'N'), 0);
  EXPECT_EQ(IsDicEntryNewPart("&1", "ENRU", 'N'), '&');
  EXPECT_EQ(IsDicEntryNewPart("A1", "RUEN", 'N'), 'A');
  EXPECT_EQ(IsDicEntryNewPart("", "ENRU", 'N'), 0);
}

TEST(EntryText, FindsTheNextPart) {
  const struct {
    const char* language;
    char part;
    std::string_view text, next;
  } cases[] = {
      {"ENRU", 'N', U"слово{A}[B]Aдва"_1251, U"Aдва"_1251},
      {"ENRU", 'N', U"словоa1AAдва"_1251, U"Aдва"_1251},
      {"ENRU", 'N', "a1", ""},
      {"RUDE", 'N', "wordWb;c/d", "d"},
      {"RUDE", 'N', "wordWb", ""},
      {"RUDE", 'W', "bWc", "Wc"},
      {"RUDE", 'N', "a{b", ""},
      {"RUEN", 'N', U"word слово"_1251, U"слово"_1251},
      {"RUEN", 'W', U"word|слово/x"_1251, "/x"},
      // What ends a part besides the letters: in a phrase, in a phrase of words, in a word.
      {"RUDE", 'W', "b~c", "~c"},
      {"RUDE", 'W', "b\\c", "\\c"},
      {"RUDE", 'w', "b/;~\\c&d", "&d"},
      {"RUDE", 'w', "b c", " c"},
      {"RUDE", 'N', "b/;&~ c\\d", "\\d"},
      {"RUDE", 'N', "b#c", "#c"}};
  for (const auto& c : cases) {
    EXPECT_EQ(GetNextPart(Exact(c.text).get(), c.language, c.part) + Text(), c.next) << c.text;
  }
}

TEST(EntryText, PacksWhatDisplaySetApart) {
  const struct {
    const char* language;
    std::string_view text, packed;
  } cases[] = {{"ENRU", U"слово ; другое"_1251, U"слово;другое"_1251},
               {"ENRU", U"а A б & в A1 г W1 д"_1251, U"аAб&в A1 гW1 д"_1251},
               {"RUEN", U"два слова"_1251, U"дваслова"_1251},
               {"RUDE", "a ; b ( c ) d | e / f \\ g W h", "a;b(c)d|e/f\\gWh"},
               {"RUDE", " a # b  c # d [ e ] f { g", "a#b  c#d[e]f{g"},
               {"RUDE", " \\ a", "\\a"},
               {"RUDE", " ", " "},
               {"RUDE", "", ""}};
  for (const auto& c : cases) {
    Exact text(c.text);
    Exact out(c.text);
    EXPECT_EQ(PackEntry(text.get(), out.get(), c.language, 'N'), c.packed);
    EXPECT_EQ(PackEntry(text.get(), text.get(), c.language, 'N'), c.packed) << "in place";
  }
}

}  // namespace
