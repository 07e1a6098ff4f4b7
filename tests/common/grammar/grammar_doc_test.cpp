// The examples of docs/grammar.md. Its tables are what the other tests compare the library with.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "kz/gram_attr.h"
#include "kz/gram_codec.h"
#include "kz/gram_map.h"
#include "tests/common/grammar/reference.h"

namespace {

// "words -> result", a line of a block.
struct Example {
  std::vector<std::string> words;
  std::string wanted;

  explicit Example(const std::string& line)
      : words(reference::words_of(line.substr(0, line.find("->")))),
        wanted(line.substr(std::min(line.size(), line.find("->") + 3))) {}
};

TEST(GrammarPage, TagStringsReadAndWriteAsShown) {
  for (const std::string& line : reference::page().blocks.at("tags")) {
    const Example example(line);
    const char code = example.words[0][0];
    GRAMINFO gram{};
    SEMANTICS semantics{};
    char out[GRAM_STRING_SIZE];
    StrToGram(example.words.back().c_str(), nullptr, &gram, &semantics, code, nullptr);
    EXPECT_EQ(GramToStr(code, &gram, &semantics, out), example.wanted) << line;
  }
}

TEST(GrammarPage, CompactAttributesExpandAsShown) {
  for (const std::string& line : reference::page().blocks.at("attributes")) {
    const Example example(line);
    std::uint32_t numbers[3];
    std::ranges::transform(example.words, numbers,
                           [](const auto& word) { return std::stoul(word); });
    const std::uint32_t attributes[] = {numbers[0] | numbers[1] << 8, numbers[2]};
    GRAMINFO gram{};
    SetGrSrcAttr(&gram, attributes);
    const char code = static_cast<char>(gram.word[2] >> 8);
    char out[GRAM_STRING_SIZE];
    EXPECT_EQ(code + (' ' + std::string(GramToStr(code, &gram, nullptr, out))), example.wanted);
  }
}

// A word record at an odd address, its fields by the page's names and offsets.
class Word {
 public:
  explicit Word(char code) { give("code", std::string(1, code)); }

  std::uint8_t* record() { return bytes_.data() + 1; }

  void give(const std::string& name, const std::string& value) {
    const auto& fields = reference::page().fields;
    const auto field = std::ranges::find(fields, name, &reference::Field::name);
    ASSERT_NE(field, fields.end()) << name;
    std::uint8_t* const place = record() + field->offset;
    if (field->type == "record") {
      read_grammar(value, place);
    } else if (field->type.starts_with("number")) {
      *place = static_cast<std::uint8_t>(std::stoi(value));
    } else {
      std::ranges::copy(value, place);
    }
  }

  // Fields as name=value.
  void give_all(const std::vector<std::string>& fields, std::size_t first) {
    for (; first < fields.size(); ++first) {
      const std::string& field = fields[first];
      give(field.substr(0, field.find('=')), field.substr(field.find('=') + 1));
    }
  }

  // The fields that are not 0, but the code only when it was changed from `code`.
  std::string summary(char code) {
    std::string result;
    for (const auto& [name, type, offset] : reference::page().fields) {
      const bool is_character = type == "character";
      if (!is_character && !type.starts_with("number")) continue;
      if (name == "foreign-code" || name == "russian-code") continue;
      std::uint32_t value = record()[offset];
      if (type == "number of 4 bytes") std::memcpy(&value, record() + offset, 4);
      if (value == (name == "code" ? static_cast<unsigned char>(code) : 0)) continue;
      result.append(result.empty() ? "" : " ").append(name).append("=");
      result += is_character ? std::string(1, static_cast<char>(value)) : std::to_string(value);
    }
    return result;
  }

  // The bits of a record of grammar that changed since `before`, as word/bit.
  std::string changes(const std::string& name, std::size_t offset, Word& before) {
    std::string result;
    for (std::size_t bit = 0; bit < 28 * 8; ++bit) {
      const std::size_t byte = offset + bit / 8;
      if ((record()[byte] ^ before.record()[byte]) >> bit % 8 & 1) {
        result += ' ' + name + '=' + std::to_string(bit / 32) + '/' + std::to_string(bit % 32);
      }
    }
    return result;
  }

