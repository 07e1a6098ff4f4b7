// The header of a dictionary file as its bytes state it, all generations of the format.
#ifndef KZ_LEXICON_FILE_HEADER_H
#define KZ_LEXICON_FILE_HEADER_H

#include <cstdint>
#include <string>

#include "kzlexicon/dictionary.h"

namespace kz::lexicon {

struct FileHeader {
  Header stated;
  std::int64_t index_offset = 0;
  std::int64_t data_offset = 0;
  std::int64_t index_count = 0;  // of a key list
};

// Reads the header of a dictionary that has been opened before, so that its header is known to be
// sound. Throws Error.
FileHeader read_file_header(const std::string& path);

// Reads `size` bytes at an offset of the file; fewer at its end.
std::string read_bytes(const std::string& path, std::int64_t offset, std::size_t size);

std::uint32_t little_endian(const std::string& bytes, std::size_t at, std::size_t width);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_FILE_HEADER_H
