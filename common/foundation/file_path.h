// Full paths as files and their status hold them.
#ifndef KZ_FOUNDATION_FILE_PATH_H
#define KZ_FOUNDATION_FILE_PATH_H

#include <string_view>

#include "kz/string.h"

namespace kz {

// Room for a path, with its terminating zero.
inline constexpr int kPathRoom = 260;

struct FullPath {
  ZCString text;  // fits kPathRoom; on failure the name itself, cut to fit
  bool ok;
};

FullPath full_path(const char* name) noexcept;

}  // namespace kz

#endif  // KZ_FOUNDATION_FILE_PATH_H
