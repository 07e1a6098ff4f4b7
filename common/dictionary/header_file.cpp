// Headers of closed dictionaries: passwords, checksum, reading and rewriting in place.
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include "dictionary/error.h"
#include "dictionary/header_layout.h"
#include "dictionary/little_endian.h"
#include "foundation/text_key.h"
#include "kz/file.h"
#include "platform/file.h"

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

namespace kz {
namespace {

constexpr unsigned kReadDenyingWrite = KZ_FILE_READ | KZ_FILE_SHARE_READ;
constexpr unsigned kUpdate = KZ_FILE_READ_WRITE;

// Closes on leaving a scope without touching errno.
class OpenFile : public ZCFile {
 public:
  using ZCFile::ZCFile;
  ~OpenFile() override {
    const KeepErrno keep;
    Close();
  }
};

// The current signature with its four zero bytes; older generations are not taken here.
bool is_current(const std::uint8_t* bytes) {
  std::array<char, layout::kSignatureSize> field{};
  std::copy(kSignature.begin(), kSignature.end(), field.begin());
  return std::memcmp(bytes, field.data(), field.size()) == 0;
}

// Copies a text into a field that is padded with zeros and need not be terminated.
void fill_field(std::uint8_t* field, std::size_t size, const char* text) {
  std::size_t i = 0;
  for (; i < size && text[i] != 0; ++i) field[i] = static_cast<std::uint8_t>(text[i]);
  std::fill(field + i, field + size, std::uint8_t{0});
}

std::uint16_t open_header(const char* path, std::uint8_t* bytes, std::int32_t* time) {
  errno = 0;
  set_error(DIC_OK);
  OpenFile file;
  if (path == nullptr || !file.Open(path, kReadDenyingWrite)) return set_error(DIC_ERR_FILE);
  if (bytes == nullptr) return DIC_OK;

  const std::uint32_t length = file.GetLength();
  if (file.Read(bytes, kHeaderSize) != kHeaderSize) return set_error(DIC_ERR_FORMAT);
  const Header header =
      decode_header(std::span<const std::uint8_t, kHeaderSize>(bytes, kHeaderSize));
  if (!sizes_fit(header, length) || !is_current(bytes)) return set_error(DIC_ERR_FORMAT);

  if (time != nullptr) {
    ZCFileStatus status;
    *time = file.GetStatus(status) ? status.modification_time.GetTime() : header.time_stamp;
  }
  return DIC_OK;
}

}  // namespace
}  // namespace kz

extern "C" {

std::uint16_t DicHeaderOpen(const char* path, DicHeader* header, std::int32_t* time) {
  return kz::open_header(path, reinterpret_cast<std::uint8_t*>(header), time);
}

std::uint16_t DicHeaderSetProperties(const char* path, const char* title, const char* label,
                                     std::uint16_t property, const char* password) {
  namespace layout = kz::layout;
  std::array<std::uint8_t, kz::kHeaderSize> bytes;
  if (const std::uint16_t error = kz::open_header(path, bytes.data(), nullptr)) return error;
  kz::OpenFile file;
  if (!file.Open(path, kz::kUpdate)) return kz::set_error(DIC_ERR_FILE);

  if (property != 0) bytes[layout::kProperty] = static_cast<std::uint8_t>(property);
  if (title != nullptr) kz::fill_field(&bytes[layout::kTitle], layout::kTitleSize, title);
  if (label != nullptr) kz::fill_field(&bytes[layout::kLabel], layout::kLabelSize, label);
  DicPwSet(&bytes[layout::kPassword], password);
  if (file.Write(bytes.data(), kz::kHeaderSize) != kz::kHeaderSize || !kz::platform::flush(file)) {
    kz::set_error(DIC_ERR_FILE);
  }
  return kz::last_error();
}

}  // extern "C"
