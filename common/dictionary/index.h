// What the dictionary object needs of its letter index beyond the exported members.
#ifndef KZ_DICTIONARY_INDEX_H
#define KZ_DICTIONARY_INDEX_H

#include <cstddef>
#include <cstdint>
#include <memory>

#include "dictionary/index_shape.h"
#include "kz/dic_index.h"

namespace kz {

class Block;
struct IndexState;

// One record of a depth-5 index: the first five characters as a number, and the position of the
// first headword that begins with them.
struct KeyRecord {
  std::uint32_t key;
  std::uint32_t position;
};

// True when the file has room for such an index at `index_offset`: a known depth and alphabet, a
// record count that is not negative (asked at depth 5 alone), and an image inside the file. To be
// asked before Init, which allocates what it is told.
bool index_fits(std::int16_t depth, std::int16_t alphabet_size, std::int32_t record_count,
                std::int32_t index_offset, std::uint64_t file_length);

// The reading side of a CDicIndex, and the writing side's core. It has no state of its own: make
// one where it is needed.
//
//     IndexCore index(dictionary->index_);
//     if (!index.set_prefix(word) || index.lookup() < 0) return nullptr;
//     index.widen(search_mode);
//     std::int32_t size = index.block_size();
class IndexCore {
 public:
  explicit IndexCore(CDicIndex& index) : x_(index) {}

  // Reads the image at the file's current position. 0, or 202 when it is cut short; the error
  // variable is left to the caller.
  std::uint16_t read(ZCFile& file);

  // Takes the first letters of a word (its end is the zero byte or '*'). False when the word
  // cannot be indexed.
  bool set_prefix(const char* word);

  // Position of the block of the prefix. -1 when its group is empty or its position lies outside
  // the record area.
  std::int32_t lookup();

  // After lookup: lets the block extend over the whole group that a prefix search of this mode
  // covers. True when it does (the block is then not the one that the cache keeps).
  bool widen(std::int16_t search_mode);

  // Size of the found block: the distance to the next group, never beyond the record area, 0 when
  // there is none.
  std::int32_t block_size();

  // The open mode, or 0 when no block cache could be made.
  std::int16_t access_mode() const { return x_.access_mode_; }
  bool has_cache() const { return x_.block_cache_ != nullptr; }

  // The cached block of the found group, null when there is none or the group was widened.
  Block* cached_block() const;

  // Keeps a block of the found group. The index owns it until Free; null (and the block is
  // released) when there is no cache or no memory. To be called after block_size.
  Block* put_block(std::unique_ptr<Block> block);

  // Walks all groups in index order, leaving out those that point outside the record area: each
  // one in turn becomes the found one, and `visit(position, size)` is called.
  template <typename Visit>
  void for_each_group(Visit visit) {
    for (bool found = select_first(); found; found = select_next()) {
      visit(x_.found_position_, block_size());
    }
  }

  // A letter group: the found group is one of words that begin with as many letters as the index
  // tells apart, where a group head has other words too. At depth 5 every group counts as one.
  bool at_letter_group() const;
  // How many of them there are.
  std::size_t count_letter_groups();
  // The word is looked up in a letter group, if at all.
  bool in_letter_group(const char* word) const;

  // The first three letters of the found group, blanks for none.
  void group_letters(char (&letters)[3]) const;

  // The position and size of the block of a word, -1 when it has none.
  std::int32_t word_position(const char* word);
  std::int32_t word_block_size(const char* word);

  // Lists all groups, one line each.
  void print(ZCFile& file);

 private:
  friend class ::CDicIndex;

  // What the library keeps for the index; null without a table.
  IndexState* state() const;

  void reset();
  void enter_in_table(std::int32_t position, const char* word);
  void enter_late_mark(std::int32_t position, const Slots& slots);
  void enter_key(std::int32_t position, const char* word);
  bool grow_records();

  bool read_prefix(const char* word, char (&prefix)[6]) const;
  Slots find_slots() const;
  Slots slots() const { return {x_.slots_[0], x_.slots_[1], x_.slots_[2]}; }
  std::int32_t size_at(const Slots& slots, std::int32_t position) const;
  bool widened() const;
  Block** cache_cell() const;

  bool select_first();
  bool select_next();
  bool select_rank(std::size_t from);
  bool select_record(std::int32_t from);

  CDicIndex& x_;
};

}  // namespace kz

#endif  // KZ_DICTIONARY_INDEX_H
