// Copying and renaming of files on POSIX systems.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "platform/directory.h"
#include "platform/file.h"
#include "platform/rename.h"
#include "platform/replace.h"

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

bool copy_bytes(int from, Replacement& to) {
  std::array<char, 65536> buffer;
  while (true) {
    const Transfer in = read_file(from, buffer.data(), buffer.size());
    if (!in.ok) return false;
    if (in.count == 0) return true;
    if (!to.write({buffer.data(), in.count})) return false;
  }
}

bool copy_open_file(int from, const char* to, const ReplaceOptions& options) {
  Replacement target;
  return target.begin(to, options) && copy_bytes(from, target) && target.commit();
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

}  // namespace

bool copy_file(const char* from, const char* to) noexcept {
  const Handle source(open_source(from));
  struct stat from_status;
  struct stat to_status;
  if (!source.is_open() || fstat(source.get(), &from_status) != 0) return false;
  if (stat(to, &to_status) == 0 &&
      (!S_ISREG(to_status.st_mode) || are_same(from_status, to_status))) {
    errno = EINVAL;
    return false;
  }
  return copy_open_file(source.get(), to, {.exclusive = true, .pattern = source.get()});
}

bool rename_file(const char* from, const char* to) noexcept {
  if (rename_sparing_target(AT_FDCWD, from, to)) return true;
  if (errno != EXDEV) return false;
  const Handle source(open_source(from));
  return source.is_open() &&
         copy_open_file(source.get(), to, {.must_be_new = true, .pattern = source.get()}) &&
         unlink(from) == 0;
}

}  // namespace kz::platform
