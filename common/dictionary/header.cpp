// Header layout: decoding, acceptance, upgrade of older generations.
#include "dictionary/header.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "dictionary/header_layout.h"
#include "dictionary/little_endian.h"

namespace kz {
namespace {

// The second generation has the layout of the current one. Texts include their trailing blank.
constexpr std::string_view kSecondSignature = "KZ Dictionary 2.10 (C) 1993-1996 Torva Ltd. ";
constexpr std::string_view kFirstSignature = "QAN Dictionary (C) 1993-1995 Torva Ltd. ";
static_assert(kSecondSignature.size() == kSignature.size());

// The first generation's header and the places of its fields.
constexpr std::size_t kFirstHeaderSize = 124;
constexpr std::uint16_t kFirstVersion = 256;
namespace first {
static_assert(kFirstSignature.size() == 40);
constexpr std::size_t kLabel = 40;
constexpr std::size_t kLanguages = 48;
constexpr std::size_t kTitle = 50;
constexpr std::size_t kReserved1 = 98;
constexpr std::size_t kProperty = 99;
constexpr std::size_t kVersion = 100;
constexpr std::size_t kDepth = 102;
constexpr std::size_t kAlphabetSize = 104;
constexpr std::size_t kIndexOffset = 106;
constexpr std::size_t kFileSize = 110;
constexpr std::size_t kTimeStamp = 114;
constexpr std::size_t kReserved2 = 118;
}  // namespace first

// The two language letters of the first generation and what they became.
struct FirstLanguages {
  std::string_view letters;
  std::string_view language;
  char type;
};

constexpr FirstLanguages kFirstLanguages[] = {
    {"ER", "ENRU", 'C'}, {"RE", "RUEN", 'C'}, {{"E\0", 2}, "EN", 'G'}, {{"R\0", 2}, "RU", 'G'}};

bool begins_with(std::span<const std::uint8_t> bytes, std::string_view text) {
  return std::memcmp(bytes.data(), text.data(), text.size()) == 0;
}

void upgrade_first_generation(HeaderBytes bytes) {
  std::array<std::uint8_t, kFirstHeaderSize> old;
  std::copy_n(bytes.begin(), old.size(), old.begin());
  std::fill(bytes.begin(), bytes.end(), std::uint8_t{0});

  const auto carry = [&](std::size_t from, std::size_t to, std::size_t size) {
    std::copy_n(old.begin() + from, size, bytes.begin() + to);
  };
  std::copy(kSignature.begin(), kSignature.end(), bytes.begin() + layout::kSignature);
  carry(first::kLabel, layout::kLabel, layout::kLabelSize);
  carry(first::kTitle, layout::kTitle, layout::kTitleSize);
  carry(first::kReserved1, layout::kReserved1, 1);
  for (const FirstLanguages& known : kFirstLanguages) {
    if (std::memcmp(&old[first::kLanguages], known.letters.data(), 2) != 0) continue;
    std::copy(known.language.begin(), known.language.end(), bytes.begin() + layout::kLanguage);
    bytes[layout::kType] = static_cast<std::uint8_t>(known.type);
  }
  carry(first::kProperty, layout::kProperty, 1);
  store_u16(&bytes[layout::kFormatVersion], kFirstVersion);
  carry(first::kDepth, layout::kIndexDepth, 2);
  carry(first::kAlphabetSize, layout::kAlphabetSize, 2);
  carry(first::kIndexOffset, layout::kIndexOffset, 4);
  store_u32(&bytes[layout::kDataOffset], kFirstHeaderSize);
  carry(first::kFileSize, layout::kFileSize, 4);
  carry(first::kTimeStamp, layout::kTimeStamp, 4);
  carry(first::kReserved2, layout::kReserved2, 4);
}

}  // namespace

Header decode_header(std::span<const std::uint8_t, kHeaderSize> bytes) {
  Header header{};
  std::copy_n(&bytes[layout::kLanguage], header.language.size() - 1, header.language.begin());
  header.type[0] = static_cast<char>(bytes[layout::kType]);
  std::copy_n(&bytes[layout::kPassword], header.password.size(), header.password.begin());
  header.property = bytes[layout::kProperty];
  header.format_version = load_u16(&bytes[layout::kFormatVersion]);
  header.index_depth = load_i16(&bytes[layout::kIndexDepth]);
  header.alphabet_size = load_i16(&bytes[layout::kAlphabetSize]);
  header.index_offset = load_i32(&bytes[layout::kIndexOffset]);
  header.data_offset = load_u32(&bytes[layout::kDataOffset]);
  header.file_size = load_u32(&bytes[layout::kFileSize]);
  header.time_stamp = load_i32(&bytes[layout::kTimeStamp]);
  header.reserved2 = load_u32(&bytes[layout::kReserved2]);
  header.checksum = load_u16(&bytes[layout::kChecksum]);
  header.packing = bytes[layout::kPacking];
  header.shared_offset = load_u32(&bytes[layout::kSharedOffset]);
  header.index_count = load_i32(&bytes[layout::kIndexCount]);
  header.shared_size = load_u32(&bytes[layout::kSharedSize]);
  return header;
}

bool upgrade_header(HeaderBytes bytes) {
  if (begins_with(bytes, kFirstSignature)) {
    if (load_u16(&bytes[first::kVersion]) != kFirstVersion) return false;
    upgrade_first_generation(bytes);
    return true;
  }
  return begins_with(bytes, kSecondSignature);
}

bool sizes_fit(const Header& header, std::uint64_t file_length) {
  const std::int64_t index_offset = header.index_offset;
  return header.file_size <= file_length &&
         index_offset <= static_cast<std::int64_t>(file_length) &&
         (index_offset == 0 || index_offset >= static_cast<std::int64_t>(kHeaderSize));
}

std::optional<Header> accept_header(HeaderBytes bytes, std::uint64_t file_length) {
  if (!begins_with(bytes, kSignature) && !upgrade_header(bytes)) return std::nullopt;
  const Header header = decode_header(bytes);
  if (!sizes_fit(header, file_length)) return std::nullopt;
  return header;
}

}  // namespace kz
