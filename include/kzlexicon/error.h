// Errors of the lexicon library.
//
// Every failure is an exception of the type Error. Its code says what kind of failure it is, its
// place names the file with the line and column where there are any:
//
//     try {
//       kz::lexicon::Dictionary dictionary("nowhere.dic");
//     } catch (const kz::lexicon::Error& error) {
//       std::cout << (error.code() == kz::lexicon::ErrorCode::kFile) << ' ' << error.file() <<
//       '\n';
//     }
//     // Output: 1 nowhere.dic
#ifndef KZLEXICON_ERROR_H
#define KZLEXICON_ERROR_H

#include <cstddef>
#include <stdexcept>
#include <string>

#include "kzlexicon/export.h"

namespace kz::lexicon {

enum class ErrorCode {
  kArgument = 2,  // an argument that the call does not take
  kFile = 3,      // a file cannot be opened, read or written, or memory is exhausted
  kData = 4,      // input that is not what it should be, or that the format cannot hold
  kCodePage = 5,  // a character that the code page lacks
};

// Where an error or a diagnostic is. Lines and columns count from 1; 0 means none. Columns count
// characters. An offset counts bytes from the start of the file; -1 means none.
struct Place {
  std::string file{};
  std::size_t line = 0;
  std::size_t column = 0;
  long long offset = -1;
};

class KZL_API Error : public std::runtime_error {
 public:
  Error(ErrorCode code, const std::string& message, Place place = {});

  ErrorCode code() const noexcept { return code_; }
  const Place& place() const noexcept { return place_; }
  const std::string& file() const noexcept { return place_.file; }
  std::size_t line() const noexcept { return place_.line; }
  std::size_t column() const noexcept { return place_.column; }
  // The message without the place; what() has both: "words.txt:3:1: no '*' ends the headword".
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
