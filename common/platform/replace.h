// Files that take their place when they are complete.
//
// The contents are written to an unfinished file beside the target, which is then renamed: others
// see the old contents or all of the new ones. Where that cannot be done, the contents are kept
// aside and written into the target at the end:
//
//   - into a target that is no regular file;
//   - when the directory takes no file, or lets none be renamed, but the target may be written;
//   - when the new file could not get the owner, the permissions or the access list of the target.
//
// Unless stated otherwise a function returns false on failure and leaves the system's error number
// in errno.
#ifndef KZ_PLATFORM_REPLACE_H
#define KZ_PLATFORM_REPLACE_H

#include <array>
#include <string>
#include <string_view>

namespace kz::platform {

// Unfinished files are named so, with 16 random hexadecimal digits after it. Those of a process
// that was killed stay; they may be deleted.
inline constexpr std::string_view kUnfinishedPrefix = ".kz-unfinished-";

struct ReplaceOptions {
  // A target that exists is held under the sharing rules of open_file, so that nobody else uses it
  // until the end. Otherwise readers keep what they have open, and the last of several writers
  // wins. Only without it pipes and sockets are written to, waiting for their other end.
  bool exclusive = false;
  bool must_be_new = false;  // never replace a target
  // Success means that file and directory are on the device. A directory that may be written and
  // not be read is left out.
  bool sync = true;
  // An open file that gives its permissions, as far as the umask leaves them, and its time of last
  // write; -1: those of the file that is replaced, or of any new file. A target that is written
  // into keeps its permissions.
  int pattern = -1;
};

// What identifies an unfinished file. No handler of a signal sees it half-written.
struct UnfinishedFile {
  int directory = -1;
  int handle = -1;
  std::array<char, 40> name{};  // in the directory; empty when it has none
};

// Removes the file unless its name is another file's by now. Handlers of signals may call it.
void remove_unfinished(const UnfinishedFile& file) noexcept;

// One file on its way. Without commit() the target stays as it is, and nothing is left.
class Replacement {
 public:
  Replacement() = default;
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement() { abandon(); }

  // Once for each object. A target that is a symbolic link stays one: it leads to the new file,
  // also if it leads nowhere yet. Other hard links to the target keep the old contents when it is
  // replaced. A target without any write permission is refused.
  bool begin(const char* target, const ReplaceOptions& options);

  // Takes the contents, by reads and writes at any position. Its owner closes it.
  int handle() const { return file_.handle; }
  bool write(std::string_view bytes);  // at the position
  // A name under which the contents can be opened meanwhile.
  std::string path() const;
  const UnfinishedFile& unfinished() const { return file_; }

  bool commit();
  void abandon() noexcept;

 private:
  enum class Way {
    rename,   // a new file gets the name of the target
    rewrite,  // a regular target gets the new contents
    stream    // they are sent to what is no regular file
  };

  bool open_target(const char* target);
  bool create_beside(const std::string& target);
  bool keep_aside();
  void discard_unfinished() noexcept;
  bool take_over_status() const;
  bool give_name();
  bool rewrite_target();
  bool copy_to_target();

  ReplaceOptions options_;
  UnfinishedFile file_;
  int target_ = -1;          // open for writing when there is one
  std::string target_name_;  // in the directory
  std::string path_;         // of the directory with its separator, or empty
  Way way_ = Way::rename;
};

// Replaces a file by these bytes, exclusively.
bool write_whole_file(const char* path, std::string_view bytes) noexcept;

}  // namespace kz::platform

#endif  // KZ_PLATFORM_REPLACE_H
