// Exit statuses of kzdic and the exception that ends a command with one.
#ifndef KZ_TOOLS_STATUS_H
#define KZ_TOOLS_STATUS_H

#include <stdexcept>
#include <string>

namespace kzdic {

enum class Status {
  kOk = 0,
  kNotFound = 1,  // a word or name that was looked up is not there
  kUsage = 2,
  kFile = 3,      // a file cannot be opened, read or written
  kDamaged = 4,   // input that is not what it should be, or that the format cannot hold
  kCodePage = 5,  // a character that the code page lacks
};

// Ends the command. The message names the file, and the line or offset where there is one.
class Failure : public std::runtime_error {
 public:
  Failure(Status status, const std::string& message)
      : std::runtime_error(message), status_(status) {}
  Status status() const { return status_; }

 private:
  Status status_;
};

// "file:line: message"
inline std::string at_line(const std::string& file, std::size_t line, const std::string& message) {
  return file + ":" + std::to_string(line) + ": " + message;
}

// "file: offset N: message"
inline std::string at_offset(const std::string& file, std::size_t offset,
                             const std::string& message) {
  return file + ": offset " + std::to_string(offset) + ": " + message;
}

}  // namespace kzdic

#endif  // KZ_TOOLS_STATUS_H
