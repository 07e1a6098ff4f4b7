// The examples of docs/grammar.md. Its tables are what the other tests compare the library with.
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "kz/gram_attr.h"
#include "kz/gram_codec.h"
#include "kz/gram_map.h"
#include "tests/common/grammar/reference.h"

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
  EXPECT_EQ(page.fields.size(), 24u);
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

TEST(GrammarPage, MappingFunctionsGoByTheCodesShown) {
  const std::map<std::string, void (*)(std::uint8_t*, std::int16_t)> functions = {
      {"er_set_rgram", er_set_rgram},
      {"er_set_egram", er_set_egram},
      {"re_set_rgram", re_set_rgram},
      {"re_set_egram", [](std::uint8_t* r, std::int16_t code) { re_set_egram(r, code, ""); }},
  };
  std::vector<std::uint8_t> empty(WORD_RECORD_SIZE);
  std::memset(&empty[139], 0xFF, 56);  // every bit of both languages' grammar
  for (const auto& [name, function] : functions) {
    const std::string& codes = reference::page().mapped.at(name);
    for (int code = 1; code < 256; ++code) {
      std::vector<std::uint8_t> record = empty;
      function(record.data(), static_cast<std::int16_t>(code));
      EXPECT_EQ(record != empty, codes.find(static_cast<char>(code)) != std::string::npos)
          << name << ' ' << code;
    }
  }
}

// The summary in a word record, by the page's offsets, as its examples show it.
std::string summary(const std::uint8_t* record, char code) {
  std::string result;
  for (const auto& [name, type, offset] : reference::page().fields) {
    const bool is_character = type == "character";
    if (!is_character && !type.starts_with("number")) continue;
    if (name == "foreign-code" || name == "russian-code") continue;
    std::uint32_t value = record[offset];
    if (type == "number of 4 bytes") std::memcpy(&value, record + offset, 4);
    if (value == (name == "code" ? static_cast<unsigned char>(code) : 0)) continue;
    result.append(result.empty() ? "" : " ").append(name).append("=");
    result += is_character ? std::string(1, static_cast<char>(value)) : std::to_string(value);
  }
  return result;
}

TEST(GrammarPage, TextsAreMappedAsShown) {
  for (const std::string& line : reference::page().blocks.at("mapping")) {
    Example example(line);
    std::string function, mode, code, text;
    example.given >> function >> mode >> code >> text;
    std::uint8_t record[WORD_RECORD_SIZE] = {};
    record[16] = static_cast<std::uint8_t>(code[0]);
    if (mode == "-") {
      (function == "er_get_rgram_gt" ? er_get_rgram_gt : re_get_egram_gt)(text.c_str(), record);
    } else {
      (function == "er_get_wgram" ? er_get_wgram : re_get_wgram)(
          static_cast<std::int16_t>(std::stoi(mode)), text.c_str(), record, code[0]);
    }
    EXPECT_EQ(summary(record, code[0]), example.wanted) << line;
  }
}

}  // namespace
