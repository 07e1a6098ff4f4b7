// Puts the headwords of a block into the cache of the dictionary.
//
// The cache must answer as a search of the block would. So a headword gets the first of its
// records, and only from the block in which the index looks it up; and the headwords of a packed
// block are cached only when a search would not stop before one of its records.
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <new>

#include "dictionary/lookup.h"

namespace kz {
namespace {

// Sort position of a character in which the end of a headword comes before every letter.
int rank(char c, bool whole) {
  return !whole && c == kHeadwordEnd ? -1 : static_cast<unsigned char>(c);
}

// What a search compares of a record: its headword with the end mark.
std::string_view search_text(std::string_view text, bool whole) {
  if (whole) return text;
  const std::size_t end = text.find(kHeadwordEnd);
  return end == std::string_view::npos ? text : text.substr(0, end + 1);
}

// A search stops at a record that takes over less of the record before it than the key shares with
// that one. No headword is lost that way when every record takes over all that it can and the
// records are in order.
bool follows(std::string_view previous, std::string_view text, std::size_t count, bool whole) {
  const auto end =
      previous.begin() + static_cast<std::ptrdiff_t>(std::min(previous.size(), text.size()));
  const auto [a, b] = std::mismatch(previous.begin(), end, text.begin());
  if (static_cast<std::size_t>(a - previous.begin()) > count) return false;
  if (a == previous.end() || b == text.end()) return a == previous.end();
  return rank(*a, whole) < rank(*b, whole);
}

// Walks the packed records of a block with their decoded texts: visit(record, text, previous text).
// False when the walk was ended by visit, or by a record that takes over more than there is.
template <typename Visit>
bool walk_packed(std::string_view block, Visit visit) {
  RecordRange range;
  range.set_memory(block);
  PackedRecord record;
  char texts[2][kPackedTextMax];
  std::string_view previous;
  for (std::int32_t offset = 0; read_packed(range, offset, record); offset = record.end) {
    const auto count = static_cast<std::size_t>(record.count);
    if (count > previous.size()) return false;
    char* const text = previous.data() == texts[0] ? texts[1] : texts[0];
    char* end = std::ranges::copy(previous.substr(0, count), text).out;
    end = std::ranges::transform(record.stored, end, invert_top_bit).out;
    const std::string_view decoded(text, static_cast<std::size_t>(end - text));
    if (!visit(record, decoded, previous)) return false;
    previous = decoded;
  }
  return true;
}

}  // namespace

// True when the key can be nothing but a headword. One with a headword end or a line feed in it may
// also match across them.
bool Lookup::key_is_headword() const {
  return s_.whole_words || (key().find(kHeadwordEnd) == std::string_view::npos &&
                            key().find('\n') == std::string_view::npos);
}

// True when this call has put the headwords of the block into the cache.
bool Lookup::cache_headwords(Block& block) {
  if (block.headwords == Block::Headwords::kUnknown) {
    block.headwords = Block::Headwords::kSearchedOnce;
  } else if (block.headwords == Block::Headwords::kSearchedOnce) {
    const bool entered = s_.packed ? cache_packed(block) : cache_plain(block);
    block.headwords = entered ? Block::Headwords::kCached : Block::Headwords::kNotCacheable;
    return entered;
  }
  return false;
}

// Counts the letter group at the place of the index as cached, once for each block.
void Lookup::mark_group_cached(Block& block) {
  IndexCore index(d_.index_);
  if (block.counted || !index.at_letter_group()) return;
  block.counted = true;
  if (!s_.uncached_groups) s_.uncached_groups = index.count_letter_groups();
  --*s_.uncached_groups;
}

// True when the cache has the headwords of all blocks in which the word could be: a word that it
// lacks is not in the dictionary then.
bool Lookup::cache_is_complete_for(const char* word) const {
  return s_.uncached_groups == std::size_t{0} && key_is_headword() &&
         IndexCore(d_.index_).in_letter_group(word);
}

bool Lookup::cache_plain(Block& block) {
  const std::string_view bytes = block.bytes();
  for (std::size_t line_feed = bytes.find('\n'); line_feed != std::string_view::npos;) {
    const std::size_t start = line_feed + 1;
    line_feed = bytes.find('\n', start);
    const std::string_view line = bytes.substr(start, line_feed - start);
    const std::size_t length = line.find(kHeadwordEnd);
    if (length == std::string_view::npos) continue;
    CachedRecord record;
    record.block = &block;
    record.text = line.data();
    record.next = static_cast<std::int32_t>(start + line.size());
    record.length = static_cast<std::uint16_t>(std::min<std::size_t>(line.size(), kEntryTextMax));
    if (!cache_record(line.substr(0, length), record)) return false;
  }
  return true;
}

bool Lookup::cache_packed(Block& block) {
  const bool whole = s_.whole_words;
  std::size_t size = 0;
  const bool in_order = walk_packed(
      block.bytes(), [&](const PackedRecord& record, std::string_view text, auto previous) {
        size += text.size();
        return previous.data() == nullptr ||
               follows(search_text(previous, whole), search_text(text, whole),
                       static_cast<std::size_t>(record.count), whole);
      });
  if (!in_order || size > s_.texts_max || size > s_.memory_left) return false;
  block.texts.reset(new (std::nothrow) char[size]);
  if (!block.texts) return false;
  s_.memory_left -= size;

  char* end = block.texts.get();
  return walk_packed(block.bytes(), [&](const PackedRecord& packed, std::string_view text, auto) {
    const std::string_view key = search_text(text, whole);
    if (packed.before_marker || !(whole || key.ends_with(kHeadwordEnd))) return true;
    CachedRecord record;
    record.block = &block;
    record.text = end;
    record.next = packed.end;
    record.length = static_cast<std::uint16_t>(text.size());
    end = std::ranges::copy(text, end).out;
    return cache_record({record.text, key.size() - (whole ? 0 : 1)}, record);
  });
}

// Puts one record into the cache, unless no search could ask for its headword in this block. False
// when there is no room.
bool Lookup::cache_record(std::string_view word, CachedRecord record) {
  if (word.empty() || word.size() > HeadwordCache::kWordMax) return true;
  if (!is_looked_up_in(word, *record.block)) return true;
  record.word_length = static_cast<std::uint16_t>(word.size());
  record.reference = find_shared_reference({record.text, record.length}, d_.shared_size_);
  return s_.headwords.add(record);
}

bool Lookup::is_looked_up_in(std::string_view word, const Block& block) {
  char text[HeadwordCache::kWordMax + 1];
  *std::ranges::copy(word, text).out = 0;
  const Place place = place_of(text);
  return place.position == block.position() && place.size == block.size();
}

}  // namespace kz
