// ZCFile: a handle to a file of the operating system, unbuffered, with operations on named files.
//
// Open a file with a name and flags, read or write it, close it; every failure shows in a result,
// nothing throws, and errno is left as the system set it. Without memory the process ends.
// ZCFileStatus is the record that the status operations fill. Opens through the library respect
// each other's sharing bits, in one process and between processes.
//
//   ZCFile file;
//   if (file.Open("words.txt", KZ_FILE_READ | KZ_FILE_SHARE_READ)) {
//     ZCString line;
//     while (file.ReadString(line) != nullptr) puts(line);
//     // Output: cat
//     // Output: dog
//     file.Close();
//   }
//
// Names are the bytes of the system's own file names. Positions and lengths are 32-bit: those of
// 4 GB and more count as failures, and Seek gives those of 2 GB and more as negative numbers.
// Directories and named pipes are not opened.
#ifndef KZ_FILE_H
#define KZ_FILE_H

#include <cstdint>

#include "kz/export.h"
#include "kz/object.h"
#include "kz/string.h"
#include "kz/time.h"

// Open flags: one kind of access, at most one of sharing, and any of the others, or-ed together.
// Without KZ_FILE_CREATE the file must exist.
enum KzFileFlag : unsigned int {
  KZ_FILE_READ = 0x0000,  // 3 means the same
  KZ_FILE_WRITE = 0x0001,
  KZ_FILE_READ_WRITE = 0x0002,
  KZ_FILE_SHARE_NONE = 0x0010,   // nobody else may open the file; 0 means the same
  KZ_FILE_SHARE_READ = 0x0020,   // others may read; 0x50 to 0x70 mean the same
  KZ_FILE_SHARE_WRITE = 0x0030,  // others may write
  KZ_FILE_SHARE_ALL = 0x0040,    // others may read and write
  KZ_FILE_NO_INHERIT = 0x0080,   // child processes do not inherit the handle
  KZ_FILE_CREATE = 0x1000,       // creates the file, truncating one that exists
  KZ_FILE_KEEP = 0x2000,         // with KZ_FILE_CREATE: keeps the contents of one that exists
  KZ_FILE_BINARY = 0x8000        // accepted and ignored
};

// What is known about a file. A new record is unset until a status operation has filled it.
class KZ_API ZCFileStatus {
 public:
  // Sets nothing.
  ZCFileStatus();

  ZCTime creation_time;      // the modification time where the file system keeps none
  ZCTime modification_time;  // last write
  ZCTime access_time;        // last access
  std::uint32_t size;        // bytes, the low 32 bits of the length
  // Read-only 0x01 (no write permission), hidden 0x02 (the name begins with a dot), directory
  // 0x10; 0x80 "no attribute" only in the status of an open file.
  std::uint8_t attribute;
  char full_name[260];  // full path, zero-terminated
};

// The handle, closed at its end when Open opened it. One thread at a time uses it.
class KZ_API ZCFile : public ZCObject {
 public:
  // No file.
  ZCFile();
  // Works on an open handle of the system; the destructor leaves it open.
  ZCFile(int handle);
  // Calls Open; success shows in operator int.
  ZCFile(const char* name, unsigned int flags);
  ZCFile(const ZCFile&) = delete;
  ZCFile& operator=(const ZCFile&) = delete;
  // Closes the file when Open opened it.
  ~ZCFile() override;

  // The position from the start of the file; all bits set on failure.
  virtual std::uint32_t GetPosition();

  // The name after the last '\\', '/' or ':' of the full path, at most 256 characters.
  virtual ZCString GetFileName();
  // A title to show to the user; on this system the same as GetFileName.
  virtual ZCString GetFileTitle();
  // The full path that Open found, or what SetFilePath stored.
  virtual ZCString GetFilePath();
  virtual void SetFilePath(const char* path);

  // Opens the file `name` by `flags`, of enum KzFileFlag. 1 on success; 0 on failure, with errno
  // EBUSY when another open forbids this one by its sharing bits, or this one forbids it. The file
  // path becomes the full path of `name` in either case. A file already open here is abandoned, not
  // closed: Close it first.
  virtual int Open(const char* name, unsigned int flags);

  // A new object on a duplicate of the handle, which shares the position and the locks of this
  // one; child processes do not inherit it. It closes its handle on deletion when this one does,
  // and has no file path. The caller deletes it. Null when the handle cannot be duplicated.
  virtual ZCFile* Duplicate();

