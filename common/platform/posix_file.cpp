// Open files on POSIX systems.
#include "platform/file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/sharing.h"

namespace kz::platform {
namespace {

constexpr mode_t kAnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
// Linux moves no more than this in one call.
constexpr std::size_t kLargestTransfer = 0x7FFFF000;

// Closes the handle and keeps the error that led to this.
int give_up(int handle, int error) {
  close(handle);
  errno = error;
  return kNoFile;
}

int open_retrying(const char* name, int flags) {
  int handle;
  do {
    handle = open(name, flags, 0666);
  } while (handle < 0 && errno == EINTR);
  return handle;
}

// Opens without ever waiting for the other end of a pipe; tells whether the file was made here.
int open_raw(const char* name, const OpenMode& mode, bool& created) {
  int flags = O_NONBLOCK | O_NOCTTY;
  flags |= mode.write ? (mode.read ? O_RDWR : O_WRONLY) : O_RDONLY;
  if (!mode.inherit) flags |= O_CLOEXEC;
  created = false;
  // The file may come and go between the two calls; the last attempt covers links to nothing,
  // which exist for the second call and not for the first.
  for (int attempt = 0; attempt < 3; ++attempt) {
    int handle = open_retrying(name, flags);
    if (handle >= 0 || errno != ENOENT || mode.creation == Creation::open_existing) return handle;
    handle = open_retrying(name, flags | O_CREAT | O_EXCL);
    created = handle >= 0;
    if (created || errno != EEXIST) return handle;
  }
  return open_retrying(name, flags | O_CREAT);
}

// Empties the file, also one that its handle can only read: then by a second handle.
bool truncate_open_file(const char* name, int handle, const OpenMode& mode,
                        const struct stat& opened) {
  if (mode.write) return set_length(handle, 0);
  const int writer = open_retrying(name, O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (writer < 0) return false;
  struct stat status;
  bool ok = fstat(writer, &status) == 0;
  if (ok && (status.st_dev != opened.st_dev || status.st_ino != opened.st_ino)) {
    errno = EBUSY;  // the name has been given to another file meanwhile
    ok = false;
  }
  ok = ok && set_length(writer, 0);
  give_up(writer, errno);
  return ok;
}

short lock_type(int handle) {
  const int flags = fcntl(handle, F_GETFL);
  return flags >= 0 && (flags & O_ACCMODE) == O_RDONLY ? F_RDLCK : F_WRLCK;
}

bool change_lock(int handle, short type, std::uint32_t position, std::uint32_t count) {
  if (count == 0) return true;  // which would lock to the end of the file
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  lock.l_start = position;
  lock.l_len = count;
  return fcntl(handle, F_OFD_SETLK, &lock) == 0;
}

}  // namespace

int open_file(const char* name, const OpenMode& mode) {
  bool created = false;
  const int handle = open_raw(name, mode, created);
  if (handle < 0) return kNoFile;
  struct stat status;
  if (fstat(handle, &status) != 0) return give_up(handle, errno);
  if (S_ISDIR(status.st_mode)) return give_up(handle, EISDIR);
  if (S_ISFIFO(status.st_mode)) return give_up(handle, ESPIPE);
  if (!S_ISREG(status.st_mode)) {
    const int flags = fcntl(handle, F_GETFL);
    if (fcntl(handle, F_SETFL, flags & ~O_NONBLOCK) != 0) return give_up(handle, errno);
    return handle;
  }
  const bool truncates = mode.creation == Creation::create_truncated && !created;
  // The system itself lets the superuser write to files without write permission.
  if ((mode.write || truncates) && !created && (status.st_mode & kAnyWriteBit) == 0)
    return give_up(handle, EACCES);
  if (!join_sharing(handle, mode, truncates)) return give_up(handle, errno);
  if (truncates && !truncate_open_file(name, handle, mode, status)) return give_up(handle, errno);
  return handle;
}

bool close_file(int handle) { return close(handle) == 0; }

int duplicate(int handle) { return fcntl(handle, F_DUPFD_CLOEXEC, 0); }

Transfer read_once(int handle, void* buffer, std::size_t count) {
  ssize_t n;
  do {
    n = read(handle, buffer, std::min(count, kLargestTransfer));
  } while (n < 0 && errno == EINTR);
  return n < 0 ? Transfer{0, false} : Transfer{static_cast<std::size_t>(n), true};
}

Transfer read_file(int handle, void* buffer, std::size_t count) {
  char* const bytes = static_cast<char*>(buffer);
  std::size_t done = 0;
  while (true) {
    const auto [n, ok] = read_once(handle, bytes + done, count - done);
    done += n;
    if (!ok) return {done, false};
    if (n == 0 || done == count || !is_regular(handle)) return {done, true};
  }
}

Transfer write_file(int handle, const void* buffer, std::size_t count) {
  const char* const bytes = static_cast<const char*>(buffer);
  std::size_t done = 0;
  while (true) {
    const ssize_t n = write(handle, bytes + done, std::min(count - done, kLargestTransfer));
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return {done, false};
    done += static_cast<std::size_t>(n);
    if (n == 0 || done == count || !is_regular(handle)) return {done, true};
  }
}

Transfer read_at(int handle, void* buffer, std::size_t count, std::int64_t position) {
  ssize_t n;
  do {
    n = pread(handle, buffer, std::min(count, kLargestTransfer), position);
  } while (n < 0 && errno == EINTR);
  return n < 0 ? Transfer{0, false} : Transfer{static_cast<std::size_t>(n), true};
}

bool is_regular(int handle) {
  struct stat status;
  return fstat(handle, &status) == 0 && S_ISREG(status.st_mode);
}

std::int64_t position(int handle) { return lseek(handle, 0, SEEK_CUR); }

bool set_position(int handle, std::int64_t position) {
  return lseek(handle, position, SEEK_SET) == position;
}

bool move_position(int handle, std::int64_t offset) { return lseek(handle, offset, SEEK_CUR) >= 0; }

std::int64_t length(int handle) {
  struct stat status;
  if (fstat(handle, &status) != 0) return -1;
  if (S_ISREG(status.st_mode)) return status.st_size;
  errno = ESPIPE;
  return -1;
}

bool set_length(int handle, std::int64_t length) {
  int result;
  do {
    result = ftruncate(handle, length);
  } while (result != 0 && errno == EINTR);
  return result == 0;
}

bool flush(int handle) { return fsync(handle) == 0; }

bool lock_range(int handle, std::uint32_t position, std::uint32_t count) {
  return change_lock(handle, lock_type(handle), position, count);
}

bool unlock_range(int handle, std::uint32_t position, std::uint32_t count) {
  return change_lock(handle, F_UNLCK, position, count);
}

}  // namespace kz::platform
