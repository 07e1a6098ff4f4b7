// The sections of an entry, and the code page of each of them.
//
// An entry is one line: head word, '*', part of speech with an optional attribute block, body,
// source sections after backslashes. The head word and the source sections are in the code page
// of the source language, the body in that of the target language.
#ifndef KZ_LEXICON_ENTRY_LAYOUT_H
#define KZ_LEXICON_ENTRY_LAYOUT_H

#include <cstddef>
#include <string>
#include <string_view>

#include "lexicon/text/code_page.h"

namespace kz::lexicon {

// Offsets into an entry; each section ends where the next one begins. Without a '*' everything is
// head word and all offsets are the length.
struct EntryLayout {
  std::size_t head_end = 0;     // the '*'
  std::size_t part = 0;         // part code, extension, attribute block
  std::size_t body = 0;         // meanings
  std::size_t source = 0;       // source reference and source word, with their backslashes
  std::size_t source_word = 0;  // the two backslashes of the source word; the length without one
};

EntryLayout layout_of(std::string_view entry);
EntryLayout layout_of(std::u32string_view entry);

// "EN", "RU", "DE", "FR" or a pair of two of them.
bool is_language(std::string_view language);
// The letters of the index alphabet of a language: 26, 32 or 43.
int alphabet_size(std::string_view language);

CodePage source_page(std::string_view language);
CodePage target_page(std::string_view language);
// Of title, label and password.
CodePage header_page(std::string_view language);

std::string encode_entry(std::u32string_view entry, std::string_view language);
std::string decode_entry(std::string_view entry, std::string_view language);  // UTF-8

// Lower case by the dictionary's source language; the bytes of its code page.
std::string lower_case(std::string word, std::string_view language);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_ENTRY_LAYOUT_H
