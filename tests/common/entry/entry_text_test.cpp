// Plain functions over entry text: worked cases, and random text in buffers of the exact size.
#include "kz/entry_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

#include "kz/strutil.h"
#include "tests/common/entry/reference.h"

using kz::operator""_1251;
using reference::Text;
using reference::text;

namespace {

// A text on the heap with nothing behind its zero, so that the sanitizer sees every overrun.
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
  } cases[] = {
      {"a) [x[y]z] word [1] 2;[3]", "word ;[3]", "a) [x[y]z] word ;[3]"},
      {"a)word [1]", "word ", "a)word "},
      {"word;[1]", "word;[1]", "word;[1]"},
      {"[x] [y];z", ";z", "[x] ;z"},
      {"a)  [x]z", " ", "a)  "},
      {"[x[y]", "", "[x[y]"},
      {"", "", ""},
  };
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
  } cases[] = {
      {"%abCd%x", "%abCd", "%x"}, {"%abC:x", "%ab", "C:x"},  {"]a]", "]a", "]"},
      {"%a\\b", "%a", "\\b"},     {"%abC", "%abC", nullptr}, {"", "", nullptr},
  };
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
  } cases[] = {
      {"Abc [x]", "Abc", "[x]"},
      {text(U"ABЖслово"_1251), text(U"ABЖ"_1251), text(U"слово"_1251)},
      {"123456  x", "123456", " x"},
      {"1234567 x", "", "1234567 x"},
      {"Ab", "Ab", ""},
      {"AWb ", "old", "AWb "},
      {"", "", ""},
  };
  for (const auto& c : cases) {
    KzWordRecord word = {nullptr, "old"};
    Exact source(c.source);
    EXPECT_EQ(GetExtSyn(source.get(), &word), c.rest);
    EXPECT_EQ(word.extended_code, c.code);
  }
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
  EXPECT_EQ(IsDicEntryNewPart("a1", "ENRU", 'N'), 0);
  EXPECT_EQ(IsDicEntryNewPart("a", "ENRU", 'N'), 'a');
  const struct {
    const char* language;
    char target;
  } cases[] = {{"ENRU", 'R'}, {"RUEN", 'E'}, {"RUDE", 'D'},  {"RU", 'R'},
               {"EN", 'E'},   {"FR", 'F'},   {nullptr, 'R'}, {"", 0}};
  for (const auto& [language, target] : cases)
    for (int c = 0; c < 256; ++c)
      for (const char* next : {"", "1", "x", ")"}) {
        Exact position(c == 0 ? Text() : static_cast<char>(c) + Text(next));
        EXPECT_EQ(IsDicEntryNewPart(position.get(), language, 'N'),
                  reference::new_part(position.get(), target) ? c : 0)
            << c << next << target;
      }
}

TEST(EntryText, FindsTheNextPart) {
  EXPECT_EQ(GetNextPart(U"слово{A}[B]Aдва"_1251.data(), "ENRU", 'N'), U"Aдва"_1251);
  EXPECT_EQ(GetNextPart(U"словоa1AAдва"_1251.data(), "ENRU", 'N'), U"Aдва"_1251);
  EXPECT_STREQ(GetNextPart("wordWb;c/d", "RUDE", 'N'), "d");
  EXPECT_STREQ(GetNextPart("wordWb", "RUDE", 'N'), "");
  EXPECT_EQ(GetNextPart(U"word слово"_1251.data(), "RUEN", 'N'), U"слово"_1251);
  EXPECT_EQ(GetNextPart(U"word|слово/x"_1251.data(), "RUEN", 'W'), std::string_view("/x"));
}

TEST(EntryText, PacksWhatDisplaySetApart) {
  char out[64];
  EXPECT_EQ(PackEntry(U"слово ; другое"_1251.data(), out, "ENRU", 'N'), U"слово;другое"_1251);
  EXPECT_STREQ(PackEntry("( x )", out, "ENRU", 'N'), "(x)");
  EXPECT_EQ(PackEntry(U"два слова"_1251.data(), out, "RUEN", 'N'), U"дваслова"_1251);
  EXPECT_STREQ(PackEntry(" a # b  c # d { e", out, "RUDE", 'N'), "a#b  c#d{e");
  EXPECT_STREQ(PackEntry(" \\ a", out, "RUDE", 'N'), "\\a");
}

TEST(EntryText, WalksRandomTextAsTheSlowModelsDo) {
  reference::MarkerText random(3);
  KzWordRecord word = {};
  for (int i = 0; i < 60000; ++i) {
    const Text source = random(24);
    const char* const language = reference::kDirections[i % 6];
    const char part = random.pick("NVWw");
    Exact exact(source);
    ASSERT_EQ(GetNextPart(exact.get(), language, part),
              reference::from_next_part(source, language[2], part))
        << language << part << testing::PrintToString(source);
    const Text packed = reference::pack(source, language[2]);
    Exact destination(source);
    ASSERT_EQ(PackEntry(exact.get(), destination.get(), language, part), packed)
        << language << testing::PrintToString(source);
    ASSERT_EQ(PackEntry(destination.get(), destination.get(), language, part),
              reference::pack(packed, language[2]))
        << "in place";

    const auto in_text = [&](const char* p) {
      return p >= exact.get() && p <= exact.get() + source.size();
    };
    ASSERT_TRUE(in_text(SkipLabels(exact.get())));
    ASSERT_TRUE(in_text(GetExtSyn(exact.get(), &word)));
    ASSERT_TRUE(in_text(GetAttrBegin(exact.get())));
    const char* const stop = GetInf(exact.get(), &word);
    ASSERT_TRUE(stop == nullptr || in_text(stop));
    ASSERT_TRUE(in_text(SkipCLabels(exact.get())));
  }
  kz_misc_free(word.inflection);
}

}  // namespace
