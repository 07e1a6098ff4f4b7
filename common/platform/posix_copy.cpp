// Copying and renaming of files on POSIX systems.
#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <filesystem>
#include <string>

#include "platform/directory.h"
#include "platform/file.h"

namespace kz::platform {
namespace {

// An open handle, closed at the end without touching errno.
class Handle {
 public:
  explicit Handle(int handle) : handle_(handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    const int error = errno;
    if (handle_ >= 0) close_file(handle_);
    errno = error;
  }
  bool is_open() const { return handle_ >= 0; }
  int get() const { return handle_; }

 private:
  int handle_;
};

// Unfinished copies get a name of their own beside the target, so that the rename stays within one
// file system.
std::string name_beside(const std::string& target) {
  static std::atomic<unsigned> count{0};
  return target.substr(0, target.rfind('/') + 1) + ".kz-copy-" + std::to_string(getpid()) + '-' +
         std::to_string(count.fetch_add(1, std::memory_order_relaxed));
}

bool copy_bytes(int from, int to) {
  std::array<char, 65536> buffer;
  while (true) {
    const Transfer in = read_file(from, buffer.data(), buffer.size());
    if (!in.ok) return false;
    if (in.count == 0) return true;
    const Transfer out = write_file(to, buffer.data(), in.count);
    if (!out.ok) return false;
  }
}

bool copy_to_new_file(int from, const std::string& name) {
  struct stat status;
  if (fstat(from, &status) != 0) return false;
  const Handle to(open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                       status.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO)));
  if (!to.is_open()) return false;
  const struct timespec times[] = {{0, UTIME_OMIT}, status.st_mtim};
  if (copy_bytes(from, to.get()) && futimens(to.get(), times) == 0 && flush(to.get())) return true;
  const int error = errno;
  unlink(name.c_str());
  errno = error;
  return false;
}

// For file systems whose rename has no variant that spares the target.
bool rename_by_link(const char* from, const char* to) {
  if (link(from, to) == 0) return unlink(from) == 0;
  if (errno == EEXIST || errno == ENOENT || errno == EXDEV) return false;
  struct stat status;
  if (lstat(to, &status) == 0) {
    errno = EEXIST;
    return false;
  }
  return errno == ENOENT && rename(from, to) == 0;
}

bool rename_sparing_target(const char* from, const char* to) {
  if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) return true;
  return (errno == EINVAL || errno == ENOSYS) && rename_by_link(from, to);
}

using Rename = bool (*)(const char* from, const char* to);

bool copy_and_rename(int from, const std::string& target, Rename rename_to_target) {
  std::string unfinished;
  do {  // names that a process which died has left behind are passed over
    unfinished = name_beside(target);
    if (copy_to_new_file(from, unfinished)) break;
    if (errno != EEXIST) return false;
  } while (true);
  if (rename_to_target(unfinished.c_str(), target.c_str())) return true;
  const int error = errno;
  unlink(unfinished.c_str());
  errno = error;
  return false;
}

// Only regular files have an end to copy to.
int open_source(const char* name) {
  const int handle =
      open_file(name, {.read = true, .others_may_read = true, .others_may_write = true});
  if (handle == kNoFile || is_regular(handle)) return handle;
  close_file(handle);
  errno = EINVAL;
  return kNoFile;
}

bool are_same(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool rename_replacing(const char* from, const char* to) { return rename(from, to) == 0; }

// Where the path of the target really leads, so that a link to a file stays a link.
std::string resolved(const char* target) {
  std::error_code error;
  const std::filesystem::path path = std::filesystem::canonical(target, error);
  return error ? target : path.native();
}

}  // namespace

bool copy_file(const char* from, const char* to) noexcept {
  const Handle source(open_source(from));
  struct stat from_status;
  struct stat to_status;
  if (!source.is_open() || fstat(source.get(), &from_status) != 0) return false;
  const bool replaces = stat(to, &to_status) == 0;
  if (!replaces) return errno == ENOENT && copy_and_rename(source.get(), to, rename_replacing);
  if (!S_ISREG(to_status.st_mode) || are_same(from_status, to_status)) {
    errno = EINVAL;
    return false;
  }
  // Held until the end: nobody else may use the file that is about to be replaced.
  const Handle target(open_file(to, {.write = true}));
  return target.is_open() && copy_and_rename(source.get(), resolved(to), rename_replacing);
}

bool rename_file(const char* from, const char* to) noexcept {
  if (rename_sparing_target(from, to)) return true;
  if (errno != EXDEV) return false;
  const Handle source(open_source(from));
  return source.is_open() && copy_and_rename(source.get(), to, rename_sparing_target) &&
         unlink(from) == 0;
}

}  // namespace kz::platform
