// ZCFile: status and operations on named files.
#include <algorithm>
#include <cstring>
#include <optional>
#include <string_view>

#include "foundation/file_path.h"
#include "foundation/time_range.h"
#include "kz/file.h"
#include "platform/directory.h"
#include "platform/file.h"

namespace platform = kz::platform;

namespace {

const char* text_of(const char* text) { return text != nullptr ? text : ""; }

void store_name(ZCFileStatus& status, std::string_view path) {
  const std::size_t size = path.copy(status.full_name, sizeof status.full_name - 1);
  status.full_name[size] = '\0';
}

// Size and times; a time of 0 that is not the modification time becomes that.
void store_info(ZCFileStatus& status, const platform::FileInfo& info) {
  const std::int32_t modified = kz::saturated(info.modified);
  const auto time_or_modified = [modified](std::int64_t time) {
    return time != 0 ? kz::saturated(time) : modified;
  };
  status.creation_time = time_or_modified(info.created);
  status.modification_time = modified;
  status.access_time = time_or_modified(info.accessed);
  status.size = static_cast<std::uint32_t>(info.size);
}

std::optional<std::int64_t> time_to_set(const ZCTime& time) {
  return time.GetTime() != 0 ? std::optional<std::int64_t>(time.GetTime()) : std::nullopt;
}

void set_times(const char* name, const ZCFileStatus& status) {
  const int handle = platform::open_file(
      name, {.read = true, .write = true, .others_may_read = true, .inherit = false});
  if (handle == platform::kNoFile) return;
  platform::set_times(handle, time_to_set(status.modification_time),
                      time_to_set(status.access_time));
  platform::close_file(handle);
}

}  // namespace

// All fields stay unset by design.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
ZCFileStatus::ZCFileStatus() {}

int ZCFile::GetStatus(ZCFileStatus& status) const {
  store_info(status, {});
  status.attribute = 0;
  std::fill(std::begin(status.full_name), std::end(status.full_name), '\0');
  store_name(status, {path_, static_cast<std::size_t>(path_.GetLength())});
  if (handle_ == platform::kNoFile) return 1;
  platform::FileInfo info;
  if (!platform::info_of(handle_, info)) return 0;
  store_info(status, info);
  if (path_.IsEmpty() == 0)
    status.attribute = static_cast<std::uint8_t>(platform::attributes(path_).value_or(0));
  return 1;
}

int ZCFile::GetStatus(const char* name, ZCFileStatus& status) const {
  const kz::FullPath path = kz::full_path(text_of(name));
  store_name(status, path.ok ? static_cast<const char*>(path.text) : "");
  if (!path.ok) return 0;
  platform::FileInfo info;
  const auto attributes = platform::attributes(text_of(name));
  if (!attributes || !platform::info_of(text_of(name), info)) return 0;
  store_info(status, info);
  status.attribute = static_cast<std::uint8_t>(*attributes & ~platform::kAttributeNormal);
  return 1;
}

void ZCFile::SetStatus(const char* name, const ZCFileStatus& status) {
  name = text_of(name);
  const auto current = platform::attributes(name);
  if (!current) return;
  const bool differs = *current != status.attribute;
  const bool read_only = (*current & platform::kAttributeReadOnly) != 0;
  if (differs && read_only) platform::set_attributes(name, status.attribute);
  if (status.modification_time.GetTime() != 0) set_times(name, status);
  if (differs && !read_only) platform::set_attributes(name, status.attribute);
}

int ZCFile::Copy(const char* from, const char* to) {
  return platform::copy_file(text_of(from), text_of(to));
}

int ZCFile::Rename(const char* from, const char* to) {
  return platform::rename_file(text_of(from), text_of(to));
}

int ZCFile::Remove(const char* name) { return platform::remove_file(text_of(name)); }

int ZCFile::IsEmpty() const {
  ZCFileStatus status;
  GetStatus(status);
  return status.size == 0;
}

int ZCFile::IsEmpty(const char* name) const {
  ZCFileStatus status;
  return GetStatus(name, status) == 0 || status.size == 0;
}

int ZCFile::IsFileExist(const char* name) const {
  if (handle_ != platform::kNoFile) return 1;
  const int handle = platform::open_file(text_of(name), {.read = true});
  if (handle == platform::kNoFile) return 0;
  platform::close_file(handle);
  return 1;
}

char* ZCFile::MakeTemp(char* pattern) const {
  if (pattern == nullptr) return nullptr;
  char* const end = pattern + std::strlen(pattern);
  char* first = end;
  while (first != pattern && first[-1] == 'X') {
    --first;
    *first = first + 1 == end ? '1' : '0';
  }
  if (end - first != 6) return nullptr;
  for (char letter = 'a'; IsFileExist(pattern) != 0; ++letter) {
    if (letter > 'z') return nullptr;
    *first = letter;
  }
  return pattern;
}
