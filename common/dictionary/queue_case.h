// Comparison of file names and language codes: Latin letters in either case.
#ifndef KZ_DICTIONARY_QUEUE_CASE_H
#define KZ_DICTIONARY_QUEUE_CASE_H

#include <algorithm>
#include <string_view>

#include "kz/charclass.h"

namespace kz {

inline bool same_ascii_letter(char a, char b) { return __tolower(a) == __tolower(b); }

inline bool equal_ascii_case(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), same_ascii_letter);
}

}  // namespace kz

#endif  // KZ_DICTIONARY_QUEUE_CASE_H
