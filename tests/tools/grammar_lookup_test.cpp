// kzdic lookup --grammar: attribute blocks found in entries and told in words.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "lexicon/entry/entry_blocks.h"
#include "tests/tools/kzdic_run.h"
#include "tools/status.h"

namespace {

using nlohmann::json;

TEST(GrammarLookup, TellsWhatBlocksSayOfEachWord) {
  const Workplace place;
  place.write("s.txt",
              "*: language ENRU\n"
              "bed*N[|F]1.кровать/2. мор.:{дно}русло[N];яма/Vспать[-E]\n"
              "water*N[-P|F]1.вода/2.[P]{курорт}воды\n"
              "bank*N[%A|M]1.банк/2.[F%N|M]берег\n"
              "x-ray*N[M)|F]луч\n");
  ASSERT_EQ(place.kzdic({"build", "s.txt", "-o", "en.dic"}).status, 0);
  EXPECT_EQ(place.kzdic({"lookup", "--grammar", "en.dic", "bed", "water"}).out,
            "bed  (en.dic, as typed)\n"
            "  bed, noun [|F]\n"
            "    Russian: feminine\n"
            "    1. кровать\n"
            "    2. мор. {дно} русло; яма\n"
            "       русло: neuter\n"
            "    verb: спать\n"
            "       спать: imperfective\n"
            "water  (en.dic, as typed)\n"
            "  water, noun [-P|F]\n"
            "    English: singular, no-plural; Russian: feminine\n"
            "    1. вода\n"
            "    2. {курорт} воды\n"
            "       Russian: plural\n");
  // Semantics go on after a bar, and nothing after a parenthesis is read.
  EXPECT_EQ(place.kzdic({"lookup", "--grammar", "en.dic", "bank", "x-ray"}).out,
            "bank  (en.dic, as typed)\n"
            "  bank, noun [%A|M]\n"
            "    English: semantics A, M\n"
            "    1. банк\n"
            "    2. берег\n"
            "       Russian: feminine, semantics N, M\n"
            "x-ray  (en.dic, as typed)\n"
            "  x-ray, noun [M)|F]\n"
            "    English: masculine\n"
            "    луч\n");
  const json entry = json::parse(
      place.kzdic({"lookup", "--grammar", "--json", "en.dic", "bed"}).out)["entries"][0];
  EXPECT_EQ(entry["grammar"]["target"]["canonical"], "F");
  EXPECT_FALSE(entry["grammar"].contains("source"));
  const json& synonym = entry["meanings"][2]["grammar"]["synonyms"][0];
  EXPECT_EQ(synonym["code"], "V");
  EXPECT_EQ(synonym["synonym"], "спать");
  EXPECT_EQ(place.kzdic({"lookup", "--grammar", "--raw", "en.dic", "bed"}).status, 2);
}

TEST(EntryBlocks, StandInFrontOfMeaningsAndBehindSynonyms) {
  std::string found;
  for (const auto& [label, tags] : kzdic::meaning_blocks(
           "1.a[M]/2. mus.:[F]{b/[x]}c/V[E]d/(3.[N]/)4.[P]e/[S]f/5.[]{x}[T]g/6.[M")) {
    found += label + tags + ' ';
  }
  EXPECT_EQ(found, "2.F VE 5.T 6.M ");
  EXPECT_EQ(kzdic::head_block("a*Nex[M|F]b[x]"), "M|F");
  EXPECT_EQ(kzdic::head_block("a*W[M]b"), "");
  const kzdic::InnerBlock block = kzdic::synonym_block(U"{[x]} V дом (a [y]) [M@] я");
  EXPECT_EQ(block.part_code, U'V');
  EXPECT_EQ(block.tags, U"M@");
}

}  // namespace
