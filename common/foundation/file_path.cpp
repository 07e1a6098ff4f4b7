// Full paths, and the parts of names.
#include "foundation/file_path.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string>

#include "kz/file.h"
#include "platform/directory.h"

namespace {

ZCString string_of(std::string_view text, std::size_t limit) {
  return {text.data(), static_cast<int>(std::min(text.size(), limit))};
}

}  // namespace

kz::FullPath kz::full_path(const char* name) noexcept {
  const std::optional<std::string> path = platform::absolute_path(name);
  if (path && path->size() < kPathRoom) return {string_of(*path, kPathRoom - 1), true};
  if (path) errno = ENAMETOOLONG;
  return {string_of(name, kPathRoom - 1), false};
}

ZCString ZCFile::GetFilePath() { return path_.Left(kz::kPathRoom - 1); }

void ZCFile::SetFilePath(const char* path) { path_ = path; }

ZCString ZCFile::GetFileName() {
  const ZCString path = ZCFile::GetFilePath();
  std::string_view name(path, static_cast<std::size_t>(path.GetLength()));
  name.remove_prefix(name.find_last_of("\\/:") + 1);
  return string_of(name, 256);
}

ZCString ZCFile::GetFileTitle() { return ZCFile::GetFileName(); }

ZCString ZCFile::GetExt(const char* name) const {
  const std::string_view text = name != nullptr ? name : "";
  const std::size_t dot = text.rfind('.');
  return dot == std::string_view::npos ? ZCString() : ZCString(name + dot);
}
