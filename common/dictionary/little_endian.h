// Little-endian integers in byte buffers, read and written byte by byte.
#ifndef KZ_DICTIONARY_LITTLE_ENDIAN_H
#define KZ_DICTIONARY_LITTLE_ENDIAN_H

#include <cstdint>

namespace kz {

constexpr std::uint16_t load_u16(const std::uint8_t* p) {
  return static_cast<std::uint16_t>(p[0] | p[1] << 8);
}

constexpr std::uint32_t load_u32(const std::uint8_t* p) {
  return static_cast<std::uint32_t>(p[0]) | static_cast<std::uint32_t>(p[1]) << 8 |
         static_cast<std::uint32_t>(p[2]) << 16 | static_cast<std::uint32_t>(p[3]) << 24;
}

constexpr std::int16_t load_i16(const std::uint8_t* p) {
  return static_cast<std::int16_t>(load_u16(p));
}

constexpr std::int32_t load_i32(const std::uint8_t* p) {
  return static_cast<std::int32_t>(load_u32(p));
}

constexpr void store_u16(std::uint8_t* p, std::uint16_t value) {
  p[0] = static_cast<std::uint8_t>(value);
  p[1] = static_cast<std::uint8_t>(value >> 8);
}

constexpr void store_u32(std::uint8_t* p, std::uint32_t value) {
  p[0] = static_cast<std::uint8_t>(value);
  p[1] = static_cast<std::uint8_t>(value >> 8);
  p[2] = static_cast<std::uint8_t>(value >> 16);
  p[3] = static_cast<std::uint8_t>(value >> 24);
}

}  // namespace kz

#endif  // KZ_DICTIONARY_LITTLE_ENDIAN_H
