// Compact attributes: names, expansion of the classes, paradigm values.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "kz/gram_attr.h"
#include "kz/gram_codec.h"
#include "tests/common/grammar/reference.h"

namespace {

TEST(AttributeNames, AreThoseOfThePageByKindAndIndex) {
  std::vector<std::string> names[3];
  for (const int kind : {0, 1}) {
    for (const auto& row : reference::page().classes[kind]) names[kind].push_back(row.name);
  }
  for (const std::string& line : reference::page().blocks.at("stems")) {
    for (const std::string& name : reference::words_of(line)) names[2].push_back(name);
  }
  const std::size_t counts[] = {66, 25, 111};
  for (std::int16_t kind = 0; kind < 3; ++kind) {
    ASSERT_EQ(names[kind].size(), counts[kind]);
    std::int16_t index = 0;
    for (const std::string& name : names[kind]) {
      EXPECT_EQ(GetAttrNameIndex(kind, name.c_str()), index);
      EXPECT_EQ(GetAttrNameStr(kind, index++), name);
    }
    EXPECT_EQ(GetAttrNameStr(kind, index), nullptr);
    EXPECT_EQ(GetAttrNameStr(kind, -1), nullptr);
    for (const char* unknown : {"", "nma", static_cast<const char*>(nullptr)}) {
      EXPECT_EQ(GetAttrNameIndex(kind, unknown), -1);
    }
  }
  for (const std::int16_t kind : {std::int16_t{-1}, std::int16_t{3}}) {
    EXPECT_EQ(GetAttrNameStr(kind, 0), nullptr);
    EXPECT_EQ(GetAttrNameIndex(kind, "NM"), 0);
    EXPECT_EQ(GetAttrNameIndex(kind, nullptr), 0);
  }
}

// Applies what the page says of the class; nothing if there is none of this index.
void expect_class(GRAMINFO& gram, int kind, unsigned index) {
  const auto& classes = reference::page().classes[kind];
  if (index >= classes.size()) return;
  if (const std::string& code = classes[index].code; !code.empty()) {
    reference::put(gram.word[2], 8, 8, static_cast<unsigned char>(code[0]));
  }
  for (const std::string& effect : reference::words_of(classes[index].effects)) {
    if (effect.starts_with("case:")) {
      reference::put(gram.word[1], 16, 6, effect == "case:nominative" ? 1 : 2);
    } else if (effect.starts_with("person:")) {
      reference::put(gram.word[5], 16, 2, static_cast<unsigned>(effect.back() - '0'));
    } else if (effect[1] == '/') {
      gram.word[effect[0] - '0'] |= 1u << std::stoi(effect.substr(2));
    } else {
      const reference::Bit bit = reference::page().named.at(effect);
      gram.word[bit.word] |= 1u << bit.bit;
    }
  }
}

TEST(SourceAttributes, EveryPairOfClassesExpandsAsTheTableSays) {
  std::mt19937 random(1);
  for (unsigned kind0 = 0; kind0 < 256; ++kind0) {
    for (unsigned kind1 = 0; kind1 < 64; ++kind1) {
      GRAMINFO gram{};
      // Every other record holds something already, to tell what is kept and what replaced.
      for (std::uint32_t& word : gram.word)
        word = static_cast<std::uint32_t>(random() * (kind1 & 1));
      GRAMINFO expected = gram;
      const std::uint32_t attributes[] = {kind0 | kind1 << 8 | 2u << 14 | 0xABu << 16 | 0xCD000000u,
                                          0xFF641234u};
      SetGrSrcAttr(&gram, attributes);

      reference::put(expected.word[0], 1, 2, 2);
      reference::put(expected.word[2], 16, 8, kind0);
      reference::put(expected.word[2], 24, 8, kind1 < 32 ? kind1 : kind1 + 192);
      expected.word[3] = 0xABu | 0x1234u << 8 | 0x64u << 24;
      expect_class(expected, 0, kind0);
      expect_class(expected, 1, kind1);
      EXPECT_EQ(std::memcmp(&gram, &expected, sizeof gram), 0) << kind0 << ' ' << kind1;
    }
  }
}

TEST(SourceAttributes, NullArgumentsAreHarmless) {
  GRAMINFO gram = {{0, 0, 1u << 16, 0, 0, 0, 0}};
  const GRAMINFO before = gram;
  const std::uint32_t attributes[] = {1, 1};
  SetGrSrcAttr(&gram, nullptr);
  SetGrSrcAttr(nullptr, attributes);
  SetGrSrcAttr1(nullptr);
  EXPECT_EQ(std::memcmp(&gram, &before, sizeof gram), 0);
}

TEST(ParadigmValue, JoinsNumberAndBase) {
  EXPECT_EQ(MakeParadigm(12, 3), 0x0003000Cu);
  EXPECT_EQ(MakeParadigm(-2, -1), 0xFFFFFFFEu);
  EXPECT_EQ(MakeParadigm(-1, 5), 0xFFFFFFFFu);
  EXPECT_EQ(GetParaNum(0x0003000C), 12);
  EXPECT_EQ(GetParaNum(0x0003FFFE), -2);
  EXPECT_EQ(GetParaBase(0xFFFE000C), 0xFFFE);
}

}  // namespace
