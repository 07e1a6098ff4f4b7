// The header of a dictionary file as its bytes state it, all generations of the format.
#ifndef KZ_LEXICON_FILE_HEADER_H
#define KZ_LEXICON_FILE_HEADER_H

#include <cstdint>
#include <string>

namespace kz::lexicon {

struct FileHeader {
  int generation = 0;  // 1, 2, or 3 for the current format
  std::string label;
  std::string language;
  std::string type;
  std::string title;
  bool has_password = false;
  bool checksum_agrees = false;
  int property = 0;
  int version = 0;
  int depth = 0;
  int alphabet = 0;
  std::int64_t index_offset = 0;
  std::int64_t data_offset = 0;
  std::int64_t file_size = 0;
  std::int64_t time_stamp = 0;
  int packing = 0;
  std::int64_t shared_offset = 0;
  std::int64_t index_count = 0;
  std::int64_t shared_size = 0;

  // Packing as readers take it: older versions and word lists know less.
  bool packed() const { return version > 538 && (packing == 1 || packing == 3); }
  bool shared() const { return version > 538 && (packing == 2 || packing == 3) && type != "S"; }
};

// Reads the header of a dictionary that has been opened before, so that its header is known to be
// sound. Throws Error.
FileHeader read_file_header(const std::string& path);

// Reads `size` bytes at an offset of the file; fewer at its end.
std::string read_bytes(const std::string& path, std::int64_t offset, std::size_t size);

std::uint32_t little_endian(const std::string& bytes, std::size_t at, std::size_t width);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_FILE_HEADER_H
