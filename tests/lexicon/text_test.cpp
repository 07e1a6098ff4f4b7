// Code pages and the sections of entries.
#include <gtest/gtest.h>
#include <iconv.h>

#include <optional>

#include "lexicon/entry/blocks.h"
#include "lexicon/source/entry_layout.h"
#include "tests/lexicon/source.h"

namespace kz::test {
namespace {

using namespace lexicon;

constexpr std::pair<CodePage, const char*> kPages[] = {{CodePage::kRussian, "CP1251"},
                                                       {CodePage::kWestern, "CP1252"},
                                                       {CodePage::kCp866, "CP866"},
                                                       {CodePage::kCp850, "CP850"},
                                                       {CodePage::kKoi8R, "KOI8-R"},
                                                       {CodePage::kIso8859_5, "ISO-8859-5"},
                                                       {CodePage::kMacCyrillic, "MAC-CYRILLIC"}};

// The system's UTF-8 of a byte; nothing where the page has no character.
std::optional<std::string> system_character(char byte, const char* page) {
  const iconv_t converter = iconv_open("UTF-8", page);
  std::string result(4, '\0');
  char* in = &byte;
  char* out = result.data();
  std::size_t in_left = 1, out_left = result.size();
  const bool known = iconv(converter, &in, &in_left, &out, &out_left) == 0;
  iconv_close(converter);
  result.resize(result.size() - out_left);
  return known ? std::optional(result) : std::nullopt;
}

TEST(CodePages, AgreeWithTheSystemOnEveryByte) {
  for (const auto& [page, name] : kPages) {
    for (int i = 1; i < 256; ++i) {
      const std::string byte(1, static_cast<char>(i));
      auto character = system_character(byte[0], name);
      // The system has the currency sign there; the euro sign has taken its place.
      if (page == CodePage::kMacCyrillic && i == 255) character = "€";
      EXPECT_EQ(decode_utf8(byte, page), character.value_or("\uFFFD")) << name << i;
      if (!character) continue;
      EXPECT_EQ(encode_utf8(*character, page), byte) << name << i;
    }
    EXPECT_THROW(encode_utf8("→", page), Unmappable);
    EXPECT_THROW(encode_utf8(std::string(1, '\0'), page), Unmappable);
  }
}

TEST(CodePages, TellGermanFromRussianWordByWord) {
  const std::string text = "der Öltanker (разг. «лодка»), ёж über Straße — №5";
  EXPECT_EQ(decode_utf8(encode_utf8(text, CodePage::kMixed), CodePage::kMixed), text);
  EXPECT_THROW(encode_utf8("ä", CodePage::kMixed), Unmappable);
  EXPECT_THROW(encode_utf8("домhaus", CodePage::kMixed), Unmappable);
}

TEST(CodePages, Utf8IsReadStrictly) {
  const std::u32string all = U"\x01z\x7F\x80\x7FF\x800\xD7FF\xE000\xFFFF\x10000\x10FFFF";
  EXPECT_EQ(from_utf8(to_utf8(all)), all);
  for (const char* bad : {"\x80", "\xC0\x80", "\xC3", "\xE0\x9F\xBF", "\xED\xA0\x80",
                          "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xC3("}) {
    EXPECT_THROW(from_utf8(std::string("ab") + bad), BadUtf8) << bad;
  }
}

// The same byte is a German letter in the headword and a Russian one in the body.
TEST(EntrySections, HaveTheirCodePages) {
  const struct {
    const char *language, *entry, *word;
    std::string record;
  } cases[] = {{"DERU", "üb*N[И]ь\\ü\\\\Üb", "üb",
                "\xFC"
                "b*N[\xC8]\xFC\\\xFC\\\\\xDC"
                "b"},
               {"RUFR", "ья*N[И]ü\\ь\\\\Ья", "ья", "\xFC\xFF*N[\xC8]\xFC\\\xFC\\\\\xDC\xFF"}};
  for (const auto& [language, entry, word, record] : cases) {
    Dictionary dictionary =
        Dictionary::from_memory(Builder({.language = language}).add_line(entry).to_memory());
    ASSERT_EQ(found(dictionary, word), std::vector<std::string>{entry});
    EXPECT_EQ(dictionary.find(word).entries[0].record(), record);
  }
}

TEST(EntrySections, TheBodyBeginsAfterPartCodeAndBlock) {
  const std::pair<std::string_view, std::string_view> bodies[] = {{"a*N1.b\\r\\\\s", "1.b"},
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
  for (const auto& [text, body] : bodies) {
    const EntryLayout at = layout_of(text);
    EXPECT_EQ(text.substr(at.body, at.source - at.body), body) << text;
  }
}

TEST(EntrySections, BlocksFollowThePartCodeLabelsAndSynonyms) {
  std::string blocks;
  for (const auto& [label, tags] :
       meaning_blocks("1.a[M]/2. mus.:[F]{b/[x]}c/V[E]d/(3.[N]/)4.[P]e/[S]f/5.[]{x}[T]g/6.[M")) {
    blocks += label + tags + ' ';
  }
  EXPECT_EQ(blocks, "2.F VE 5.T 6.M ");
  EXPECT_EQ(head_block("a*Nex[M|F]b[x]"), "M|F");
  EXPECT_EQ(head_block("a*W[M]b"), "");
  const InnerBlock block = synonym_block(U"{[x]} V дом (a [y]) [M@] я");
  EXPECT_EQ(block.part_code, U'V');
  EXPECT_EQ(block.tags, U"M@");
}

}  // namespace
}  // namespace kz::test
