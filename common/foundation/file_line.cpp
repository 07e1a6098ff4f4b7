// Line reading: read ahead, with the position after the line in the end.
//
// A regular file is read in chunks until the line end is found, and the position then moves back to
// it: two calls of the system for most lines. Pipes and devices are read byte by byte.
#include <array>
#include <cerrno>
#include <cstring>
#include <limits>
#include <string>

#include "kz/file.h"
#include "platform/file.h"

namespace platform = kz::platform;

namespace {

// What was found from the position on: `size` characters, of which `taken` bytes are the line with
// its end. Nothing taken and no failure: the end of the file.
struct Line {
  std::int64_t size = 0;
  std::int64_t taken = 0;
  bool failed = false;
};

class LineScanner {
 public:
  explicit LineScanner(int handle) : handle_(handle) {}

  // Looks for the end of the line that begins at the position: a line feed, the end of the file,
  // or the character at index `limit`, which is taken with the line like a line feed.
  Line scan(std::int64_t limit) {
    Line line;
    while (true) {
      const auto [count, ok] = platform::read_once(handle_, chunk_.data(), chunk_.size());
      if (!ok || count == 0) {
        line.taken = line.size;
        line.failed = !ok;
        return line;
      }
      chunk_start_ = line.size;
      moved_ += static_cast<std::int64_t>(count);
      const std::int64_t room = limit - line.size;
      const bool cut = static_cast<std::int64_t>(count) > room;
      const auto searched = cut ? static_cast<std::size_t>(room) : count;
      const void* const feed = std::memchr(chunk_.data(), '\n', searched);
      if (feed != nullptr || cut) {
        line.size += feed != nullptr ? static_cast<const char*>(feed) - chunk_.data() : room;
        line.taken = line.size + 1;
        return line;
      }
      line.size = moved_;
    }
  }

  // Copies the characters of the scanned line and moves the position after it. Returns how many
  // there are: fewer only if the file has been cut short meanwhile.
  std::size_t take(const Line& line, char* characters) {
    const auto size = static_cast<std::size_t>(line.size);
    std::size_t done = 0;
    if (chunk_start_ == 0) {
      std::memcpy(characters, chunk_.data(), size);
      done = size;
    } else {
      const std::int64_t start = platform::position(handle_) - moved_;
      while (done < size) {
        const auto offset = start + static_cast<std::int64_t>(done);
        const std::size_t count =
            platform::read_at(handle_, characters + done, size - done, offset).count;
        if (count == 0) break;
        done += count;
      }
    }
    leave_at(line.taken);
    return done;
  }

  // Moves the position to an offset from where the scan began.
  void leave_at(std::int64_t offset) {
    if (offset != moved_) platform::move_position(handle_, offset - moved_);
    moved_ = offset;
  }

 private:
  int handle_;
  std::int64_t moved_ = 0;        // the way of the position since the scan began
  std::int64_t chunk_start_ = 0;  // where in the line the chunk begins
  std::array<char, 1024> chunk_;
};

// The same by single bytes. `store` is called with every character of the line.
template <typename Store>
Line read_bytes(int handle, std::int64_t limit, Store store) {
  Line line;
  while (true) {
    char ch;
    const auto [count, ok] = platform::read_file(handle, &ch, 1);
    if (!ok || count == 0) {
      line.failed = !ok;
      return line;
    }
    ++line.taken;
    if (line.size >= limit || ch == '\n') return line;
    store(line.size++, ch);
  }
}

// The truth value of a file that closes its handle, once that is known to be of a regular file: no
// further line asks the system.
constexpr std::int32_t kCloseRegular = 2;

bool is_regular(int handle, std::int32_t& close_on_delete) {
  if (close_on_delete == kCloseRegular) return true;
  if (!platform::is_regular(handle)) return false;
  if (close_on_delete != 0) close_on_delete = kCloseRegular;
  return true;
}

std::size_t without_return(const char* line, std::size_t size) {
  return size > 0 && line[size - 1] == '\r' ? size - 1 : size;
}

// The room for a line grows in steps of this many characters.
constexpr std::size_t kLineStep = 128;
constexpr std::int64_t kLongestLine = std::numeric_limits<std::int32_t>::max() - 2 * 128;

// A writable buffer for a line of `size` characters.
char* reserve(ZCString& line, std::size_t size) {
  const std::size_t steps = size <= kLineStep ? 1 : (size + kLineStep - 1) / kLineStep;
  return line.GetBuffer(static_cast<int>(steps * kLineStep));
}

char* finish(ZCString& line, char* characters, std::size_t size, const Line& read) {
  if (!read.failed) size = without_return(characters, size);
  line.ReleaseBuffer(static_cast<int>(size));
  return read.failed ? nullptr : characters;
}

}  // namespace

char* ZCFile::ReadString(ZCString& line) {
  line.Empty();
  if (!is_regular(handle_, close_on_delete_)) {
    std::string text;
    const Line read =
        read_bytes(handle_, kLongestLine, [&text](std::int64_t, char ch) noexcept { text += ch; });
    if (read.taken == 0) return nullptr;
    char* const characters = reserve(line, text.size());
    text.copy(characters, text.size());
    return finish(line, characters, text.size(), read);
  }
  LineScanner scanner(handle_);
  const Line found = scanner.scan(kLongestLine);
  if (found.taken == 0) return nullptr;
  if (found.size == kLongestLine) {
    scanner.leave_at(0);
    errno = EOVERFLOW;
    return nullptr;
  }
  char* const characters = reserve(line, static_cast<std::size_t>(found.size));
  return finish(line, characters, scanner.take(found, characters), found);
}

char* ZCFile::ReadString(char* buffer, unsigned int max) {
  Line read;
  std::size_t size;
  if (is_regular(handle_, close_on_delete_)) {
    LineScanner scanner(handle_);
    read = scanner.scan(max);
    size = scanner.take(read, buffer);
  } else {
    read = read_bytes(handle_, max, [buffer](std::int64_t i, char ch) { buffer[i] = ch; });
    size = static_cast<std::size_t>(read.size);
  }
  if (read.failed || read.taken == 0) return nullptr;
  buffer[without_return(buffer, size)] = '\0';
  return buffer;
}
