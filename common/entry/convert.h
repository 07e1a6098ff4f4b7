// Entries, and texts of two scripts, between the ansi and the oem code pages.
#ifndef KZ_ENTRY_CONVERSION_H
#define KZ_ENTRY_CONVERSION_H

#include <span>
#include <string_view>

#include "text/char_classes.h"
#include "text/conversions.h"

namespace kz {

// One direction of conversion: what the tables of the two scripts make of a byte, and how the
// source is read.
struct CodePages {
  const Translation& russian;
  const Translation& western;
  CharClass russian_letter;  // in the source
  ByteMap western_to_ansi;   // the source as a letter of Windows-1252
};

inline constexpr CodePages kToOem{kRuAnsiToOem, kAnsiToOem, char_class::kRuAnsiAlpha,
                                  identity_map()};
inline constexpr CodePages kToAnsi{kRuOemToAnsi, kOemToAnsi, char_class::kRuOemAlpha,
                                   kOemToAnsi.codes};

// Converts a full entry in place, section by section.
void convert_entry(const CodePages& pages, std::span<char> entry, const char* language);

// Converts Russian words and words in Latin letters; `out` has room for as many characters and may
// be the text itself. A null language has no letters of its own.
void convert_mixed(const CodePages& pages, std::string_view text, const char* language, char* out);

}  // namespace kz

#endif  // KZ_ENTRY_CONVERSION_H
