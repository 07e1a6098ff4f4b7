// Code pages, entry sections, sort order, and what a packed record can hold.
#include <gtest/gtest.h>
#include <iconv.h>

#include <algorithm>
#include <random>

#include "lexicon/build/shared_text.h"
#include "lexicon/build/sort_order.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/text/code_page.h"
#include "tools/status.h"

namespace {

using kzdic::CodePage;

// The character of a byte by the system's converter, U+FFFD where it has none.
char32_t system_decode(char byte, const char* page) {
  const iconv_t converter = iconv_open("UTF-32LE", page);
  char* in = &byte;
  std::size_t in_left = 1;
  char32_t character = 0;
  char* out = reinterpret_cast<char*>(&character);
  std::size_t out_left = sizeof character;
  const bool known =
      iconv(converter, &in, &in_left, &out, &out_left) != static_cast<std::size_t>(-1);
  iconv_close(converter);
  return known ? character : U'\xFFFD';
}

TEST(CodePage, AgreesWithTheSystemOnEveryByte) {
  const std::pair<CodePage, const char*> pages[] = {{CodePage::kRussian, "CP1251"},
                                                    {CodePage::kWestern, "CP1252"}};
  for (const auto& [page, name] : pages) {
    for (int i = 1; i < 256; ++i) {
      const std::string byte(1, static_cast<char>(i));
      const std::u32string character = kzdic::decode(byte, page);
      EXPECT_EQ(character[0], system_decode(byte[0], name)) << name << ' ' << i;
      if (character == U"\xFFFD") continue;
      EXPECT_EQ(kzdic::encode(character, page), byte);
    }
    EXPECT_THROW(kzdic::encode(U"≤", page), kzdic::Unmappable);
  }
}

TEST(CodePage, TellsGermanFromRussianWordByWord) {
  const std::u32string text = U"der Öltanker (разг. «лодка»), ёж über Straße — №5";
  EXPECT_EQ(kzdic::decode(kzdic::encode(text, CodePage::kMixed), CodePage::kMixed), text);
  EXPECT_THROW(kzdic::encode(U"ä", CodePage::kMixed), kzdic::Unmappable);
  EXPECT_THROW(kzdic::encode(U"домhaus", CodePage::kMixed), kzdic::Unmappable);
}

TEST(Utf8, RoundTripsAndRefusesMalformedText) {
  const std::u32string all = U"\x01z\x7F\x80\x7FF\x800\xD7FF\xE000\xFFFF\x10000\x10FFFF";
  EXPECT_EQ(kzdic::from_utf8(kzdic::to_utf8(all)), all);
  for (const char* bad : {"\x80", "\xC0\x80", "\xC3", "\xE0\x9F\xBF", "\xED\xA0\x80",
                          "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xC3("}) {
    EXPECT_THROW(kzdic::from_utf8(std::string("ab") + bad), kzdic::BadUtf8) << bad;
  }
}

TEST(EntryLayout, GivesEverySectionItsCodePage) {
  // The same letter byte stands for a German letter in the head word, for a Russian one in the
  // body.
  const std::string entry =
      "\xFC"
      "b*N[\xC8]\xFC\\\xFC\\\\\xDC"
      "b";
  EXPECT_EQ(kzdic::decode_entry(entry, "DERU"), "üb*N[И]ь\\ü\\\\Üb");
  EXPECT_EQ(kzdic::decode_entry(entry, "RUFR"), "ьb*N[И]ü\\ь\\\\Ьb");
  EXPECT_EQ(kzdic::encode_entry(U"üb*N[И]ь\\ü\\\\Üb", "DERU"), entry);
}

TEST(EntryLayout, FindsTheBodyOfEveryPartCode) {
  const std::pair<const char*, const char*> bodies[] = {{"a*N1.b\\r\\\\s", "1.b"},
                                                        {"a*N[x]b", "b"},
                                                        {"a*Nex [x]b", "b"},
                                                        {"a*N{d}[x]b", "b"},
                                                        {"a*Wq[x]b", "q[x]b"},
                                                        {"a*$b\\c", "b\\c"},
                                                        {"a*Nb\\\\", "b"},
                                                        {"a*N", ""},
                                                        {"a*", ""},
                                                        {"a", ""},
                                                        {"a*Nx]y[z]b", "x]y[z]b"}};
  for (const auto& [entry, body] : bodies) {
    const std::string_view text = entry;
    const kzdic::EntryLayout at = kzdic::layout_of(text);
    EXPECT_EQ(text.substr(at.body, at.source - at.body), body) << entry;
  }
}

TEST(SortOrder, PutsNoLetterBeforeLettersAndYoBesideYe) {
  const auto sorted = [](const char* language, int depth, std::vector<std::u32string> words) {
    const CodePage page = kzdic::source_page(language);
    const kzdic::SortOrder order(language, depth);
    const auto bytes = [&](const std::u32string& word) { return kzdic::encode(word, page); };
    std::sort(words.begin(), words.end(), [&](const auto& a, const auto& b) {
      return std::pair(order.group(bytes(a)), bytes(a)) <
             std::pair(order.group(bytes(b)), bytes(b));
    });
    return words;
  };
  using Words = std::vector<std::u32string>;
  EXPECT_EQ(sorted("ENRU", 2, {U"ab", U"a", U"a-z", U"1st", U"b", U"aaz", U"aa-"}),
            (Words{U"1st", U"a", U"a-z", U"aa-", U"aaz", U"ab", U"b"}));
  EXPECT_EQ(sorted("ENRU", 3, {U"a-z", U"a-a", U"a1-", U"aab", U"aa-b"}),
            (Words{U"a1-", U"a-a", U"a-z", U"aa-b", U"aab"}));
  EXPECT_EQ(sorted("RUEN", 2, {U"ель", U"ёж", U"едва", U"ёлка"}),
            (Words{U"едва", U"ёж", U"ёлка", U"ель"}));
  EXPECT_EQ(sorted("DE", 2, {U"aß", U"as", U"ä", U"az", U"at"}),
            (Words{U"as", U"aß", U"at", U"az", U"ä"}));
  EXPECT_EQ(sorted("RUEN", 5, {U"абв", U"аб в", U"ёж", U"1"}),
            (Words{U"1", U"ёж", U"аб в", U"абв"}));
}

TEST(SortOrder, RefusesBeginningsThatTheDepthCannotIndex) {
  const kzdic::SortOrder two("EN", 2);
  const kzdic::SortOrder three("EN", 3);
  const kzdic::SortOrder keys("EN", 5);
  EXPECT_FALSE(two.refusal("ab!"));
  EXPECT_TRUE(three.refusal("ab!"));
  EXPECT_FALSE(three.refusal("abc!"));
  EXPECT_TRUE(keys.refusal("abcd!"));
  EXPECT_FALSE(keys.refusal("abcde!"));
  EXPECT_TRUE(two.refusal("A"));
  EXPECT_TRUE(two.refusal(""));
  EXPECT_FALSE(two.refusal(std::string(77, 'a')));
  EXPECT_TRUE(two.refusal(std::string(78, 'a')));
}

TEST(SharedText, KnowsWhatReadsAsAReference) {
  for (const char* body : {"0", "face", "12AB", "a\\b", "0123456789abcdef"}) {
    EXPECT_TRUE(kzdic::reads_as_reference(body)) << body;
  }
  for (const char* body : {"", "faces", "1.a", " 1", "\\a", "0x1"}) {
    EXPECT_FALSE(kzdic::reads_as_reference(body)) << body;
  }
}

TEST(SharedText, PackedRecordsHaveTheirLimits) {
  const std::string fits = "a*N" + std::string(256, 'x');
  EXPECT_FALSE(kzdic::packed_refusal(fits, "ENRU", false));
  EXPECT_TRUE(kzdic::packed_refusal(fits + "x", "ENRU", false));
  EXPECT_FALSE(kzdic::packed_refusal(fits + "x", "ENRU", true));
  EXPECT_FALSE(kzdic::packed_refusal("a*N\x80", "ENRU", true));
  EXPECT_TRUE(kzdic::packed_refusal("a\xB8*N", "RUEN", true));
  EXPECT_TRUE(kzdic::packed_refusal("a*Nx\\\xB8", "RUEN", true));
  EXPECT_TRUE(kzdic::packed_refusal("a*Nx\\" + std::string(260, 'x'), "RUEN", true));
}

}  // namespace