 private:
  // Tags after the code that gives them their meaning, or one bit as word/bit.
  static void read_grammar(const std::string& text, std::uint8_t* place) {
    GRAMINFO gram{};
    if (text[1] == '/') gram.word[text[0] - '0'] = 1u << std::stoi(text.substr(2));
    if (text[1] == ':') StrToGram(&text[2], nullptr, &gram, nullptr, text[0], nullptr);
    std::memcpy(place, &gram, sizeof gram);
  }

  std::vector<std::uint8_t> bytes_ = std::vector<std::uint8_t>(1 + WORD_RECORD_SIZE);
};

using SetFunction = void(std::uint8_t*, std::int16_t);
const std::map<std::string, SetFunction*> set_functions = {
    {"er_set_rgram", er_set_rgram},
    {"er_set_egram", er_set_egram},
    {"re_set_rgram", re_set_rgram},
    {"re_set_egram", [](std::uint8_t* r, std::int16_t code) { re_set_egram(r, code, ""); }},
    {"er_set_vgram", [](std::uint8_t* r, std::int16_t) { er_set_vgram(r, r + 139); }},
    {"re_set_vgram", [](std::uint8_t* r, std::int16_t) { re_set_vgram(r, r + 139); }},
};

TEST(GrammarPage, MappingFunctionsGoByTheCodesShown) {
  for (const auto& [name, codes] : reference::page().mapped) {
    if (!set_functions.contains(name)) continue;
    for (int code = 1; code < 256; ++code) {
      Word word(0), before(0);
      for (Word* each : {&word, &before}) std::memset(each->record() + 139, 0xFF, 56);
      // A code may come as a signed or as an unsigned character.
      set_functions.at(name)(word.record(),
                             static_cast<std::int16_t>(code % 2 ? code : code - 256));
      EXPECT_EQ(std::memcmp(word.record(), before.record(), WORD_RECORD_SIZE) != 0,
                codes.find(static_cast<char>(code)) != std::string::npos)
          << name << ' ' << code;
    }
  }
}

TEST(GrammarPage, RulesSetWhatIsShown) {
  for (const std::string& line : reference::page().blocks.at("rules")) {
    const Example example(line);
    const std::string& function = example.words[0];
    for (const char code : example.words[1]) {
      Word word(code);
      word.give(function.ends_with("rgram") ? "russian" : "foreign", example.words[2]);
      word.give_all(example.words, 3);
      Word before = word;
      set_functions.at(function)(word.record(), code);
      std::string result = word.summary(static_cast<char>(before.record()[16]));
      result += word.changes("foreign", 139, before) + word.changes("russian", 167, before);
      EXPECT_EQ(result, example.wanted) << code << ": " << line;
    }
  }
}

// The code by which a record of grammar was read, "-" for none, and its tags.
std::string tags_read(std::uint8_t code, const GRAMINFO& gram) {
  char out[GRAM_STRING_SIZE];
  return (code != 0 ? static_cast<char>(code) : '-') +
         std::string(GramToStr('N', &gram, nullptr, out));
}

TEST(GrammarPage, TextsAreReadAndMappedAsShown) {
  for (const char* block : {"reading", "mapping"}) {
    for (const std::string& line : reference::page().blocks.at(block)) {
      const Example example(line);
      const std::string &function = example.words[0], &mode = example.words[1];
      const char code = example.words[2][0], *text = example.words[3].c_str();
      Word word(code);
      word.give_all(example.words, 4);
      const WordRecordView view(word.record());
      if (mode == "-") {
        text = (function == "er_get_rgram_gt" ? er_get_rgram_gt : re_get_egram_gt)(text,
                                                                                   word.record());
      } else {
        text = (function == "er_get_wgram" ? er_get_wgram : re_get_wgram)(
            static_cast<std::int16_t>(std::stoi(mode)), text, word.record(), code);
      }
      const std::string read = tags_read(view.foreign_code(), view.foreign_gram()) + ' ' +
                               tags_read(view.russian_code(), view.russian_gram()) + ' ' + text;
      EXPECT_EQ(block == std::string("reading") ? read : word.summary(code), example.wanted)
          << line;
    }
  }
}

}  // namespace
