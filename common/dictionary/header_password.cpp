// Password scrambling and the checksum of a header.
#include <algorithm>
#include <cstring>

#include "dictionary/header_layout.h"
#include "dictionary/little_endian.h"
#include "foundation/text_key.h"

namespace {

using kz::layout::kPasswordSize;

// Each byte is shifted by the text key plus its place, up to the first zero byte.
void unscramble(const std::uint8_t* field, char* out) {
  std::memcpy(out, field, kPasswordSize);
  for (std::size_t i = 0; i < kPasswordSize && out[i] != 0; ++i) {
    out[i] = static_cast<char>(field[i] - kz::kTextKey - i);
  }
}

}  // namespace

extern "C" {

void DicPwSet(std::uint8_t* field, const char* password) {
  if (field == nullptr || password == nullptr) return;
  std::fill_n(field, kPasswordSize, std::uint8_t{0});
  for (std::size_t i = 0; i < kPasswordSize && password[i] != 0; ++i) {
    field[i] = static_cast<std::uint8_t>(static_cast<std::uint8_t>(password[i]) + kz::kTextKey + i);
  }
}

char* DicPwGet(const std::uint8_t* field, char* out) {
  if (field == nullptr || out == nullptr) return nullptr;
  unscramble(field, out);
  return out;
}

int DicPwCmp(const std::uint8_t* field, const char* candidate) {
  if (field == nullptr || candidate == nullptr) return 0;
  char password[kPasswordSize];
  unscramble(field, password);
  return std::memcmp(password, candidate, kPasswordSize) == 0;
}

std::uint16_t kz_dict_set_csd(const DicHeader* header) {
  if (header == nullptr) return 0;
  constexpr std::size_t kSummedBytes = 152;
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(header);
  unsigned sum = 0;
  for (std::size_t i = 0; i < kSummedBytes; ++i) sum += bytes[i];
  return static_cast<std::uint16_t>(sum);
}

int kz_dict_chk_csd(const DicHeader* header) {
  if (header == nullptr) return 0;
  return kz_dict_set_csd(header) ==
         kz::load_u16(reinterpret_cast<const std::uint8_t*>(header) + kz::layout::kChecksum);
}

}  // extern "C"
