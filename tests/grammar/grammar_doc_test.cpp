// The examples of docs/grammar.md. Its tables are what the other tests compare the library with.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "kz/gram_attr.h"
#include "kz/gram_codec.h"
#include "tests/grammar/reference.h"

namespace {

// Splits "example -> result" of a block.
struct Example {
  std::istringstream given;
  std::string wanted;

  explicit Example(const std::string& line) : given(line.substr(0, line.find("->"))) {
    const std::string rest = line.substr(line.find("->") + 2);
    wanted = rest.empty() ? rest : rest.substr(1);
  }
};

TEST(GrammarPage, TablesAreComplete) {
  const reference::Page& page = reference::page();
  EXPECT_EQ(page.bits.size(), 83u);
  EXPECT_EQ(page.classes[0].size(), 66u);
  EXPECT_EQ(page.classes[1].size(), 25u);
  for (const char* block : {"codes", "read", "written"})
    EXPECT_EQ(page.blocks.at(block).size(), 5u);
}

TEST(GrammarPage, TagStringsReadAndWriteAsShown) {
  for (const std::string& line : reference::page().blocks.at("tags")) {
    Example example(line);
    std::string code, tags;
    example.given >> code >> tags;
    GRAMINFO gram{};
    SEMANTICS semantics{};
    char out[GRAM_STRING_SIZE];
    StrToGram(tags.c_str(), nullptr, &gram, &semantics, code[0], nullptr);
    EXPECT_EQ(GramToStr(code[0], &gram, &semantics, out), example.wanted) << line;
  }
}

TEST(GrammarPage, CompactAttributesExpandAsShown) {
  for (const std::string& line : reference::page().blocks.at("attributes")) {
    Example example(line);
    std::uint32_t kind0, kind1, number;
    example.given >> kind0 >> kind1 >> number;
    const std::uint32_t attributes[] = {kind0 | kind1 << 8, number};
    GRAMINFO gram{};
    SetGrSrcAttr(&gram, attributes);
    const char code = static_cast<char>(gram.word[2] >> 8);
    char out[GRAM_STRING_SIZE];
    EXPECT_EQ(code + (' ' + std::string(GramToStr(code, &gram, nullptr, out))), example.wanted);
  }
}

}  // namespace
