// Renaming that never replaces a file.
#ifndef KZ_PLATFORM_RENAME_H
#define KZ_PLATFORM_RENAME_H

namespace kz::platform {

// Both names are in a directory, given by its handle, or are paths. False, with EEXIST in errno,
// when the new one exists.
bool rename_sparing_target(int directory, const char* from, const char* to);

}  // namespace kz::platform

#endif  // KZ_PLATFORM_RENAME_H
