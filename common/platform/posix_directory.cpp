// Status, attributes, times and paths of files on POSIX systems.
#include "platform/directory.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string_view>

namespace kz::platform {
namespace {

constexpr mode_t kAnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;

bool read_info(int directory, const char* name, int flags, FileInfo& info) {
  struct statx status;
  if (statx(directory, name, flags, STATX_BASIC_STATS | STATX_BTIME, &status) != 0) return false;
  info.size = static_cast<std::int64_t>(status.stx_size);
  info.modified = status.stx_mtime.tv_sec;
  info.accessed = status.stx_atime.tv_sec;
  info.created = (status.stx_mask & STATX_BTIME) != 0 ? status.stx_btime.tv_sec : info.modified;
  return true;
}

// True when the last part of a path begins with a dot; the parts "." and ".." are no such names.
bool is_hidden(std::string_view path) {
  while (path.ends_with('/')) path.remove_suffix(1);
  const std::string_view name = path.substr(path.rfind('/') + 1);
  return name.starts_with('.') && name != "." && name != "..";
}

struct timespec file_time(std::optional<std::int64_t> seconds) {
  struct timespec time {};
  if (seconds)
    time.tv_sec = static_cast<time_t>(*seconds);
  else
    time.tv_nsec = UTIME_OMIT;
  return time;
}

// Appends one part of a path to a path that has its parts already resolved.
void append_part(std::string& path, std::string_view part) {
  if (part.empty() || part == ".") return;
  std::error_code ignored;
  if (part == ".." && !std::filesystem::is_symlink(path, ignored)) {
    path.erase(path.empty() ? 0 : path.rfind('/'));
    return;
  }
  path += '/';
  path += part;
}

void append_parts(std::string& path, std::string_view parts) {
  for (std::size_t end = 0; end != std::string_view::npos;) {
    end = parts.find('/');
    append_part(path, parts.substr(0, end));
    if (end != std::string_view::npos) parts.remove_prefix(end + 1);
  }
}

}  // namespace

bool info_of(int handle, FileInfo& info) { return read_info(handle, "", AT_EMPTY_PATH, info); }

bool info_of(const char* name, FileInfo& info) { return read_info(AT_FDCWD, name, 0, info); }

std::optional<unsigned> attributes(const char* name) {
  struct stat status;
  if (stat(name, &status) != 0) return std::nullopt;
  unsigned bits = 0;
  if ((status.st_mode & kAnyWriteBit) == 0) bits |= kAttributeReadOnly;
  if (is_hidden(name)) bits |= kAttributeHidden;
  if (S_ISDIR(status.st_mode)) bits |= kAttributeDirectory;
  return bits != 0 ? bits : kAttributeNormal;
}

bool set_attributes(const char* name, unsigned attributes) {
  struct stat status;
  if (stat(name, &status) != 0) return false;
  if (S_ISDIR(status.st_mode)) {
    // Without write permission no file could be made in it, which is not what read-only means.
    errno = EISDIR;
    return false;
  }
  mode_t mode = status.st_mode & 07777;
  if ((attributes & kAttributeReadOnly) != 0)
    mode &= ~kAnyWriteBit;
  else if ((mode & kAnyWriteBit) == 0)
    mode |= S_IWUSR;
  return chmod(name, mode) == 0;
}

bool set_times(int handle, std::optional<std::int64_t> modified,
               std::optional<std::int64_t> accessed) {
  const struct timespec times[] = {file_time(accessed), file_time(modified)};
  return futimens(handle, times) == 0;
}

bool remove_file(const char* name) { return unlink(name) == 0; }

std::optional<std::string> absolute_path(const char* name) noexcept {
  const std::string_view given = name;
  if (given.empty()) {
    errno = ENOENT;
    return std::nullopt;
  }
  std::string path;
  if (!given.starts_with('/')) {
    std::error_code error;
    const std::filesystem::path current = std::filesystem::current_path(error);
    if (error) {
      errno = error.value();
      return std::nullopt;
    }
    append_parts(path, current.native());
  }
  append_parts(path, given);
  if (path.empty() || given.ends_with('/')) path += '/';
  return path;
}

}  // namespace kz::platform
