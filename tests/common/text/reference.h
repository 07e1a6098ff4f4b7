// Codes of letters as Python's codecs give them, and random texts of all codes.
#ifndef KZ_TESTS_TEXT_REFERENCE_H
#define KZ_TESTS_TEXT_REFERENCE_H

#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace kz_test {

// The letters А to Я, а to я, Ё, ё: ''.join(letters).encode(code page).hex().
inline constexpr std::string_view russian_1251 =
    "c0c1c2c3c4c5c6c7c8c9cacbcccdcecfd0d1d2d3d4d5d6d7d8d9dadbdcdddedf"
    "e0e1e2e3e4e5e6e7e8e9eaebecedeeeff0f1f2f3f4f5f6f7f8f9fafbfcfdfeffa8b8";
inline constexpr std::string_view russian_866 =
    "808182838485868788898a8b8c8d8e8f909192939495969798999a9b9c9d9e9f"
    "a0a1a2a3a4a5a6a7a8a9aaabacadaeafe0e1e2e3e4e5e6e7e8e9eaebecedeeeff0f1";
inline constexpr std::string_view russian_koi8 =
    "e1e2f7e7e4e5f6fae9eaebecedeeeff0f2f3f4f5e6e8e3fefbfdfff9f8fce0f1"
    "c1c2d7c7c4c5d6dac9cacbcccdcecfd0d2d3d4d5c6c8c3dedbdddfd9d8dcc0d1b3a3";
inline constexpr std::string_view russian_iso =
    "b0b1b2b3b4b5b6b7b8b9babbbcbdbebfc0c1c2c3c4c5c6c7c8c9cacbcccdcecf"
    "d0d1d2d3d4d5d6d7d8d9dadbdcdddedfe0e1e2e3e4e5e6e7e8e9eaebecedeeefa1f1";
inline constexpr std::string_view russian_mac =
    "808182838485868788898a8b8c8d8e8f909192939495969798999a9b9c9d9e9f"
    "e0e1e2e3e4e5e6e7e8e9eaebecedeeeff0f1f2f3f4f5f6f7f8f9fafbfcfdfedfddde";
// The small letters ä ö ü à â ç è é ê ë î ï ô ù û ß œ and their capitals. CP850 lacks œ and Œ,
// which keep their Windows-1252 codes.
inline constexpr std::string_view western_lower_1252 = "e4f6fce0e2e7e8e9eaebeeeff4f9fbdf9c";
inline constexpr std::string_view western_upper_1252 = "c4d6dcc0c2c7c8c9cacbcecfd4d9dbdf8c";
inline constexpr std::string_view western_lower_850 = "8494818583878a8288898c8b939796e19c";
inline constexpr std::string_view western_upper_850 = "8e999ab7b680d490d2d3d7d8e2ebeae18c";

inline std::vector<int> codes(std::string_view hex) {
  std::vector<int> result;
  for (std::size_t i = 0; i < hex.size(); i += 2) {
    result.push_back(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16));
  }
  return result;
}

inline std::string bytes(std::string_view hex) {
  std::string result;
  for (const int code : codes(hex)) result += static_cast<char>(code);
  return result;
}

// What stands for a code: that of `to` in the place of its first one in `from`, or the code itself.
inline int partner(int code, std::string_view from, std::string_view to) {
  const std::size_t at = from.find(static_cast<char>(code));
  return at != from.npos ? static_cast<unsigned char>(to[at]) : code & 255;
}

// A text of any bytes but zero.
inline std::string random_text(std::size_t size, unsigned seed) {
  std::mt19937 random(seed);
  std::string text(size, '\0');
  for (char& c : text) c = static_cast<char>(random() % 255 + 1);
  return text;
}

// Lengths around the widths of vectors, and around the pieces (a first one of 32 bytes, then 4096)
// in which texts are worked on.
inline std::vector<std::size_t> interesting_sizes() {
  std::vector<std::size_t> sizes;
  for (std::size_t i = 0; i <= 140; ++i) sizes.push_back(i);
  for (const std::size_t i : {4095, 4096, 4097, 4127, 4128, 4129, 4191, 4192, 4193, 20011}) {
    sizes.push_back(i);
  }
  return sizes;
}

}  // namespace kz_test

#endif  // KZ_TESTS_TEXT_REFERENCE_H
