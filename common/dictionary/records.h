// The two record forms: plain lines and packed, front-coded records.
//
// Offsets count from the start of a RecordRange. A plain record is a line: it follows a line feed
// and ends before the next one, or at the end of the range. A packed record is one byte, 0 to 63,
// that counts the leading characters taken over from the record before it, and its remaining
// characters with their top bit inverted, which makes each of them 64 or more; so the next byte
// below 64 begins the next record. "Stored" text is text in that inverted form.
//
// Damaged data ends the records: nothing here reads outside the range or fails to advance.
#ifndef KZ_DICTIONARY_RECORDS_H
#define KZ_DICTIONARY_RECORDS_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "dictionary/record_range.h"

namespace kz {

// Ends the headword in a record.
inline constexpr char kHeadwordEnd = '*';

// Characters of a found record that are kept: an entry of 2,050 bytes with its terminating zero.
inline constexpr std::int32_t kEntryTextMax = 2049;
// Characters of a packed record, the ones taken over included: a work record of 260 bytes with its
// terminating zero.
inline constexpr std::int32_t kPackedTextMax = 259;
// A byte below this one is the count of a packed record, and never stored text.
inline constexpr unsigned char kStoredTextMin = 64;

constexpr char invert_top_bit(char c) { return static_cast<char>(c ^ '\x80'); }

struct PlainRecord {
  std::string_view text;  // at most kEntryTextMax characters; holds until the range is used again
  std::int32_t end = 0;   // offset of the line feed after it, or the end of the range
};

// Offset of the first record that begins with `key`, -1 when there is none.
std::int32_t find_plain(RecordRange& range, std::string_view key);

// Reads the record at `offset`. False at the end of the range, on a failed read, and on an empty
// line, which ends a sequence of records.
bool read_plain(RecordRange& range, std::int32_t offset, PlainRecord& record);

struct PackedRecord {
  std::int32_t count = 0;      // characters taken over from the record before it
  std::string_view stored;     // the others, stored; holds until the range is used again
  std::int32_t end = 0;        // offset of the next record, or the end of the range
  bool before_marker = false;  // the pair 0, 26, which ends a record area, follows directly
};

// Reads the packed record at `offset`. False at the end of the records: the end of the range or the
// pair 0, 26, a failed read, or what is no record (a text byte in place of the count, or a record
// of more than kPackedTextMax characters).
bool read_packed(RecordRange& range, std::int32_t offset, PackedRecord& record);

// Finds the first record that begins with the stored key, or, with `whole`, that equals it; false
// when there is none. The first record's leading characters are taken to be those of the key: the
// record before it, which has them, is before the range.
//
// The text of the record found is the first `record.count` characters of the key and
// `record.stored`.
bool find_packed(RecordRange& range, std::string_view stored_key, bool whole, PackedRecord& record);

}  // namespace kz

#endif  // KZ_DICTIONARY_RECORDS_H
