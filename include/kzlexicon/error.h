// Errors of the lexicon library.
//
// Error is the one type of exception that the library throws, std::bad_alloc aside; the types
// derived from it (kzlexicon/code_page.h) add what a caller may want to know. Its code says what
// kind of failure it is, its place names the file, with the line and column where there are any:
//
//     using namespace kz::lexicon;
//     try {
//       Dictionary dictionary("nowhere.dic");
//     } catch (const Error& error) {
//       std::cout << (error.code() == ErrorCode::kFile) << '\n'
//                 << error.file() << '\n'
//                 << error.what() << '\n';
//     }
//     // Output: 1
//     // Output: nowhere.dic
//     // Output: nowhere.dic: cannot open: No such file or directory
#ifndef KZLEXICON_ERROR_H
#define KZLEXICON_ERROR_H

#include <cstddef>
#include <stdexcept>
#include <string>

#include "kzlexicon/export.h"

namespace kz::lexicon {

// The kinds of failures. The values are the exit statuses that kzdic has for them.
enum class ErrorCode {
  kArgument = 2,  // an argument that the call does not take
  kFile = 3,      // a file cannot be opened, read or written, or memory is exhausted
  kData = 4,      // input that is not what it should be, or that the format cannot hold
  kCodePage = 5,  // a character that the code page lacks
};

// Where an error or a diagnostic is.
struct Place {
  std::string file{};      // path, or the name that the caller gave to a text; empty for none
  std::size_t line = 0;    // from 1; 0 for none
  std::size_t column = 0;  // in characters, from 1; 0 for none
  long long offset = -1;   // in bytes from the start of the file; -1 for none
};

// The references that it returns live as long as the exception.
class KZL_API Error : public std::runtime_error {
 public:
  // what() becomes at_place(place, message).
  Error(ErrorCode code, const std::string& message, Place place = {});

  ErrorCode code() const noexcept { return code_; }
  const Place& place() const noexcept { return place_; }
  const std::string& file() const noexcept { return place_.file; }
  std::size_t line() const noexcept { return place_.line; }
  std::size_t column() const noexcept { return place_.column; }
  // The message in English, without the place; what() has both: "words.txt:3:1: no '*' ends the
  // headword".
  const std::string& message() const noexcept { return message_; }

 private:
  ErrorCode code_;
  Place place_;
  std::string message_;
};

// "file:line:column: message" or "file: offset N: message", with the parts that the place has.
KZL_API std::string at_place(const Place& place, const std::string& message);

}  // namespace kz::lexicon

#endif  // KZLEXICON_ERROR_H
