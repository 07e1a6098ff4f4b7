// Loading a block of records.
#include "dictionary/block.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

namespace kz {

std::unique_ptr<Block> Block::load(ZCFile& file, std::int32_t position, std::int32_t size) {
  constexpr std::array<char, 3> kBlockEnd = {0, 0, 26};
  std::unique_ptr<Block> block(new (std::nothrow) Block);
  if (!block) return nullptr;
  const auto length = static_cast<std::size_t>(size);
  block->position_ = position;
  block->size_ = size;
  block->bytes_.reset(new (std::nothrow) char[length + kBlockEnd.size()]);
  if (!block->bytes_ || file.Seek(position, 0) != position ||
      file.Read(block->bytes_.get(), static_cast<unsigned>(size)) != length) {
    return nullptr;
  }
  std::ranges::copy(kBlockEnd, block->bytes_.get() + length);
  return block;
}

Block* BlockStore::find(std::int32_t position, std::int32_t size) const {
  const auto found = blocks_.find(key(position, size));
  return found == blocks_.end() ? nullptr : found->second.get();
}

Block* BlockStore::put(std::unique_ptr<Block> block) {
  try {
    auto& slot = blocks_[key(block->position(), block->size())];
    slot = std::move(block);
    return slot.get();
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

}  // namespace kz
