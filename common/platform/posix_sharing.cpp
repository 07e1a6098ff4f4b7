// Sharing rules between opens, by open-file-description locks.
//
// Four zones of byte offsets, far beyond the end of any file and beyond every range that
// lock_range can reach, stand for what an open does ("reads", "writes") and for what it denies to
// others ("denies reads", "denies writes"). An open locks a byte in each zone that applies to it
// and then asks whether anybody else holds a lock in the opposite zones. Such locks belong to the
// open file description: they count between two opens of one process as between processes, go with
// duplicates and end with the last of them, also when the process dies.
//
// Marks of many opens must be side by side. A handle that can read takes a shared lock on the
// zone's first byte; a handle that can only write cannot take shared locks and takes an exclusive
// one on a byte of its own after it.
#include "platform/sharing.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <optional>
#include <thread>

namespace kz::platform {
namespace {

enum Zone { reads, writes, denies_reads, denies_writes, zone_count };

constexpr off_t kZoneSize = off_t{1} << 32;
constexpr off_t kZoneBase = off_t{1} << 62;

constexpr off_t zone_start(int zone) { return kZoneBase + zone * kZoneSize; }

struct flock make_lock(short type, off_t start, off_t count) {
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  lock.l_start = start;
  lock.l_len = count;
  return lock;
}

// What another open holds in a range that an exclusive lock of this handle would run into.
std::optional<struct flock> foreign_lock(int handle, off_t start, off_t count) {
  struct flock lock = make_lock(F_WRLCK, start, count);
  if (fcntl(handle, F_OFD_GETLK, &lock) != 0 || lock.l_type == F_UNLCK) return std::nullopt;
  return lock;
}

bool place(int handle, short type, off_t start) {
  struct flock lock = make_lock(type, start, 1);
  return fcntl(handle, F_OFD_SETLK, &lock) == 0;
}

bool is_held_elsewhere() { return errno == EAGAIN || errno == EACCES; }

// Takes the first byte after the zone's first one that is free.
bool place_exclusive(int handle, off_t zone) {
  off_t byte = zone + 1;
  while (byte < zone + kZoneSize) {
    if (place(handle, F_WRLCK, byte)) return true;
    if (!is_held_elsewhere()) return false;
    if (const auto holder = foreign_lock(handle, byte, 1)) {
      if (holder->l_len == 0) return false;  // somebody locked the file to its end
      byte = holder->l_start + holder->l_len;
    }
  }
  errno = EAGAIN;
  return false;
}

enum class Outcome { joined, forbidden, no_locks_here };

Outcome try_join(int handle, const std::array<bool, zone_count>& marks,
                 const std::array<bool, zone_count>& obstacles, bool shared) {
  for (int zone = 0; zone < zone_count; ++zone) {
    if (!marks[zone]) continue;
    const off_t start = zone_start(zone);
    if (!(shared ? place(handle, F_RDLCK, start) : place_exclusive(handle, start)))
      return is_held_elsewhere() ? Outcome::forbidden : Outcome::no_locks_here;
  }
  for (int zone = 0; zone < zone_count; ++zone) {
    if (obstacles[zone] && foreign_lock(handle, zone_start(zone), kZoneSize))
      return Outcome::forbidden;
  }
  return Outcome::joined;
}

void remove_marks(int handle) {
  struct flock lock = make_lock(F_UNLCK, kZoneBase, zone_count * kZoneSize);
  fcntl(handle, F_OFD_SETLK, &lock);
}

// A short time that differs between the opens that ran into each other.
void wait_a_little(int handle) {
  const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
  const auto spread =
      (static_cast<std::uint64_t>(ticks) / 64 + static_cast<unsigned>(handle)) % 256;
  std::this_thread::sleep_for(std::chrono::microseconds(50 + spread));
}

}  // namespace

bool join_sharing(int handle, const OpenMode& mode, bool truncates) {
  const std::array<bool, zone_count> marks = {mode.read, mode.write, !mode.others_may_read,
                                              !mode.others_may_write};
  const std::array<bool, zone_count> obstacles = {!mode.others_may_read, !mode.others_may_write,
                                                  mode.read, mode.write || truncates};
  // Two opens that mark the file at the same time see each other's marks, and each would give way
  // although one of them, or both after a failed third, could stay. Hence the further attempts.
  constexpr int kAttempts = 3;
  for (int attempt = 1;; ++attempt) {
    const Outcome outcome = try_join(handle, marks, obstacles, mode.read);
    if (outcome == Outcome::joined) return true;
    remove_marks(handle);
    // File systems without locks keep no sharing rules; files there can still be used.
    if (outcome == Outcome::no_locks_here) return true;
    if (attempt == kAttempts) break;
    wait_a_little(handle);
  }
  errno = EBUSY;
  return false;
}

}  // namespace kz::platform
