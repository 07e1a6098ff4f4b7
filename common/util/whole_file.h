// Writing a file as a whole: it appears, or is replaced, in one step.
#ifndef KZ_UTIL_WHOLE_FILE_H
#define KZ_UTIL_WHOLE_FILE_H

#include <string_view>

namespace kz {

// Writes the bytes beside the target and renames the result, so that nobody ever sees a part and
// the old contents stay when writing fails. False when the file cannot be written: also when it is
// read-only, a directory, or open elsewhere. What is no regular file (a device) is written through.
bool write_whole_file(const char* path, std::string_view bytes) noexcept;

}  // namespace kz

#endif  // KZ_UTIL_WHOLE_FILE_H
