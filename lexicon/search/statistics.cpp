// Counts of blocks and records.
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <set>

#include "lexicon/build/shared_text.h"
#include "lexicon/search/dictionary_impl.h"
#include "lexicon/source/entry_layout.h"

namespace kz::lexicon {
namespace {

// Positions of the blocks that the index names, without repetition.
std::set<std::int64_t> block_positions(const std::string& path, const FileHeader& header) {
  const std::string image =
      read_bytes(path, header.index_offset, static_cast<std::size_t>(header.stated.index_bytes));
  const bool keys = header.stated.depth == 5;
  const std::size_t step = keys ? 8 : 4;
  std::set<std::int64_t> positions;
  for (std::size_t at = 0; at + step <= image.size(); at += step) {
    const auto position = static_cast<std::int32_t>(little_endian(image, keys ? at + 4 : at, 4));
    if (position >= 0 && position < header.index_offset) positions.insert(position);
  }
  return positions;
}

void count_blocks(const std::string& path, const FileHeader& header, Statistics& count) {
  const std::set<std::int64_t> positions = block_positions(path, header);
  count.blocks = positions.size();
  for (auto at = positions.begin(); at != positions.end(); ++at) {
    const auto next = std::next(at);
    const std::int64_t end = next == positions.end() ? header.index_offset : *next;
    count.largest_block = std::max(count.largest_block, end - *at);
  }
}

}  // namespace

Statistics Dictionary::statistics() const {
  Statistics count;
  count_blocks(impl_->path, impl_->header, count);
  const DictionaryHandle walk = open_dictionary(impl_->path, DIC_MODE_PLAIN);
  std::string before;
  const char* found = DicFind(walk.get(), nullptr, DIC_SEARCH_REST, DIC_LEVEL_DECODED);
  for (; found != nullptr; found = DicFindNext(walk.get(), DIC_LEVEL_DECODED)) {
    const std::string_view record = found;
    const EntryLayout at = layout_of(record);
    const std::string_view headword = record.substr(0, at.head_end);
    if (count.records == 0 || headword != before) ++count.headwords;
    before = headword;
    ++count.records;
    count.longest_headword = std::max(count.longest_headword, headword.size());
    count.longest_record = std::max(count.longest_record, record.size());
    if (header().shared && reads_as_reference(record.substr(at.body, at.source - at.body))) {
      ++count.references;
    }
  }
  return count;
}

}  // namespace kz::lexicon
