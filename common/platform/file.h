// Open files of the operating system: bytes, positions, locks.
//
// Handles are the system's own. Unless stated otherwise a function returns false, -1 or an invalid
// handle on failure and leaves the system's error number in errno.
#ifndef KZ_PLATFORM_FILE_H
#define KZ_PLATFORM_FILE_H

#include <cstddef>
#include <cstdint>

namespace kz::platform {

inline constexpr int kNoFile = -1;

enum class Creation {
  open_existing,    // the file must exist
  open_or_create,   // keeps the contents of one that exists
  create_truncated  // empties one that exists
};

struct OpenMode {
  bool read = false;
  bool write = false;
  bool others_may_read = false;
  bool others_may_write = false;
  bool inherit = false;  // child processes inherit the handle
  Creation creation = Creation::open_existing;
};

// Opens a file if neither its own sharing rule nor that of any other open forbids it: an open may
// only read or write what all the others share, and must share what the others do. EBUSY when it
// is forbidden. Not for directories and pipes. A file with the read-only attribute is not opened
// for writing.
int open_file(const char* name, const OpenMode& mode);
bool close_file(int handle);
// A second handle on the same open file (same position, locks and rights), not inherited.
int duplicate(int handle);

struct Transfer {
  std::size_t count;  // bytes moved before the failure, if there was one
  bool ok;
};

// Reads or writes at the position and moves it. Interrupted calls are resumed; regular files give
// fewer bytes than wanted only at their end, others give what one call of the system gives.
Transfer read_file(int handle, void* buffer, std::size_t count);
Transfer write_file(int handle, const void* buffer, std::size_t count);
// One call of the system, which may give fewer bytes than wanted; none at the end of the file.
Transfer read_once(int handle, void* buffer, std::size_t count);
// Reads at a position of a regular file, leaving the position of the handle alone.
Transfer read_at(int handle, void* buffer, std::size_t count, std::int64_t position);

// True for files that can be read at any position, any number of times.
bool is_regular(int handle);
std::int64_t position(int handle);
bool set_position(int handle, std::int64_t position);
bool move_position(int handle, std::int64_t offset);
// The length of a regular file.
std::int64_t length(int handle);
// Cuts or extends the file; the position stays.
bool set_length(int handle, std::int64_t length);
// Has the file written to the device.
bool flush(int handle);

// Locks a range, which need not exist in the file, against all other opens: exclusively if the
// handle can write, otherwise shared with other readers. Fails at once when the range is locked
// elsewhere; a count of 0 locks nothing.
bool lock_range(int handle, std::uint32_t position, std::uint32_t count);
bool unlock_range(int handle, std::uint32_t position, std::uint32_t count);

}  // namespace kz::platform

#endif  // KZ_PLATFORM_FILE_H
