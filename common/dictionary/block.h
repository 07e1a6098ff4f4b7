// A block of records in memory.
#ifndef KZ_DICTIONARY_BLOCK_H
#define KZ_DICTIONARY_BLOCK_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>

#include "kz/file.h"

namespace kz {

// The bytes of one block as they are in the file, followed by the bytes 0, 0, 26.
class Block {
 public:
  // Reads a block from the file. Null when the file does not give all of it, or without memory.
  static std::unique_ptr<Block> load(ZCFile& file, std::int32_t position, std::int32_t size);

  std::int32_t position() const { return position_; }
  std::int32_t size() const { return size_; }
  std::string_view bytes() const { return {bytes_.get(), static_cast<std::size_t>(size_)}; }

  // How exact searches treat the block: the first reads through its records, which takes less time
  // than to enter them in the table of headwords; later ones rely on the table, or know that they
  // cannot.
  enum class Headwords : std::uint8_t { kUnknown, kSearchedOnce, kCached, kNotCacheable };
  Headwords headwords = Headwords::kUnknown;
  // The block of a letter group in the table has been counted.
  bool counted = false;

  // The decoded texts of packed records that the table of headwords refers to.
  std::unique_ptr<char[]> texts;

 private:
  std::unique_ptr<char[]> bytes_;
  std::int32_t position_ = 0;
  std::int32_t size_ = 0;
};

// Blocks by position and size, for a dictionary whose index keeps none: groups of the index may
// begin at the same position and end at different ones.
class BlockStore {
 public:
  Block* find(std::int32_t position, std::int32_t size) const;
  // Keeps the block; null without memory.
  Block* put(std::unique_ptr<Block> block);

 private:
  static std::uint64_t key(std::int32_t position, std::int32_t size) {
    return static_cast<std::uint64_t>(position) << 32 | static_cast<std::uint32_t>(size);
  }

  std::unordered_map<std::uint64_t, std::unique_ptr<Block>> blocks_;
};

}  // namespace kz

#endif  // KZ_DICTIONARY_BLOCK_H
