// The examples of docs/entry-format.md, read from the page itself.
#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "kz/entry.h"
#include "tests/support/source_tree.h"
#include "tests/support/utf8.h"

namespace {

using kz::test::encoded_1251;

std::string shown(CDicEntry& entry) {
  std::string result;
  const auto line = [&result](const char* name, const std::string& value) {
    if (!value.empty()) result += (name + std::string(9, ' ')).substr(0, 9) + value + '\n';
  };
  char part_text[16];
  entry.GetPart(part_text);
  line("head", entry.GetInWord(nullptr));
  line("part", part_text);
  line("attr", entry.GetAttr(nullptr));
  line("body", entry.GetEntry(nullptr));
  line("ref", entry.GetSrcRef(nullptr));
  if (std::string source = entry.GetSrcWord(nullptr); source != entry.GetInWord(nullptr))
    line("source", source);
  for (std::int16_t i = 0; i < entry.GetMeaningsSize(); ++i) {
    std::string meaning;
    if (const char* tag = entry.GetMeaningTag(i, nullptr)) meaning += std::string(tag) + ' ';
    if (const char* definition = entry.GetMeaningDefinition(i, nullptr))
      meaning += '{' + std::string(definition) + "} ";
    for (std::int16_t j = 0; j < entry.GetSynonymsSize(i); ++j) {
      const char* const synonym = entry.GetSynonym(i, j, nullptr);
      meaning += (j == 0 ? "= " : "; ") + std::string(synonym == nullptr ? "" : synonym);
    }
    line("meaning", meaning);
  }
  return result;
}

TEST(EntryFormatPage, ShowsWhatTheLibraryDoes) {
  std::ifstream page(kz::test::source_tree() / "docs/entry-format.md");
  int examples = 0;
  for (std::string line; std::getline(page, line);) {
    if (line != "```entry") continue;
    ++examples;
    std::string direction;
    std::string full;
    char kind = 0;
    page >> direction >> kind >> std::ws;
    std::getline(page, full);
    std::string expected;
    while (std::getline(page, line) && line != "```") expected += line + '\n';
    CDicEntry entry(direction.c_str(), kind);
    entry.Build(encoded_1251(full).c_str(), 0, nullptr, nullptr);
    EXPECT_EQ(shown(entry), encoded_1251(expected)) << full;
    entry.Merge();
    EXPECT_EQ(entry.GetFullEntry(nullptr), encoded_1251(full));
  }
  EXPECT_GE(examples, 8);
}

}  // namespace
