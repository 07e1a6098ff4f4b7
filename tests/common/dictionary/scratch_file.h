// A file of its own for one test, and headers to put there.
#ifndef KZ_TESTS_DICTIONARY_SCRATCH_FILE_H
#define KZ_TESTS_DICTIONARY_SCRATCH_FILE_H

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "tests/support/temp_dir.h"

namespace kz::test {

using Bytes = std::vector<std::uint8_t>;

class ScratchFile {
 public:
  ScratchFile() = default;
  explicit ScratchFile(const Bytes& bytes) { write(bytes); }
  const char* path() const { return path_.c_str(); }
  void write(const Bytes& bytes) const {
    dir_.write("file", std::string(bytes.begin(), bytes.end()));
  }
  Bytes read() const {
    const std::string bytes = dir_.read("file");
    return {bytes.begin(), bytes.end()};
  }

 private:
  TempDir dir_;
  std::string path_ = dir_.file("file");
};

inline void put_text(Bytes& bytes, std::size_t at, const std::string& text) {
  std::copy(text.begin(), text.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

struct Number {
  std::size_t at, width;
  std::uint32_t value;
};

inline void put(Bytes& bytes, std::initializer_list<Number> numbers) {
  for (const auto& [at, width, value] : numbers) {
    for (std::size_t i = 0; i < width; ++i) {
      bytes[at + i] = static_cast<std::uint8_t>(value >> 8 * i);
    }
  }
}

// A header that passes every check of a file of 1,000 bytes, with a different value in each field.
inline Bytes sample_header() {
  Bytes bytes(154, 0);
  put_text(bytes, 0, "KZ Dictionary 3.00 (C) 1997-1998 Corvane    ");
  put_text(bytes, 48, "LABEL-12ENRU");
  put_text(bytes, 61, "C");
  put_text(bytes, 63, "A title");
  put_text(bytes, 103, "\x51\x81\x82\x83");
  put(bytes, {{112, 1, 0x52},
              {113, 2, 0x0310},
              {115, 2, 3},
              {117, 2, 26},
              {119, 4, 500},
              {123, 4, 0x9A},
              {127, 4, 1000},
              {131, 4, 0x81020304},
              {135, 4, 0xA1A2A3A4},
              {139, 2, 0xB1B2},
              {141, 1, 3},
              {142, 4, 0xC1C2C3C4},
              {146, 4, 0x71727374},
              {150, 4, 0xD1D2D3D4}});
  return bytes;
}

// A first-generation header in a buffer of the current size, for language letters "ER".
inline Bytes first_generation_header() {
  Bytes bytes(154, 0xEE);
  put_text(bytes, 0,
           "QAN Dictionary (C) 1993-1995 Torva Ltd. OLDLABELEROld title" + std::string(31, '\0'));
  put(bytes, {{98, 2, 0x6261},
              {100, 2, 256},
              {102, 2, 2},
              {104, 2, 26},
              {106, 4, 600},
              {110, 4, 900},
              {114, 4, 0x12345678},
              {118, 4, 0x9ABCDEF0}});
  return bytes;
}

inline Bytes second_generation_header() {
  Bytes bytes = sample_header();
  put_text(bytes, 0, "KZ Dictionary 2.10 (C) 1993-1996 Torva Ltd. ");
  return bytes;
}

inline Bytes padded(Bytes bytes, std::size_t size) {
  bytes.resize(size, '\n');
  return bytes;
}

}  // namespace kz::test

#endif  // KZ_TESTS_DICTIONARY_SCRATCH_FILE_H
