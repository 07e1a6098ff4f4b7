// File names: their parts, their extensions, their short forms.
#include <cstddef>
#include <cstring>
#include <string_view>

#include "kz/charclass.h"
#include "kz/strutil.h"

namespace {

// The separator that follows the one at `current`: a backslash, after the last of them a slash.
std::size_t next_separator(std::string_view directory, std::size_t current) {
  const std::size_t backslash = directory.find('\\', current + 1);
  return backslash != std::string_view::npos ? backslash : directory.find('/', current + 1);
}

}  // namespace

int HasWildCards(const char* path) {
  return path != nullptr && std::strpbrk(path, "*?") != nullptr ? 1 : 0;
}

const char* GetFileName(const char* path) {
  if (path == nullptr) return nullptr;
  for (const char separator : {'\\', '/', ':'}) {
    if (const char* last = std::strrchr(path, separator)) return last + 1;
  }
  return path;
}

const char* GetExt(const char* path) {
  if (path == nullptr) return nullptr;
  const char* const name = GetFileName(path);
  const char* const dot = std::strrchr(name, '.');
  return dot != nullptr ? dot : name + std::strlen(name);
}

char* set_pathsep(char* path) {
  if (path == nullptr || *path == '\0') return path;
  char* const end = path + std::strlen(path);
  if (end[-1] != '\\' && end[-1] != '/') std::memcpy(end, "\\", 2);
  return path;
}

char* SetExt(char* destination, const char* source, const char* extension) {
  const std::string_view path = source == nullptr ? "" : source;
  const std::string_view suffix = extension == nullptr ? "" : extension;
  std::memmove(destination, path.data(), path.size());
  char* end = destination + path.size();
  *end = '\0';
  if (!suffix.starts_with('.')) {
    *end++ = '.';
  } else if (char* dot = std::strrchr(destination, '.')) {
    end = dot;
  }
  std::memcpy(end, suffix.data(), suffix.size());
  end[suffix.size()] = '\0';
  return destination;
}

char* get_short_path(char* path, int16_t maximum) {
  if (path == nullptr || maximum < 16) return path;
  const std::string_view whole = path;
  const auto limit = static_cast<std::size_t>(maximum);
  if (whole.size() <= limit) return path;
  const std::size_t excess = whole.size() - limit;

  const std::size_t drive = _isalpha(whole[0]) != 0 && whole[1] == ':' ? 2 : 0;
  const std::size_t directory_size = whole.find_last_of("\\/") + 1;
  if (directory_size <= drive) return path;
  const std::string_view directory = whole.substr(drive, directory_size - drive);

  constexpr std::string_view kEllipsis = "\\...";
  std::size_t kept = next_separator(directory, 0);
  while (kept != std::string_view::npos && kept < kEllipsis.size() + excess) {
    kept = next_separator(directory, kept);
  }
  const bool found = kept != std::string_view::npos;
  const std::string_view start = found ? kEllipsis : kEllipsis.substr(0, 1);
  const std::string_view rest = whole.substr(drive + (found ? kept : directory.size()));
  std::memmove(path + drive + start.size(), rest.data(), rest.size() + 1);
  std::memcpy(path + drive, start.data(), start.size());
  return path;
}
