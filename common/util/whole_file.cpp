// Whole files: written under a temporary name, then renamed.
#include "util/whole_file.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "kz/file.h"

namespace kz {
namespace {

namespace fs = std::filesystem;

constexpr unsigned kWrite = 0x8081;  // shared with nobody, not even with child processes
constexpr int kMostLeftovers = 1000;

bool write_into(const char* name, std::string_view bytes) {
  ZCFile file;
  if (!file.Open(name, kWrite)) return false;
  const auto count = static_cast<unsigned>(bytes.size());
  if (file.Write(bytes.data(), count) != count) return false;
  file.Flush();
  return true;
}

// Creates an empty file of a new name beside the target, so that the rename stays within one file
// system. Names that a process which died has left behind are passed over.
std::optional<std::string> create_beside(const fs::path& target) {
  for (int n = 0; n < kMostLeftovers; ++n) {
    std::string name = (target.parent_path() / (".kz-save-" + std::to_string(n))).string();
    if (std::FILE* const file = std::fopen(name.c_str(), "wbx")) {
      std::fclose(file);
      return name;
    }
    if (errno != EEXIST) break;
  }
  return std::nullopt;
}

// Where a chain of links to a file that is not there leads.
fs::path behind_links(fs::path path) {
  std::error_code error;
  while (fs::is_symlink(fs::symlink_status(path, error))) {
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return path;
}

bool write_and_rename(const fs::path& target, fs::perms permissions, std::string_view bytes) {
  const auto unfinished = create_beside(target);
  if (!unfinished) return false;
  std::error_code error;
  if (permissions != fs::perms::unknown) {
    // Until it has its own, nobody else reads what may be private.
    fs::permissions(*unfinished, fs::perms::owner_read | fs::perms::owner_write, error);
  }
  if (write_into(unfinished->c_str(), bytes)) {
    if (permissions != fs::perms::unknown) fs::permissions(*unfinished, permissions, error);
    fs::rename(*unfinished, target, error);
    if (!error) return true;
  }
  fs::remove(*unfinished, error);
  return false;
}

}  // namespace

bool write_whole_file(const char* path, std::string_view bytes) noexcept {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) {
    return write_and_rename(behind_links(path), fs::perms::unknown, bytes);
  }
  if (!fs::is_regular_file(status)) return write_into(path, bytes);
  // Held until the end: nobody else may use the file that is about to be replaced.
  ZCFile held;
  if (!held.Open(path, kWrite)) return false;
  const fs::path target = fs::canonical(path, error);  // so that a link to a file stays a link
  return !error && write_and_rename(target, status.permissions(), bytes);
}

}  // namespace kz
