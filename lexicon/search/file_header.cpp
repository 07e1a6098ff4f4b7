// Header of a dictionary file, byte by byte.
#include "lexicon/search/file_header.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <string_view>

#include "kz/dic_header.h"
#include "kzlexicon/error.h"

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

// The first generation names two language letters and has no field for much of the rest.
FileHeader first_generation(const std::string& bytes) {
  FileHeader header;
  header.generation = 1;
  header.label = field(bytes, 40, 8);
  header.language = first_generation_language(std::string_view(bytes).substr(48, 2));
  if (!header.language.empty()) header.type.assign(1, header.language.size() == 4 ? 'C' : 'G');
  header.title = field(bytes, 50, 40);
  header.property = static_cast<unsigned char>(bytes[99]);
  header.version = 256;
  header.depth = signed16(bytes, 102);
  header.alphabet = signed16(bytes, 104);
  header.index_offset = signed32(bytes, 106);
  header.data_offset = 124;
  header.file_size = little_endian(bytes, 110, 4);
  header.time_stamp = signed32(bytes, 114);
  return header;
}

FileHeader later_generation(const std::string& bytes) {
  FileHeader header;
  header.generation = bytes.starts_with(DIC_SIGNATURE) ? 3 : 2;
  header.label = field(bytes, 48, 8);
  header.language = field(bytes, 56, 5);
  header.type = field(bytes, 61, 2);
  header.title = field(bytes, 63, 40);
  header.has_password = bytes.substr(104, 8) != std::string(8, '\0');
  header.property = static_cast<unsigned char>(bytes[112]);
  header.version = static_cast<int>(little_endian(bytes, 113, 2));
  header.depth = signed16(bytes, 115);
  header.alphabet = signed16(bytes, 117);
  header.index_offset = signed32(bytes, 119);
  header.data_offset = little_endian(bytes, 123, 4);
  header.file_size = little_endian(bytes, 127, 4);
  header.time_stamp = signed32(bytes, 131);
  header.packing = static_cast<unsigned char>(bytes[141]);
  header.shared_offset = little_endian(bytes, 142, 4);
  header.index_count = signed32(bytes, 146);
  header.shared_size = little_endian(bytes, 150, 4);
  DicHeader record;
  std::memcpy(&record, bytes.data(), sizeof record);
  header.checksum_agrees = kz_dict_chk_csd(&record) != 0;
  return header;
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
  return bytes.starts_with(kFirstGeneration) ? first_generation(bytes) : later_generation(bytes);
}

}  // namespace kz::lexicon
