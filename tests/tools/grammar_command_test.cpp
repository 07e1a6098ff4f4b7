// kzdic grammar: the vocabulary, both directions, names.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

#include "kzlexicon/grammar.h"
#include "lexicon/text/code_page.h"
#include "tests/tools/kzdic_run.h"
#include "tools/status.h"

namespace {

using kzdic::Decoded;
using nlohmann::json;
using ::testing::EndsWith;
using ::testing::HasSubstr;

std::vector<std::string> field_texts(const Decoded& decoded) {
  std::vector<std::string> texts;
  for (const kzdic::Field& field : decoded.fields) texts.push_back(to_string(field));
  return texts;
}

std::vector<std::string> cells(const std::string& row) {
  std::vector<std::string> result;
  std::istringstream in(row.substr(1));
  for (std::string cell; std::getline(in, cell, '|');) {
    const std::size_t begin = cell.find_first_not_of(" `");
    const std::size_t end = cell.find_last_not_of(" `");
    result.push_back(begin == std::string::npos ? "" : cell.substr(begin, end + 1 - begin));
  }
  return result;
}

TEST(GrammarFields, AreThoseOfTheTableOfTags) {
  std::ifstream page(KZ_DATA_PATH "/../docs/grammar.md");
  const std::vector<std::string> codes = {"N", "A", "V", "I", "R"};
  int checked = 0;
  bool in_table = false;
  for (std::string line; std::getline(page, line);) {
    if (line == "| Word | Bit | Meaning | N | A | V | I | R |") in_table = true;
    if (line.empty()) in_table = false;
    if (!in_table || !line.starts_with("| ") || line[2] == 'W') continue;
    const std::vector<std::string> row = cells(line);
    for (std::size_t i = 0; i < codes.size(); ++i) {
      const std::string& tag = row.at(3 + i);
      if (tag.empty()) continue;
      const Decoded decoded = kzdic::decode_tags(codes[i], tag);
      const auto field =
          std::find_if(decoded.fields.begin(), decoded.fields.end(),
                       [&](const auto& it) { return it.value == (row[2].empty() ? tag : row[2]); });
      ASSERT_NE(field, decoded.fields.end()) << line << codes[i];
      if (row[2].empty()) {
        EXPECT_EQ(std::to_string(field->word) + " " + std::to_string(field->bit),
                  row[0] + " " + row[1])
            << codes[i] << tag;
      }
      ++checked;
    }
  }
  EXPECT_GE(checked, 150);
}

// Everything that reads from a tag string can be written again, alone and among others.
TEST(GrammarFields, EncodeWhatTheyWereDecodedFrom) {
  std::vector<std::string> tags = {"#12а:3", "#7:200", "#0", "CВ", "CВ:Д",
                                   "&X1",    "&31",    "%N", "%T"};
  for (int byte = 33; byte < 256; ++byte) {
    const std::u32string c =
        kzdic::decode(std::string(1, static_cast<char>(byte)), kzdic::CodePage::kRussian);
    // "-=V" would say with the tags of a verb what this part of speech cannot.
    if (c == U"\xFFFD" || byte == '%' || byte == '=') continue;
    for (const char* mark : {"", "-", "&"}) tags.push_back(mark + kzdic::to_utf8(c));
  }
  std::mt19937 random(6);
  for (const char* code : {"N", "A", "V", "P", "I", "R", "д", "Я"}) {
    for (std::size_t i = 0; i < tags.size() + 300; ++i) {
      std::string text = i < tags.size() ? tags[i] : "";
      if (text.empty()) {
        for (int count = 0; count < 6; ++count) text += tags[random() % tags.size()];
      }
      const Decoded decoded = kzdic::decode_tags(code, text);
      std::string encoded;
      ASSERT_NO_THROW(encoded = kzdic::encode_fields(code, field_texts(decoded))) << code << text;
      EXPECT_EQ(kzdic::decode_tags(code, encoded).fields, decoded.fields)
          << code << ' ' << text << " -> " << encoded;
    }
  }
}

TEST(GrammarFields, AreRefusedWhenNoTagStringSaysThem) {
  const auto refusal = [](const char* code, const std::vector<std::string>& fields) -> std::string {
    try {
      return "written as " + kzdic::encode_fields(code, fields);
    } catch (const kzdic::Error& error) {
      EXPECT_EQ(error.code(), kz::lexicon::ErrorCode::kArgument);
      return error.what();
    }
  };
  EXPECT_THAT(refusal("N", {"masculine", "past"}), HasSubstr("no tag for tense=past"));
  EXPECT_THAT(refusal("N", {"person=1"}), HasSubstr("person=1"));
  EXPECT_THAT(refusal("R", {"paradigm=12"}), HasSubstr("no tag for paradigm=12"));
  EXPECT_THAT(refusal("Я", {"masculine"}), HasSubstr("no tag"));
  EXPECT_THAT(refusal("V", {"case=genitive,instrumental"}), HasSubstr("lost would be"));
  EXPECT_THAT(refusal("V", {"third-case=dative"}), HasSubstr("third-case=dative"));
  EXPECT_THAT(refusal("N", {"paradigm-base=D1"}), HasSubstr("paradigm-base=D1"));
  EXPECT_THAT(refusal("A", {"flag=6/5"}), HasSubstr("no such value"));
  EXPECT_THAT(refusal("A", {"flag=5/4"}), HasSubstr("flag=5/4"));
  EXPECT_THAT(refusal("N", {"masculin"}), HasSubstr("did you mean masculine?"));
  EXPECT_THAT(refusal("N", {"gender=femnine"}), HasSubstr("did you mean gender=feminine?"));
  EXPECT_THAT(refusal("I", {"colour=red"}), HasSubstr("number=plural; case=nominative,genitive"));
  for (const char* bad : {"person=4", "person=", "paradigm=65535", "small-number=32",
                          "latin-tag=X12", "paradigm-letter=ab", "semantics=q", "flag=9/99"}) {
    EXPECT_THAT(refusal("V", {bad}), HasSubstr("no such value: '" + std::string(bad))) << bad;
  }
  for (const char* bad : {"=", "=1", ""}) {
    EXPECT_THAT(refusal("V", {bad}), HasSubstr("unknown field")) << bad;
  }
  EXPECT_THAT(refusal("V", {"person=4"}), EndsWith(" takes person=0..3"));
  EXPECT_THAT(refusal("V", {"gender"}), EndsWith(" takes gender=masculine,feminine"));
  EXPECT_THAT(refusal("NN", {}), HasSubstr("not one character"));
  EXPECT_THAT(kzdic::Unmappable(U'\0', kzdic::CodePage::kRussian).what(),
              HasSubstr("U+0000) is not in Windows-1251"));
}

class GrammarCommandTest : public ::testing::Test {
 protected:
  Workplace place;
};

TEST_F(GrammarCommandTest, DecodesInWords) {
  const Outcome outcome = place.kzdic({"grammar", "decode", "N", "-SM1И@x#12a:3%NAе|F"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out,
            "part-of-speech   N, noun (noun tags)\n"
            "gender           masculine\n"
            "number           plural, no-singular\n"
            "animacy          animate\n"
            "case             nominative\n"
            "paradigm         12\n"
            "paradigm-letter  a\n"
            "paradigm-base    D3\n"
            "flag             x (word 4 bit 0)\n"
            "semantics        N, A, F\n"
            "canonical        MP-S@x#12a:3%NAF  (without case=nominative)\n"
            "ignored          1е|\n");
  EXPECT_EQ(place.kzdic({"grammar", "decode", "V", "--", "-ET"}).out,
            place.kzdic({"grammar", "decode", "V", "-ET"}).out);
  EXPECT_EQ(place.kzdic({"grammar", "decode", "V", "-ET"}).out,
            "part-of-speech   V, verb (verb tags)\n"
            "aspect           imperfective\n"
            "transitivity     transitive\n"
            "canonical        T-E\n");
  EXPECT_THAT(place.kzdic({"grammar", "decode", "д", "T|-E"}).out,
              HasSubstr("not read         |-E"));
  EXPECT_EQ(place.kzdic({"grammar", "decode", "N"}).status, 2);
  EXPECT_EQ(place.kzdic({"grammar", "decode", "N", "--tags"}).status, 2);
  EXPECT_EQ(place.kzdic({"grammar", "decode", "N", std::string(1001, 'M')}).status, 2);
}

TEST_F(GrammarCommandTest, EncodeTakesWhatDecodePrints) {
  EXPECT_EQ(place
                .kzdic({"grammar", "encode", "N", "masculine", "animate",
                        "case=nominative,genitive", "paradigm=12", "paradigm-base=D1"})
                .out,
            "M@ИР#12:1\n");
  const Outcome decoded =
      place.kzdic({"grammar", "decode", "--json", "-"}, "V T1CВ:Д\nЖЖ M\nR -TSР\n\xFF M\n");
  EXPECT_EQ(decoded.status, 2);
  const Outcome encoded =
      place.kzdic({"grammar", "encode", "-"}, decoded.out + "A singulr flag=?\n{}\n");
  EXPECT_EQ(encoded.status, 4);
  std::istringstream lines(encoded.out);
  std::vector<std::string> answers;
  for (std::string line; std::getline(lines, line);) answers.push_back(line);
  ASSERT_EQ(answers.size(), 12u);
  EXPECT_EQ(answers[0], "1TCВ:Д");
  EXPECT_THAT(answers[2], HasSubstr("not an object with code and fields"));
  EXPECT_EQ(answers[4], "S-TР");
  EXPECT_THAT(answers[8], HasSubstr("did you mean singular?"));
  const json object = json::parse(decoded.out.substr(0, decoded.out.find('\n')));
  EXPECT_EQ(object["fields"][2], json({{"name", "person"}, {"value", 1}}));
  EXPECT_EQ(object["words"][4], "0x00000400");
}

TEST_F(GrammarCommandTest, LooksNamesUp) {
  EXPECT_EQ(place.kzdic({"grammar", "name", "class", "NMa", "15"}).out,
            "class 2 NMa\n"
            "part-of-speech   N, noun (noun tags)\n"
            "gender           masculine\n"
            "animacy          animate\n"
            "class 15 NS\n"
            "part-of-speech   N, noun (noun tags)\n"
            "number           no-plural\n");
  EXPECT_EQ(place.kzdic({"grammar", "name", "2", "110"}).out, "change 110 D4bopr\n");
  const json answer =
      json::parse(place.kzdic({"grammar", "name", "--json", "addition", "MR3S"}).out);
  EXPECT_EQ(answer, json::parse(R"({"kind":1,"index":17,"name":"MR3S","code":"R","fields":[
      {"name":"number","value":"singular"},{"name":"person","value":3}]})"));
  EXPECT_EQ(place.kzdic({"grammar", "name", "0", "nma"}).status, 1);
  for (const char* index : {"-1", "66", "99999999999", "1-2"}) {
    const Outcome outcome = place.kzdic({"grammar", "name", "0", index});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.err, HasSubstr("are 0 to 65"));
  }
  EXPECT_EQ(place.kzdic({"grammar", "name", "3", "NM"}).status, 2);
  EXPECT_EQ(place.kzdic({"grammar", "name", "2", "-"}, "D1\nd1\n").out,
            "change 1 D1\n\nd1: not found\n\n");
}

}  // namespace
