// Exported functions over zero-terminated entry text.
#include "kz/entry_text.h"

#include <cstring>
#include <string_view>

#include "entry/code_letter.h"
#include "entry/pack.h"
#include "entry/skip.h"
#include "kz/strutil.h"

namespace {

using kz::entry::CodeLetterTest;

constexpr std::size_t kNotFound = std::string_view::npos;

// The text up to its zero, and at most `size` characters of it.
std::string_view head_of(const char* text, std::size_t size) {
  const void* const end = std::memchr(text, 0, size);
  if (end != nullptr) size = static_cast<std::size_t>(static_cast<const char*>(end) - text);
  return {text, size};
}

// A missing language means Russian.
char target_of(const char* language) {
  return language == nullptr ? 'R' : kz::entry::target_letter(head_of(language, 3));
}

// A heap copy, null when memory runs out.
char* heap_copy(std::string_view text) {
  auto* const copy = static_cast<char*>(kz_misc_malloc(text.size() + 1));
  if (copy == nullptr) return nullptr;
  std::memcpy(copy, text.data(), text.size());
  copy[text.size()] = '\0';
  return copy;
}

}  // namespace

const char* SkipLabels(const char* text) {
  return text == nullptr ? nullptr : text + kz::labels_size(text);
}

char* SkipCLabels(char* text) {
  if (text == nullptr) return nullptr;
  const std::string_view whole(text);
  const kz::LabelledText found = kz::find_labelled_text(whole);
  std::memmove(text + found.cut, text + found.cut_end, whole.size() - found.cut_end + 1);
  return text + found.begin;
}

char* GetInf(char* text, KzWordRecord* word) {
  if (text == nullptr) return nullptr;
  const std::string_view whole(text);
  const std::size_t end = kz::find_inflection_end(whole);
  if (word != nullptr) {
    char* const inflection = heap_copy(whole.substr(0, end));
    kz_misc_free(word->inflection);
    word->inflection = inflection;
  }
  return end == whole.size() ? nullptr : text + end;
}

const char* GetExtSyn(const char* text, KzWordRecord* word) {
  if (text == nullptr || word == nullptr) return text;
  const std::string_view head = head_of(text, sizeof word->extended_code);
  if (kz::entry::char_at(head, 1) == 'W') return text;
  const std::size_t size = kz::extended_code_size(head);
  if (size == kNotFound) {
    word->extended_code[0] = '\0';
    return text;
  }
  std::memcpy(word->extended_code, text, size);
  word->extended_code[size] = '\0';
  return text + size + (text[size] == ' ' ? 1 : 0);
}

const char* GetAttrBegin(const char* text) {
  if (text == nullptr) return nullptr;
  const std::size_t begin = kz::find_attr(head_of(text, 8));
  return begin == kNotFound ? text : text + begin;
}

std::int16_t DicEntryGetSynPartCode(const char* part_text) {
  if (part_text == nullptr) return 0;
  return static_cast<unsigned char>(kz::entry::synonym_part_code(head_of(part_text, 1)));
}

std::int16_t IsDicEntryNewPart(const char* position, const char* language, int /*part*/) {
  if (position == nullptr || *position == 0) return 0;
  const CodeLetterTest test = kz::entry::new_part_test(target_of(language));
  return test.holds(position[0], position[1]) ? static_cast<unsigned char>(*position)
                                              : std::int16_t{0};
}

const char* GetNextPart(const char* position, const char* language, int part) {
  if (position == nullptr) return nullptr;
  return kz::find_next_part(position, target_of(language), static_cast<char>(part));
}

char* PackEntry(const char* source, char* destination, const char* language, int /*part*/) {
  if (destination == nullptr) return nullptr;
  const std::string_view text = source == nullptr ? std::string_view() : source;
  *kz::pack_entry(text, target_of(language), destination) = '\0';
  return destination;
}
