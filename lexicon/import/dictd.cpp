// Reading of dictd databases.
#include "lexicon/import/dictd.h"

#include <zlib.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>

#include "kzlexicon/error.h"

namespace kz::lexicon {
namespace {

struct CloseGzip {
  void operator()(gzFile_s* file) const { gzclose_r(file); }
};

// Reads a file, decompressed if it is compressed.
std::string read_text(const std::string& path) {
  errno = 0;
  const std::unique_ptr<gzFile_s, CloseGzip> file(gzopen(path.c_str(), "rb"));
  if (!file)
    throw Error(ErrorCode::kFile, std::string("cannot open: ") + std::strerror(errno), {path});
  std::string text;
  std::array<char, 65536> buffer;
  for (;;) {
    const int count = gzread(file.get(), buffer.data(), buffer.size());
    if (count > 0) text.append(buffer.data(), static_cast<std::size_t>(count));
    if (count < static_cast<int>(buffer.size())) break;
  }
  int error = Z_OK;
  const char* message = gzerror(file.get(), &error);
  if (error == Z_ERRNO) throw Error(ErrorCode::kFile, "cannot read", {path});
  if (error != Z_OK) {
    throw Error(ErrorCode::kData, std::string("damaged compressed text: ") + message,
                {path, 0, 0, static_cast<long long>(text.size())});
  }
  return text;
}

std::string path_of_text(const std::string& base) {
  std::error_code ignored;
  const std::string compressed = base + ".dict.dz";
  return std::filesystem::exists(compressed, ignored) ? compressed : base + ".dict";
}

bool describes_database(std::string_view headword) {
  return headword.starts_with("00-database") || headword.starts_with("00database");
}

}  // namespace

std::optional<std::size_t> base64_number(std::string_view digits) {
  constexpr std::string_view kDigits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  constexpr std::size_t kMostDigits = sizeof(std::size_t) > 4 ? 10 : 5;
  if (digits.empty() || digits.size() > kMostDigits) return std::nullopt;
  std::size_t value = 0;
  for (const char digit : digits) {
    const std::size_t place = kDigits.find(digit);
    if (place == std::string_view::npos) return std::nullopt;
    value = value * 64 + place;
  }
  return value;
}

DictdDatabase::DictdDatabase(const std::string& base)
    : text_path_(path_of_text(base)), text_(read_text(text_path_)) {
  read_index(base + ".index");
}

void DictdDatabase::read_index(const std::string& path) {
  errno = 0;
  std::ifstream in(path, std::ios::binary);
  if (!in)
    throw Error(ErrorCode::kFile, std::string("cannot open: ") + std::strerror(errno), {path});
  std::string line;
  for (std::size_t number = 1; std::getline(in, line); ++number) {
    const std::size_t first = line.find('\t');
    const std::size_t second = first == std::string::npos ? first : line.find('\t', first + 1);
    if (second == std::string::npos) {
      throw Error(ErrorCode::kData, "no headword, offset and length", {path, number});
    }
    const std::size_t end = std::min(line.find_first_of("\t\r", second + 1), line.size());
    const std::string_view view = line;
    const auto offset = base64_number(view.substr(first + 1, second - first - 1));
    const auto length = base64_number(view.substr(second + 1, end - second - 1));
    if (!offset || !length || *offset > text_.size() || *length > text_.size() - *offset) {
      throw Error(ErrorCode::kData, "the entry lies outside the text of the database",
                  {path, number});
    }
    if (describes_database(line)) continue;
    entries_.push_back(
        {line.substr(0, first), std::string_view(text_).substr(*offset, *length), *offset});
  }
  if (in.bad()) throw Error(ErrorCode::kFile, "cannot read", {path});
}

}  // namespace kz::lexicon
