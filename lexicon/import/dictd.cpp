// Reading of dictd databases.
#include "lexicon/import/dictd.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <memory>
#include <utility>

#include "kzlexicon/error.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

constexpr const char* kCompressed = ".dict.dz";

struct CloseGzip {
  void operator()(gzFile_s* file) const { gzclose_r(file); }
};

// The beginning of a text and its whole length.
struct Text {
  std::string beginning;
  std::size_t length = 0;
};

// Reads a file to its end, decompressed if it is compressed, and keeps the first bytes.
Text read_text(const std::string& path, std::size_t kept, std::size_t limit) {
  errno = 0;
  const std::unique_ptr<gzFile_s, CloseGzip> file(gzopen(path.c_str(), "rb"));
  if (!file)
    throw Error(ErrorCode::kFile, std::string("cannot open: ") + std::strerror(errno), {path});
  if (path.ends_with(kCompressed) && gzdirect(file.get()) != 0) {
    throw Error(ErrorCode::kData, "not a gzip file", {path});
  }
  Text text;
  std::array<char, 65536> buffer;
  for (int count = 1; count > 0;) {
    count = gzread(file.get(), buffer.data(), buffer.size());
    const std::size_t size = count > 0 ? static_cast<std::size_t>(count) : 0;
    if (size > limit - text.length) {
      throw Error(ErrorCode::kData, "the text is longer than " + std::to_string(limit) + " bytes",
                  {path});
    }
    text.length += size;
    text.beginning.append(buffer.data(), std::min(size, kept - text.beginning.size()));
  }
  int error = Z_OK;
  const char* message = gzerror(file.get(), &error);
  if (error == Z_ERRNO) throw Error(ErrorCode::kFile, "cannot read", {path});
  if (error != Z_OK) {
    throw Error(ErrorCode::kData, std::string("damaged compressed text: ") + message,
                {path, 0, 0, static_cast<long long>(text.length)});
  }
  return text;
}

std::string path_of_text(const std::string& base) {
  std::error_code ignored;
  const std::string compressed = base + kCompressed;
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

DictdDatabase::DictdDatabase(const std::string& base, std::size_t limit)
    : text_path_(path_of_text(base)) {
  const std::string path = base + ".index";
  read_index(path);
  std::size_t needed = 0;
  for (const DictdEntry& entry : entries_) needed = std::max(needed, entry.offset + entry.length);
  Text text = read_text(text_path_, std::min(needed, limit), limit);
  text_ = std::move(text.beginning);
  for (DictdEntry& entry : entries_) {
    if (entry.offset + entry.length > text.length) {
      throw Error(ErrorCode::kData, "the entry lies outside the text of the database",
                  {path, entry.line});
    }
    entry.text = std::string_view(text_).substr(entry.offset, entry.length);
  }
  std::erase_if(entries_,
                [](const DictdEntry& entry) { return describes_database(entry.headword); });
}

void DictdDatabase::read_index(const std::string& path) {
  constexpr std::size_t kMost = std::numeric_limits<std::size_t>::max() / 2;
  errno = 0;
  std::ifstream in(path, std::ios::binary);
  if (!in)
    throw Error(ErrorCode::kFile, std::string("cannot open: ") + std::strerror(errno), {path});
  std::string line;
  for (std::size_t number = 1; std::getline(in, line); ++number) {
    if (number == 1) line.erase(0, byte_order_mark(line));
    const std::size_t first = line.find('\t');
    const std::size_t second = first == std::string::npos ? first : line.find('\t', first + 1);
    if (second == std::string::npos) {
      throw Error(ErrorCode::kData, "no headword, offset and length", {path, number});
    }
    const std::size_t end = std::min(line.find_first_of("\t\r", second + 1), line.size());
    const std::string_view view = line;
    const auto offset = base64_number(view.substr(first + 1, second - first - 1));
    const auto length = base64_number(view.substr(second + 1, end - second - 1));
    if (!offset || !length) {
      throw Error(ErrorCode::kData, "the offset or length is no number", {path, number});
    }
    entries_.push_back(
        {line.substr(0, first), {}, std::min(*offset, kMost), std::min(*length, kMost), number});
  }
  if (in.bad()) throw Error(ErrorCode::kFile, "cannot read", {path});
}

}  // namespace kz::lexicon
