// The compiled form of an inflection table.
#ifndef KZ_MORPHOLOGY_INFLECTION_FILE_H
#define KZ_MORPHOLOGY_INFLECTION_FILE_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "kz/inflection.h"

namespace kz {

// The longest file there can be: the number of entries, then for each its record count, records,
// the ending's length and the ending.
inline constexpr std::size_t kMostEndings = 0xFFFF;
inline constexpr std::size_t kLongestEnding = sizeof(CGrSrcWordObj::ending) - 1;
inline constexpr std::size_t kLargestInflectionFile =
    2 + kMostEndings * (1 + sizeof(CGrSrcWordObj::attributes) + 1 + kLongestEnding);

using InflectionEntries = std::vector<std::unique_ptr<CGrSrcWordObj>>;

// The entries of a file, nothing when it is damaged. What follows the last entry is ignored.
std::optional<InflectionEntries> decode_inflection(std::span<const std::uint8_t> file);

// The number of entries, and one entry, as the file holds them.
void append_count(std::string& file, std::size_t count);
void append_entry(std::string& file, const CGrSrcWordObj& entry);

}  // namespace kz

#endif  // KZ_MORPHOLOGY_INFLECTION_FILE_H
