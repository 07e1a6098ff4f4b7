// Reading, checking and upgrading the header of a dictionary file.
#ifndef KZ_DICTIONARY_HEADER_H
#define KZ_DICTIONARY_HEADER_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "kz/dic_header.h"

namespace kz {

inline constexpr std::size_t kHeaderSize = 154;

// A header still in the byte order of the file.
using HeaderBytes = std::span<std::uint8_t, kHeaderSize>;

// The fields of a header that the library uses, as native integers. The two texts are terminated
// whatever the file holds.
struct Header {
  std::array<char, 5> language;
  std::array<char, 2> type;
  std::array<std::uint8_t, 8> password;
  std::uint8_t property;
  std::uint16_t format_version;
  std::int16_t index_depth;
  std::int16_t alphabet_size;
  std::int32_t index_offset;
  std::uint32_t data_offset;
  std::uint32_t file_size;
  std::int32_t time_stamp;
  std::uint32_t reserved2;
  std::uint16_t checksum;
  std::uint8_t packing;
  std::uint32_t shared_offset;
  std::int32_t index_count;
  std::uint32_t shared_size;
};

Header decode_header(std::span<const std::uint8_t, kHeaderSize> bytes);

// Makes the header of an older generation usable: a first-generation one is rewritten in the
// current layout, a second-generation one is left as it is. False for anything else.
bool upgrade_header(HeaderBytes bytes);

// The size and position checks that every header must pass: FileSize is not above the file's
// length, IndexOffset is 0 or is after the header and inside the file.
bool sizes_fit(const Header& header, std::uint64_t file_length);

// The header rules of a dictionary open: the current signature or one that upgrade_header takes,
// then the size and position checks against the file's length. Nothing when the file is refused
// (DIC_ERR_FORMAT); the error variable is left to the caller. `bytes` is upgraded in place.
std::optional<Header> accept_header(HeaderBytes bytes, std::uint64_t file_length);

}  // namespace kz

#endif  // KZ_DICTIONARY_HEADER_H