  // Moves the position by `offset` from the start (0), the current position (1) or the end (2).
  // The new position, or -1 on failure, with the position unchanged.
  virtual std::int32_t Seek(std::int32_t offset, unsigned int origin);

  // Cuts or extends the file to `length` bytes and leaves the position there. No failure shows.
  virtual void SetLength(std::uint32_t length);
  // The length in bytes; the position stays. All bits set on failure.
  virtual std::uint32_t GetLength();

  // The number of bytes read into `buffer`: fewer than `count` at the end of the file, 0 after it
  // and on failure.
  virtual unsigned int Read(void* buffer, unsigned int count);
  // The number of bytes written; 0 on failure.
  virtual unsigned int Write(const void* buffer, unsigned int count);
  // Writes the zero-terminated text without a line end. 1 on success, 0 on failure.
  virtual int WriteString(const char* text);

  // Reads one line of any length, without its line end ("\n" or "\r\n"), and leaves the position
  // after the line end. Returns the string's characters. Null at the end of the file (the string
  // is empty then) and on a failing read (the string keeps what was read before it).
  virtual char* ReadString(ZCString& line);
  // Reads a line of at most `max` characters into `buffer`, which has room for max + 1. A longer
  // line is cut there: the character at position `max` is lost and the next call continues after
  // it. Null at the end of the file and on a failing read (`buffer` is not terminated then).
  virtual char* ReadString(char* buffer, unsigned int max);

  // Locks `count` bytes from `position` against other opens of the file, until UnlockRange or the
  // close: exclusively, or shared with other readers when the file is open for reading alone. The
  // locks keep out other locks, not reads and writes. Nothing for a count of 0; a range that is
  // locked elsewhere stays so; no failure shows.
  virtual void LockRange(std::uint32_t position, std::uint32_t count);
  virtual void UnlockRange(std::uint32_t position, std::uint32_t count);

  // Closes the file like Close, but keeps the close-on-delete setting.
  virtual void Abort();
  // Has the system write the file to the device.
  virtual void Flush();
  // Closes the file, if one is open, and empties the file path.
  virtual void Close();

  // The handle of the system, -1 when no file is open.
  operator int() const;

  // Read and Write under wider types.
  std::uint32_t ReadHuge(void* buffer, std::uint32_t count);
  void WriteHuge(const void* buffer, std::uint32_t count);

  // Seek to the end, which gives the new position, or to the start.
  std::uint32_t SeekToEnd();
  void SeekToBegin();

  // Status of the open file. 1 on success. Without an open file only the name is filled, the rest
  // is zero, and the result is 1. On failure 0, with the fields after the name zero.
  int GetStatus(ZCFileStatus& status) const;
  // Status of a named file or directory. 1 on success; 0 when there is none, with only the full
  // name changed.
  int GetStatus(const char* name, ZCFileStatus& status) const;

  // Gives a named file the times and the read-only attribute of `status`. Times of 0 are left as
  // they are on the file, and all of them when the modification time is 0. A creation time cannot
  // be set on this system. No failure shows.
  static void SetStatus(const char* name, const ZCFileStatus& status);

  // Operations on named files: 1 on success, 0 on failure.
  // Copy replaces an existing target, in one step, or in place where its directory takes no new
  // file; a file copied onto itself fails and stays whole.
  static int Copy(const char* from, const char* to);
  static int Rename(const char* from, const char* to);  // never replaces a target
  static int Remove(const char* name);                  // files only, no directories

  // 1 when the size of the open or named file is 0. No open file, and a name whose status cannot
  // be read, count as empty.
  int IsEmpty() const;
  int IsEmpty(const char* name) const;

  // 1 when this object has a file open, whatever `name` is; otherwise 1 when `name` can be opened
  // for reading without sharing, so that a file which is open elsewhere counts as missing.
  int IsFileExist(const char* name) const;

  // Makes `pattern`, which ends in "XXXXXX", the name of a file that does not exist: the six
  // become 000001, or else a00001 to z00001. Null when the pattern does not end in exactly six 'X'
  // or all these names are taken.
  char* MakeTemp(char* pattern) const;

  // The part of `name` from its last '.' on, with the dot; empty without one. Directories are not
  // told from the name: "a.b/c" gives ".b/c".
  ZCString GetExt(const char* name) const;

 private:
  std::int32_t handle_;
  std::int32_t close_on_delete_;
  ZCString path_;
};

#endif  // KZ_FILE_H
