// Which lines of the library's word tables count.
#ifndef KZ_UTIL_LIST_FILE_H
#define KZ_UTIL_LIST_FILE_H

#include <string_view>

#include "kz/charclass.h"

namespace kz {

// What separates the words of such a line.
inline constexpr std::string_view kTableBlanks = " \t\r\n";

// Only lines that begin with a letter do: a comment begins with "*", say.
inline bool is_table_line(std::string_view line) {
  return !line.empty() && (isansialpha(line.front()) != 0 || isruansialpha(line.front()) != 0);
}

}  // namespace kz

#endif  // KZ_UTIL_LIST_FILE_H
