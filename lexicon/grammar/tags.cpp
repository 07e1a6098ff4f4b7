// Reads and writes tag strings with the library, and finds the tag of one flag.
#include "lexicon/grammar/tags.h"

#include <algorithm>
#include <cstring>

#include "kz/gram_codec.h"

namespace kz::lexicon {
namespace {

constexpr std::uint32_t kNoParadigm = std::uint32_t{65535} << GRAM_PARADIGM_NUMBER_SHIFT;

bool same_words(const GRAMINFO& a, const GRAMINFO& b) {
  return std::equal(std::begin(a.word), std::end(a.word), std::begin(b.word));
}

// Adds a tag string to `grammar`; the position after it.
std::size_t add_tags(char code, const std::string& text, Grammar& grammar) {
  char last_code = code;
  const char* end = StrToGram(text.c_str(), &last_code, &grammar.gram, &grammar.semantics, code,
                              grammar.latin.data());
  return static_cast<std::size_t>(end - text.c_str());
}

// What a piece of a tag string does to records without and with everything set: tags that clear
// something show in the second one.
std::array<Grammar, 2> effect(char code, const std::string& text) {
  std::array<Grammar, 2> records;
  std::fill(std::begin(records[1].gram.word), std::end(records[1].gram.word), 0xFFFFFFFFu);
  for (Grammar& grammar : records) add_tags(code, text, grammar);
  return records;
}

}  // namespace

bool operator==(const Grammar& a, const Grammar& b) {
  return same_words(a.gram, b.gram) && a.semantics.word == b.semantics.word && a.latin == b.latin;
}

Grammar no_grammar() {
  Grammar grammar;
  grammar.gram.word[3] = kNoParadigm;
  return grammar;
}

Grammar read_tags(char code, std::string_view text, std::string* unread) {
  Grammar grammar = no_grammar();
  const std::size_t end = add_tags(code, std::string(text), grammar);
  if (unread != nullptr) *unread = text.substr(end);
  return grammar;
}

std::string canonical_tags(char code, const Grammar& grammar) {
  std::array<char, GRAM_STRING_SIZE> text{};
  return GramToStr(code, &grammar.gram, &grammar.semantics, text.data());
}

std::string tag_for(char code, const Grammar& grammar) {
  std::string tag = canonical_tags(code, grammar);
  if (!tag.empty() && read_tags(code, tag) == grammar) return tag;
  for (const char* mark : {"", "-", "&"}) {
    for (int byte = 1; byte < 256; ++byte) {
      tag = mark;
      tag += static_cast<char>(byte);
      if (read_tags(code, tag) == grammar) return tag;
    }
  }
  return {};
}

std::string ignored_characters(char code, std::string_view text) {
  const std::string whole(text);
  std::string ignored;
  for (std::size_t at = 0; at < whole.size();) {
    if (std::strchr(")]\\|", whole[at]) != nullptr) break;
    Grammar scratch;
    char last_code = code;
    const char* last = StrToGram1(whole.c_str() + at, &last_code, &scratch.gram, &scratch.semantics,
                                  code, scratch.latin.data());
    const auto end = static_cast<std::size_t>(last - whole.c_str());
    const bool stopped = end == whole.size() || std::strchr(")]\\|", *last) != nullptr;
    std::string item = whole.substr(at, end - at + (stopped ? 0 : 1));
    at = end + (stopped ? 0 : 1);
    const std::array<Grammar, 2> full = effect(code, item);
    for (std::size_t i = 0; i < item.size();) {
      std::string shorter = item;
      shorter.erase(i, 1);
      if (effect(code, shorter) == full) {
        ignored += item[i];
        item = shorter;
      } else {
        ++i;
      }
    }
  }
  return ignored;
}

std::string_view tag_group(char code) {
  // A letter of each group that sets this bit in no other one.
  struct Probe {
    const char* group;
    const char* tag;
    int word;
    int bit;
  };
  constexpr std::array<Probe, 5> kProbes = {{{"noun", "N", 1, 2},
                                             {"adjective", "q", 6, 8},
                                             {"verb", "^", 1, 13},
                                             {"I", "S", 1, 15},
                                             {"pronoun", "R", 1, 22}}};
  for (const Probe& probe : kProbes) {
    if (read_tags(code, probe.tag).gram.word[probe.word] >> probe.bit & 1) return probe.group;
  }
  return {};
}

}  // namespace kz::lexicon
