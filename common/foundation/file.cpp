// ZCFile: opening, closing, positions, bytes and locks.
#include "kz/file.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <limits>
#include <new>

#include "foundation/file_path.h"
#include "platform/file.h"

namespace platform = kz::platform;

namespace {

constexpr unsigned kAccessMask = 0x0003;

constexpr std::uint32_t kNoPosition = std::numeric_limits<std::uint32_t>::max();

struct Sharing {
  bool read;
  bool write;
};

// By bits 4 to 6 of the flags.
constexpr std::array<Sharing, 8> kSharing = {{{false, false},
                                              {false, false},
                                              {true, false},
                                              {false, true},
                                              {true, true},
                                              {true, false},
                                              {true, false},
                                              {true, false}}};

platform::OpenMode mode_of(unsigned flags) {
  const unsigned access = flags & kAccessMask;
  const Sharing sharing = kSharing[(flags >> 4) & 7];
  platform::OpenMode mode;
  mode.read = access != KZ_FILE_WRITE;
  mode.write = access == KZ_FILE_WRITE || access == KZ_FILE_READ_WRITE;
  mode.others_may_read = sharing.read;
  mode.others_may_write = sharing.write;
  mode.inherit = (flags & KZ_FILE_NO_INHERIT) == 0;
  if ((flags & KZ_FILE_CREATE) != 0)
    mode.creation = (flags & KZ_FILE_KEEP) != 0 ? platform::Creation::open_or_create
                                                : platform::Creation::create_truncated;
  return mode;
}

// A position as the interface tells it.
std::uint32_t position_or_failure(std::int64_t position) {
  if (position >= 0 && position < kNoPosition) return static_cast<std::uint32_t>(position);
  if (position >= 0) errno = EOVERFLOW;
  return kNoPosition;
}

}  // namespace

ZCFile::ZCFile() : ZCFile(platform::kNoFile) {}

ZCFile::ZCFile(int handle) : handle_(handle), close_on_delete_(0) {}

ZCFile::ZCFile(const char* name, unsigned int flags) : ZCFile() { ZCFile::Open(name, flags); }

ZCFile::~ZCFile() {
  if (handle_ != platform::kNoFile && close_on_delete_ != 0) ZCFile::Close();
}

ZCFile::operator int() const { return handle_; }

int ZCFile::Open(const char* name, unsigned int flags) {
  if (name == nullptr) name = "";
  close_on_delete_ = 0;
  handle_ = platform::kNoFile;
  path_ = kz::full_path(name).text;
  handle_ = platform::open_file(name, mode_of(flags));
  if (handle_ == platform::kNoFile) return 0;
  close_on_delete_ = 1;
  return 1;
}

ZCFile* ZCFile::Duplicate() {
  const int copy = platform::duplicate(handle_);
  if (copy == platform::kNoFile) return nullptr;
  ZCFile* const file = new (std::nothrow) ZCFile(copy);
  if (file == nullptr) {
    platform::close_file(copy);
    return nullptr;
  }
  file->close_on_delete_ = close_on_delete_;
  return file;
}

void ZCFile::Close() {
  ZCFile::Abort();
  close_on_delete_ = 0;
}

void ZCFile::Abort() {
  if (handle_ != platform::kNoFile) platform::close_file(handle_);
  handle_ = platform::kNoFile;
  path_.Empty();
}

void ZCFile::Flush() {
  if (handle_ != platform::kNoFile) platform::flush(handle_);
}

std::int32_t ZCFile::Seek(std::int32_t offset, unsigned int origin) {
  std::int64_t target;
  switch (origin) {
    case 0: target = 0; break;
    case 1: target = platform::position(handle_); break;
    case 2: target = platform::length(handle_); break;
    default: errno = EINVAL; return -1;
  }
  if (target < 0) return -1;
  target += offset;
  if (target < 0) errno = EINVAL;
  const std::uint32_t position = position_or_failure(target);
  if (position == kNoPosition || !platform::set_position(handle_, position)) return -1;
  return static_cast<std::int32_t>(position);
}

std::uint32_t ZCFile::GetPosition() { return position_or_failure(platform::position(handle_)); }

std::uint32_t ZCFile::GetLength() { return position_or_failure(platform::length(handle_)); }

void ZCFile::SetLength(std::uint32_t length) {
  if (platform::set_position(handle_, length)) platform::set_length(handle_, length);
}

unsigned int ZCFile::Read(void* buffer, unsigned int count) {
  if (count == 0) return 0;
  return static_cast<unsigned int>(platform::read_file(handle_, buffer, count).count);
}

unsigned int ZCFile::Write(const void* buffer, unsigned int count) {
  if (count == 0) return 0;
  return static_cast<unsigned int>(platform::write_file(handle_, buffer, count).count);
}

int ZCFile::WriteString(const char* text) {
  if (text == nullptr) text = "";
  return platform::write_file(handle_, text, std::strlen(text)).ok;
}

void ZCFile::LockRange(std::uint32_t position, std::uint32_t count) {
  platform::lock_range(handle_, position, count);
}

void ZCFile::UnlockRange(std::uint32_t position, std::uint32_t count) {
  platform::unlock_range(handle_, position, count);
}

std::uint32_t ZCFile::ReadHuge(void* buffer, std::uint32_t count) { return Read(buffer, count); }

void ZCFile::WriteHuge(const void* buffer, std::uint32_t count) { Write(buffer, count); }

std::uint32_t ZCFile::SeekToEnd() { return static_cast<std::uint32_t>(Seek(0, 2)); }

void ZCFile::SeekToBegin() { Seek(0, 0); }
