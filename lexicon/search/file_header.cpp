// Header of a dictionary file, byte by byte.
#include "lexicon/search/file_header.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <string_view>

#include "kz/dic_header.h"
#include "kzlexicon/code_page.h"
#include "lexicon/source/entry_layout.h"

namespace kz::lexicon {
namespace {

constexpr std::size_t kHeaderSize = 154;
constexpr std::string_view kFirstGeneration = "QAN Dictionary";

std::string field(const std::string& bytes, std::size_t at, std::size_t width) {
  const std::string text = bytes.substr(at, width);
  return text.substr(0, text.find('\0'));
}

std::int32_t signed32(const std::string& bytes, std::size_t at) {
  return static_cast<std::int32_t>(little_endian(bytes, at, 4));
}

std::int16_t signed16(const std::string& bytes, std::size_t at) {
  return static_cast<std::int16_t>(little_endian(bytes, at, 2));
}

std::string first_generation_language(std::string_view letters) {
  if (letters == "ER") return "ENRU";
  if (letters == "RE") return "RUEN";
  if (letters[1] != '\0') return {};
  return letters[0] == 'E' ? "EN" : letters[0] == 'R' ? "RU" : "";
}

// Packing as readers take it: older versions and word lists know less.
void set_packing(int packing, std::int64_t shared_bytes, Header& header) {
  if (header.version <= 538) return;
  header.packed = packing == 1 || packing == 3;
  header.shared = (packing == 2 || packing == 3) && header.type != "S";
  if (header.shared) header.shared_bytes = shared_bytes;
}

// The first generation names two language letters and has no field for much of the rest.
FileHeader first_generation(const std::string& bytes) {
  FileHeader header;
  Header& stated = header.stated;
  stated.generation = 1;
  stated.label = field(bytes, 40, 8);
  stated.language = first_generation_language(std::string_view(bytes).substr(48, 2));
  if (!stated.language.empty()) stated.type.assign(1, stated.language.size() == 4 ? 'C' : 'G');
  stated.title = field(bytes, 50, 40);
  stated.property = static_cast<unsigned char>(bytes[99]);
  stated.version = 256;
  stated.depth = signed16(bytes, 102);
  stated.alphabet = signed16(bytes, 104);
  header.index_offset = signed32(bytes, 106);
  header.data_offset = 124;
  stated.file_size = little_endian(bytes, 110, 4);
  stated.time_stamp = signed32(bytes, 114);
  return header;
}

FileHeader later_generation(const std::string& bytes) {
  FileHeader header;
  Header& stated = header.stated;
  stated.generation = bytes.starts_with(DIC_SIGNATURE) ? 3 : 2;
  stated.label = field(bytes, 48, 8);
  stated.language = field(bytes, 56, 5);
  stated.type = field(bytes, 61, 2);
  stated.title = field(bytes, 63, 40);
  stated.has_password = bytes.substr(104, 8) != std::string(8, '\0');
  stated.property = static_cast<unsigned char>(bytes[112]);
  stated.version = static_cast<int>(little_endian(bytes, 113, 2));
  stated.depth = signed16(bytes, 115);
  stated.alphabet = signed16(bytes, 117);
  header.index_offset = signed32(bytes, 119);
  header.data_offset = little_endian(bytes, 123, 4);
  stated.file_size = little_endian(bytes, 127, 4);
  stated.time_stamp = signed32(bytes, 131);
  set_packing(static_cast<unsigned char>(bytes[141]), little_endian(bytes, 150, 4), stated);
  header.index_count = signed32(bytes, 146);
  DicHeader record;
  std::memcpy(&record, bytes.data(), sizeof record);
  stated.checksum_agrees = kz_dict_chk_csd(&record) != 0;
  return header;
}

// Bytes of the letter index.
std::int64_t index_bytes(const FileHeader& header) {
  const std::int64_t letters = header.stated.alphabet;
  if (header.stated.depth == 5) return header.index_count * 8;
  const std::int64_t cells = letters * (letters + 1);
  return (header.stated.depth == 3 ? cells * (letters + 1) : cells) * 4;
}

}  // namespace

std::uint32_t little_endian(const std::string& bytes, std::size_t at, std::size_t width) {
  std::uint32_t value = 0;
  for (std::size_t i = width; i-- > 0;) {
    value = (value << 8) | static_cast<unsigned char>(bytes[at + i]);
  }
  return value;
}

std::string read_bytes(const std::string& path, std::int64_t offset, std::size_t size) {
  std::ifstream in(path, std::ios::binary);
  if (!in)
    throw Error(ErrorCode::kFile, std::string("cannot open: ") + std::strerror(errno), {path});
  std::string bytes(size, '\0');
  in.seekg(offset);
  in.read(bytes.data(), static_cast<std::streamsize>(size));
  bytes.resize(static_cast<std::size_t>(in.gcount()));
  return bytes;
}

FileHeader read_file_header(const std::string& path) {
  const std::string bytes = read_bytes(path, 0, kHeaderSize);
  if (bytes.size() < kHeaderSize) {
    throw Error(ErrorCode::kData, "the header is cut short",
                {path, 0, 0, static_cast<long long>(bytes.size())});
  }
  FileHeader header =
      bytes.starts_with(kFirstGeneration) ? first_generation(bytes) : later_generation(bytes);
  Header& stated = header.stated;
  const CodePage page = header_page(stated.language);
  stated.title = decode_utf8(stated.title, page);
  stated.label = decode_utf8(stated.label, page);
  stated.record_bytes = header.index_offset - header.data_offset;
  stated.index_bytes = index_bytes(header);
  return header;
}

}  // namespace kz::lexicon
