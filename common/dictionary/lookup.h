// Lookup: what the functions of kz/dictionary.h do with a dictionary object.
#ifndef KZ_DICTIONARY_LOOKUP_H
#define KZ_DICTIONARY_LOOKUP_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "dictionary/block.h"
#include "dictionary/header.h"
#include "dictionary/headword_cache.h"
#include "dictionary/index.h"
#include "dictionary/record_range.h"
#include "dictionary/records.h"
#include "kz/dictionary.h"

namespace kz {

// What a dictionary object keeps beside its documented fields.
struct SearchState {
  explicit SearchState(std::size_t memory_max)
      : headwords(memory_max), texts_max(memory_max), memory_left(16 * std::uint64_t{memory_max}) {}

  bool packed = false;
  bool whole_words = false;  // a packed word list: an exact match ends with the record
  HeadwordCache headwords;
  // Letter groups of the index whose headwords are not in the cache, once one of them is.
  std::optional<std::size_t> uncached_groups;
  std::size_t texts_max;  // bytes that the decoded texts of a block may take
  BlockStore blocks;      // those that the index does not keep
  // Bytes that blocks and decoded texts may still take. Those of a sound dictionary take a few
  // times its size at most, while a damaged index may have every one of its blocks reach to the
  // end of the records: the blocks for which nothing is left are read in steps.
  std::uint64_t memory_left;

  // The range of the latest search, the offset of the next record in it, whether a record was
  // found, and whether a walk can go on from it.
  RecordRange range;
  std::int32_t next = 0;
  bool found = false;
  bool more = false;
  const CachedRecord* cached = nullptr;  // the record found, when it came from the headword cache
  std::int32_t work_length = 0;          // of the packed record in the work record
  bool entry_object_stale = false;       // the entry object does not show the found entry yet
};

// The private parts of a CDic, for the functions over its handle. It has no state of its own.
class Lookup {
 public:
  // Of an open dictionary.
  explicit Lookup(CDic& dictionary) : d_(dictionary), s_(*dictionary.search_) {}

  static bool is_open(const CDic* dictionary) {
    return dictionary != nullptr && dictionary->search_ != nullptr;
  }

  // Opens the file; 0, or the error code, with everything released.
  static std::uint16_t open(CDic& dictionary, const char* path, std::int16_t mode);
  static void close(CDic& dictionary);

  const char* find(const char* word, std::int16_t search_mode, std::int16_t level);
  const char* find_next(std::int16_t level);
  const char* found(std::int16_t level);
  CDicEntry* entry_object();
  void load_all_blocks();

  static CDicIndex& index(CDic& dictionary) { return dictionary.index_; }
  static const ZCString& path(const CDic& dictionary) { return dictionary.path_; }
  static std::uint8_t& mode(CDic& dictionary) { return dictionary.mode_; }
  static std::uint16_t& id(CDic& dictionary) { return dictionary.id_; }
  static const char* language(const CDic& dictionary) { return dictionary.language_; }
  static int alphabet_size(const CDic& dictionary) { return dictionary.alphabet_size_; }
  static char type(const CDic& dictionary) { return dictionary.type_[0]; }
  static std::int32_t modification_time(const CDic& dictionary) {
    return dictionary.modification_time_;
  }
  // The password field of the header, still scrambled.
  static const std::uint8_t* password(const CDic& dictionary) { return dictionary.password_; }
  // The entry found last, as DicFind gave it.
  static std::string_view entry(const CDic& dictionary) {
    return {dictionary.entry_, static_cast<std::size_t>(dictionary.entry_length_)};
  }

 private:
  // Where a search looks: a range of the record area, which is one whole block of the index or not.
  struct Place {
    std::int32_t position = -1;
    std::int32_t size = 0;
    bool one_block = false;
    Block* kept = nullptr;  // that block, when the index keeps it
  };

  std::uint16_t read_header(std::int16_t mode);
  std::uint16_t read_index(std::int16_t mode, const Header& header, std::uint64_t file_length);
  std::uint16_t locate_shared_text(const Header& header, std::uint64_t file_length);

  bool has_mode(std::int16_t mode) const { return (d_.mode_ & kModeMask) == mode; }
  Place place_of(const char* word);
  std::int32_t size_in_records(std::int32_t position, std::int32_t size) const;
  Block* block(const Place& place);

  std::string_view key() const {
    return {d_.search_key_, static_cast<std::size_t>(d_.key_length_)};
  }
  void search_in(const Block& block);
  void search_in_file(const Place& place);
  bool find_record();
  bool find_plain_record(bool exact);
  bool find_packed_record(bool exact);
  bool first_plain_record();
  bool take_plain(std::int32_t offset);
  bool take_packed(std::string_view before, const PackedRecord& record);
  const char* take_cached(const CachedRecord& record, std::int16_t level);
  void sync_cursor();

  bool key_is_headword() const;
  bool cache_headwords(Block& block);
  void mark_group_cached(Block& block);
  bool cache_is_complete_for(const char* word) const;
  bool cache_plain(Block& block);
  bool cache_packed(Block& block);
  bool cache_record(std::string_view word, CachedRecord record);
  bool is_looked_up_in(std::string_view word, const Block& block);

  const char* answer(bool found, std::int16_t level);
  bool decode(std::int16_t level);
  bool resolve_shared_text();
  bool load_shared_text();
  void set_entry(std::string_view text);

  static constexpr int kModeMask = 0x7F;

  CDic& d_;
  SearchState& s_;
};

}  // namespace kz

#endif  // KZ_DICTIONARY_LOOKUP_H
