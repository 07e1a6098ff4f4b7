// Replacing of files on POSIX systems.
#include "platform/replace.h"

#include <fcntl.h>
#include <signal.h>
#include <stdio.h>
#include <sys/mman.h>
#include <sys/random.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <optional>
#include <thread>

#include "platform/file.h"
#include "platform/rename.h"
#include "platform/sharing.h"

namespace kz::platform {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kPermissions = 07777;
constexpr mode_t kAnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;

// Leaving a scope does not touch errno.
class KeepErrno {
 public:
  KeepErrno() : error_(errno) {}
  KeepErrno(const KeepErrno&) = delete;
  KeepErrno& operator=(const KeepErrno&) = delete;
  ~KeepErrno() { errno = error_; }

 private:
  int error_;
};

// What a handler looks at is complete before it runs.
class SignalsWait {
 public:
  SignalsWait() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  SignalsWait(const SignalsWait&) = delete;
  SignalsWait& operator=(const SignalsWait&) = delete;
  ~SignalsWait() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_;
};

bool fail(int error) {
  errno = error;
  return false;
}

void close_if_open(int& handle) {
  const KeepErrno keep;
  if (handle >= 0) close(handle);
  handle = kNoFile;
}

bool are_same(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// Unlike one of the system's calls, complete on pipes as well.
bool write_all(int handle, std::string_view bytes) {
  while (!bytes.empty()) {
    const Transfer done = write_file(handle, bytes.data(), bytes.size());
    if (!done.ok) return false;
    if (done.count == 0) return fail(EIO);
    bytes.remove_prefix(done.count);
  }
  return true;
}

// All of a regular file.
bool copy_contents(int from, int to) {
  std::string buffer(std::size_t{1} << 16, '\0');
  for (std::int64_t at = 0;;) {
    const Transfer in = read_at(from, buffer.data(), buffer.size(), at);
    if (!in.ok) return false;
    if (in.count == 0) return true;
    if (!write_all(to, std::string_view(buffer).substr(0, in.count))) return false;
    at += static_cast<std::int64_t>(in.count);
  }
}

// Some file systems report here alone that data could not be stored.
bool close_succeeds(int handle) {
  const int twin = duplicate(handle);
  return twin != kNoFile && close_file(twin);
}

// Devices and pipes cannot be flushed.
bool flush_where_possible(int handle) { return flush(handle) || errno == EINVAL || errno == EROFS; }

int connect_to(const char* name) {
  struct sockaddr_un address {};
  address.sun_family = AF_UNIX;
  if (std::strlen(name) >= sizeof address.sun_path) {
    errno = ENAMETOOLONG;
    return kNoFile;
  }
  std::memcpy(address.sun_path, name, std::strlen(name));
  int handle = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (handle < 0) return kNoFile;
  if (connect(handle, reinterpret_cast<const struct sockaddr*>(&address), sizeof address) != 0) {
    close_if_open(handle);
  }
  return handle;
}

// Opens what is no regular file, or is open as standard output and could not be replaced or opened
// by a name. Waits for the reader of a pipe.
int open_stream(const char* name, const struct stat& status) {
  struct stat output;
  if ((S_ISREG(status.st_mode) || S_ISSOCK(status.st_mode)) && fstat(STDOUT_FILENO, &output) == 0 &&
      are_same(output, status)) {
    return duplicate(STDOUT_FILENO);
  }
  if (S_ISREG(status.st_mode)) return kNoFile;
  if (S_ISSOCK(status.st_mode)) return connect_to(name);
  int handle;
  do {
    handle = open(name, O_WRONLY | O_NOCTTY | O_CLOEXEC);
  } while (handle < 0 && errno == EINTR);
  return handle;
}

// Where a path leads through links, whether there is a file or not.
std::optional<fs::path> resolved(fs::path path) {
  constexpr int kMostLinks = 40;
  std::error_code error;
  for (int links = 0; links < kMostLinks; ++links) {
    if (!fs::is_symlink(fs::symlink_status(path, error))) return path;
    const fs::path next = fs::read_symlink(path, error);
    if (error) {
      errno = error.value();
      return std::nullopt;
    }
    path = path.parent_path() / next;
  }
  errno = ELOOP;
  return std::nullopt;
}

bool names_file(const char* name, int handle) {
  struct stat named;
  struct stat opened;
  return stat(name, &named) == 0 && fstat(handle, &opened) == 0 && are_same(named, opened);
}

int open_directory(const std::string& name) {
  const char* const path = name.empty() ? "." : name.c_str();
  const int handle = open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  // Files can be made in a directory that may not be read.
  return handle >= 0 ? handle : open(path, O_PATH | O_DIRECTORY | O_CLOEXEC);
}

bool make_unfinished_name(std::array<char, 40>& name) {
  std::uint64_t number = 0;
  if (getrandom(&number, sizeof number, 0) != sizeof number) return false;
  char* end = name.data() + kUnfinishedPrefix.copy(name.data(), kUnfinishedPrefix.size());
  for (int digit = 0; digit < 16; ++digit, number >>= 4) *end++ = "0123456789abcdef"[number & 15];
  *end = '\0';
  return true;
}

// For file systems whose rename has no variant that spares the target.
bool rename_by_link(int directory, const char* from, const char* to) {
  if (linkat(directory, from, directory, to, 0) == 0) return unlinkat(directory, from, 0) == 0;
  if (errno == EEXIST || errno == ENOENT || errno == EXDEV) return false;
  struct stat status;
  if (fstatat(directory, to, &status, AT_SYMLINK_NOFOLLOW) == 0) return fail(EEXIST);
  return errno == ENOENT && renameat(directory, from, directory, to) == 0;
}

bool is_forbidden(int error) { return error == EACCES || error == EPERM || error == EROFS; }

bool copy_time(int from, int to) {
  struct stat status;
  if (fstat(from, &status) != 0) return false;
  const struct timespec times[] = {{0, UTIME_OMIT}, status.st_mtim};
  return futimens(to, times) == 0;
}

// Finds room for a file that grows before any of its bytes is lost.
bool reserve(int handle, off_t size) {
  struct stat status;
  if (fstat(handle, &status) != 0) return false;
  if (size <= status.st_size || fallocate(handle, 0, 0, size) == 0) return true;
  if (errno == EOPNOTSUPP || errno == ENOSYS) return true;
  const KeepErrno keep;
  set_length(handle, status.st_size);
  return false;
}

// Waits for other writers that do the same.
bool hold(int handle) {
  constexpr int kAttempts = 500;
  for (int attempt = 1; !join_sharing(handle, {.write = true}, true); ++attempt) {
    if (attempt == kAttempts) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return true;
}

}  // namespace

bool rename_sparing_target(int directory, const char* from, const char* to) {
  if (renameat2(directory, from, directory, to, RENAME_NOREPLACE) == 0) return true;
  return (errno == EINVAL || errno == ENOSYS) && rename_by_link(directory, from, to);
}

void remove_unfinished(const UnfinishedFile& file) noexcept {
  if (file.name[0] == '\0') return;
  const KeepErrno keep;
  struct stat named;
  struct stat opened;
  if (fstatat(file.directory, file.name.data(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
      fstat(file.handle, &opened) == 0 && are_same(named, opened)) {
    unlinkat(file.directory, file.name.data(), 0);
  }
}

void Replacement::abandon() noexcept {
  discard_unfinished();
  close_if_open(file_.directory);
  close_if_open(target_);
}

void Replacement::discard_unfinished() noexcept {
  remove_unfinished(file_);
  file_.name[0] = '\0';
  close_if_open(file_.handle);
}

bool Replacement::begin(const char* target, const ReplaceOptions& options) {
  options_ = options;
  if (options.must_be_new) return create_beside(target);
  if (!open_target(target)) return false;
  if (way_ != Way::rename) return keep_aside();
  const auto place = resolved(target);
  if (!place) return false;
  if (target_ != kNoFile && !names_file(place->c_str(), target_)) return keep_aside();
  if (create_beside(place->native())) {
    if (target_ == kNoFile || take_over_status()) return true;
    discard_unfinished();
    return keep_aside();
  }
  return target_ != kNoFile && is_forbidden(errno) && keep_aside();
}

// Opens a target that exists.
bool Replacement::open_target(const char* target) {
  struct stat status;
  if (stat(target, &status) != 0) return errno == ENOENT;
  if (!options_.exclusive && !S_ISDIR(status.st_mode)) {
    target_ = open_stream(target, status);
    if (target_ != kNoFile || !S_ISREG(status.st_mode)) {
      way_ = Way::stream;
      return target_ != kNoFile;
    }
    // The system itself lets the superuser write to files without write permission.
    if ((status.st_mode & kAnyWriteBit) == 0) return fail(EACCES);
    target_ = open(target, O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  } else {
    target_ = open_file(target, {.write = true});
    if (!S_ISREG(status.st_mode)) way_ = Way::stream;
  }
  return target_ != kNoFile;
}

bool Replacement::create_beside(const std::string& target) {
  path_ = target.substr(0, target.rfind('/') + 1);
  target_name_ = target.substr(path_.size());
  if (target_name_.empty()) return fail(target.empty() ? ENOENT : EISDIR);
  mode_t mode = 0666;
  if (target_ != kNoFile) mode = 0600;  // until it has its own, nobody reads what may be private
  if (struct stat status; options_.pattern != kNoFile) {
    if (fstat(options_.pattern, &status) != 0) return false;
    mode = status.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
  }
  file_.directory = open_directory(path_);
  if (file_.directory == kNoFile) return false;
  const SignalsWait wait;
  do {
    if (!make_unfinished_name(file_.name)) break;
    file_.handle = openat(file_.directory, file_.name.data(),
                          O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_NOCTTY | O_CLOEXEC, mode);
  } while (file_.handle < 0 && (errno == EEXIST || errno == EINTR));
  if (file_.handle >= 0) return true;
  file_.name[0] = '\0';
  return false;
}

// Nobody but this process sees the contents; there is nothing to clear away.
bool Replacement::keep_aside() {
  if (way_ == Way::rename) way_ = Way::rewrite;
  file_.handle = memfd_create("kz-unfinished", MFD_CLOEXEC);
  return file_.handle >= 0;
}

// Gives the new file what the old one has.
bool Replacement::take_over_status() const {
  struct stat old_status;
  struct stat new_status;
  if (fstat(target_, &old_status) != 0 || fstat(file_.handle, &new_status) != 0) return false;
  if (fgetxattr(target_, "system.posix_acl_access", nullptr, 0) > 0) return false;
  if ((old_status.st_uid != new_status.st_uid || old_status.st_gid != new_status.st_gid) &&
      fchown(file_.handle, old_status.st_uid, old_status.st_gid) != 0) {
    return false;
  }
  return options_.pattern != kNoFile ||
         fchmod(file_.handle, old_status.st_mode & kPermissions) == 0;
}

bool Replacement::write(std::string_view bytes) { return write_all(file_.handle, bytes); }

std::string Replacement::path() const {
  return file_.name[0] != '\0' ? path_ + file_.name.data()
                               : "/proc/self/fd/" + std::to_string(file_.handle);
}

bool Replacement::commit() {
  const bool done = way_ == Way::rename    ? give_name()
                    : way_ == Way::rewrite ? rewrite_target()
                                           : copy_to_target();
  if (done) close_if_open(target_);
  return done;
}

bool Replacement::give_name() {
  if (options_.pattern != kNoFile && !copy_time(options_.pattern, file_.handle)) return false;
  if (options_.sync && !flush(file_.handle)) return false;
  if (!close_succeeds(file_.handle)) return false;
  const char* const from = file_.name.data();
  const char* const to = target_name_.c_str();
  if (options_.must_be_new) {
    if (!rename_sparing_target(file_.directory, from, to)) return false;
  } else if (renameat(file_.directory, from, file_.directory, to) != 0) {
    // A directory may keep its files to their owners, and a file may be mounted on.
    if (target_ == kNoFile || !(is_forbidden(errno) || errno == EBUSY)) return false;
    return rewrite_target();
  }
  file_.name[0] = '\0';
  if (!options_.sync) return true;
  return flush_where_possible(file_.directory) || errno == EBADF;  // may not be read
}

bool Replacement::rewrite_target() {
  const std::int64_t size = length(file_.handle);
  if (size < 0 || (!options_.exclusive && !hold(target_)) || !reserve(target_, size)) return false;
  if (!copy_contents(file_.handle, target_) || !set_length(target_, size)) return false;
  // Only the owner may set a time.
  if (options_.pattern != kNoFile) copy_time(options_.pattern, target_);
  return (!options_.sync || flush(target_)) && close_succeeds(target_);
}

bool Replacement::copy_to_target() {
  return copy_contents(file_.handle, target_) &&
         (!options_.sync || flush_where_possible(target_)) && close_succeeds(target_);
}

bool write_whole_file(const char* path, std::string_view bytes) noexcept {
  Replacement file;
  return file.begin(path, {.exclusive = true}) && file.write(bytes) && file.commit();
}

}  // namespace kz::platform
