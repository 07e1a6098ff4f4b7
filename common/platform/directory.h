// Files by name: status, attributes, times, copying, renaming, absolute paths.
//
// Unless stated otherwise a function returns false on failure and leaves the system's error number
// in errno. Nothing throws: without memory the process ends.
#ifndef KZ_PLATFORM_DIRECTORY_H
#define KZ_PLATFORM_DIRECTORY_H

#include <cstdint>
#include <optional>
#include <string>

namespace kz::platform {

// Attribute bits of a file.
inline constexpr unsigned kAttributeReadOnly = 0x01;
inline constexpr unsigned kAttributeHidden = 0x02;
inline constexpr unsigned kAttributeDirectory = 0x10;
inline constexpr unsigned kAttributeNormal = 0x80;  // none of the others

// Sizes in bytes, times in seconds since 1970-01-01 UTC.
struct FileInfo {
  std::int64_t size;
  std::int64_t created;  // the modification time where the file system keeps none
  std::int64_t modified;
  std::int64_t accessed;
};

bool info_of(int handle, FileInfo& info);
bool info_of(const char* name, FileInfo& info);

std::optional<unsigned> attributes(const char* name);
// Only the read-only bit can be set, and not on directories.
bool set_attributes(const char* name, unsigned attributes);
// Sets the times that have a value.
bool set_times(int handle, std::optional<std::int64_t> modified,
               std::optional<std::int64_t> accessed);

// Copies contents, modification time and those permissions that the umask leaves. The target
// appears, or is replaced, in one step when it is complete. Both files are opened under the sharing
// rules of open_file.
bool copy_file(const char* from, const char* to) noexcept;
// Never replaces an existing target.
bool rename_file(const char* from, const char* to) noexcept;
// Not for directories.
bool remove_file(const char* name);

// The path of a name from the root on, without "." parts and doubled separators; ".." parts are
// resolved except after a symbolic link. The file need not exist. Fails for an empty name.
std::optional<std::string> absolute_path(const char* name) noexcept;

}  // namespace kz::platform

#endif  // KZ_PLATFORM_DIRECTORY_H
