// Tag strings as fields, in both directions, against the page that lists them.
#include "kzlexicon/grammar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <random>
#include <sstream>

#include "kzlexicon/code_page.h"
#include "tests/support/source_tree.h"

namespace kz::test {
namespace {

using namespace lexicon;
using ::testing::EndsWith;
using ::testing::HasSubstr;

std::vector<std::string> field_texts(const Decoded& decoded) {
  std::vector<std::string> texts;
  for (const Field& field : decoded.fields) texts.push_back(to_string(field));
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
  std::ifstream page(source_tree() / "docs/grammar.md");
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
      const Decoded decoded = decode_tags(codes[i], tag);
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
    const std::string c = decode_utf8(std::string(1, static_cast<char>(byte)), CodePage::kRussian);
    // "-=V" would say with the tags of a verb what this part of speech cannot.
    if (c == "\uFFFD" || byte == '%' || byte == '=') continue;
    for (const char* mark : {"", "-", "&"}) tags.push_back(mark + c);
  }
  std::mt19937 random(6);
  for (const char* code : {"N", "A", "V", "P", "I", "R", "д", "Я"}) {
    for (std::size_t i = 0; i < tags.size() + 300; ++i) {
      std::string text = i < tags.size() ? tags[i] : "";
      if (text.empty()) {
        for (int count = 0; count < 6; ++count) text += tags[random() % tags.size()];
      }
      const Decoded decoded = decode_tags(code, text);
      std::string encoded;
      ASSERT_NO_THROW(encoded = encode_fields(code, field_texts(decoded))) << code << text;
      EXPECT_EQ(decode_tags(code, encoded).fields, decoded.fields)
          << code << ' ' << text << " -> " << encoded;
    }
  }
}

TEST(GrammarFields, AreRefusedWhenNoTagStringSaysThem) {
  const auto refusal = [](const char* code, const std::vector<std::string>& fields) -> std::string {
    try {
      return "written as " + encode_fields(code, fields);
    } catch (const Error& error) {
      EXPECT_EQ(error.code(), ErrorCode::kArgument);
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
  EXPECT_THAT(Unmappable(U'\0', CodePage::kRussian).what(),
              HasSubstr("U+0000) is not in Windows-1251"));
}

}  // namespace
}  // namespace kz::test
