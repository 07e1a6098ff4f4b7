// The shared-text block: bodies of entries that are outside their records.
//
// A record whose body is a hexadecimal number names a text of the block by its offset. Bodies go
// there when several entries have the same one, when they do not fit a packed record, and when
// they would themselves read as such a number.
#ifndef KZ_LEXICON_SHARED_TEXT_H
#define KZ_LEXICON_SHARED_TEXT_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lexicon/build/record.h"

namespace kz::lexicon {

// Longest record that a reader of packed records takes.
inline constexpr std::size_t kPackedRecordMax = 259;
// Longest beginning that a packed record can take over from the record before it.
inline constexpr std::size_t kPackedPrefixMax = 63;

// True for a character that a packed record cannot hold: its stored form would read as the count
// that begins the next record.
constexpr bool breaks_packing(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 128 && byte < 192;
}

// Why the entry cannot be a packed record, with its body moved out if `may_share`; nothing when it
// can.
std::optional<std::string> packed_refusal(std::string_view entry, std::string_view language,
                                          bool may_share);

// True for a body that a reader would take for the number of a shared text.
bool reads_as_reference(std::string_view body);

struct SharedText {
  std::string block;      // zero-terminated texts; empty when nothing is shared
  std::size_t texts = 0;  // number of texts in the block
  std::size_t moved = 0;  // number of records that refer to it
};

// Sets `stored` of every record; without `may_share` it is the entry as it is. The block is
// laid out in record order, so that equal input gives equal bytes.
SharedText place_bodies(std::vector<Record>& records, bool packed, bool may_share);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_SHARED_TEXT_H
