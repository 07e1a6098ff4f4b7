// Statistics of a dictionary file.
#include "tools/info_command.h"

#include <algorithm>
#include <cstdint>
#include <iomanip>
#include <iostream>
#include <set>
#include <string_view>

#include "kz/dictionary.h"
#include "lexicon/build/shared_text.h"
#include "lexicon/search/file_header.h"
#include "lexicon/search/open_dictionary.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/text/code_page.h"
#include "tools/status.h"

namespace kzdic {
namespace {

constexpr std::int16_t kToTheEnd = -1;
constexpr std::int16_t kDecode = 1;

template <typename Value>
void line(std::string_view name, const Value& value) {
  std::cout << std::left << std::setw(16) << name << value << '\n';
}

std::string shown(const std::string& text, const FileHeader& header) {
  return to_utf8(decode(text, header_page(header.language)));
}

std::string form_of(const FileHeader& header) {
  std::string form = header.packed() ? "packed" : "plain";
  if (header.shared()) form += ", with shared text";
  return form;
}

void print_header(const std::string& path, const FileHeader& header) {
  line("file", path);
  line("generation", header.generation);
  line("language", header.language.empty() ? "unknown" : header.language);
  line("type", header.type.empty() ? "unknown" : header.type);
  line("title", shown(header.title, header));
  line("label", shown(header.label, header));
  line("password", header.has_password ? "set" : "none");
  line("property", header.property);
  line("version", header.version);
  line("time stamp", header.time_stamp);
  line("checksum", header.checksum_agrees ? "agrees" : "does not agree");
  line("records are", form_of(header));
  line("file size", header.file_size);
}

std::size_t index_size(const FileHeader& header) {
  const auto letters = static_cast<std::size_t>(header.alphabet);
  if (header.depth == 5) return static_cast<std::size_t>(header.index_count) * 8;
  const std::size_t cells = letters * (letters + 1);
  return (header.depth == 3 ? cells * (letters + 1) : cells) * 4;
}

// Positions of the blocks that the index names, without repetition.
std::set<std::int64_t> block_positions(const std::string& path, const FileHeader& header) {
  const std::string image = read_bytes(path, header.index_offset, index_size(header));
  const std::size_t step = header.depth == 5 ? 8 : 4;
  std::set<std::int64_t> positions;
  for (std::size_t at = 0; at + step <= image.size(); at += step) {
    const auto position =
        static_cast<std::int32_t>(little_endian(image, header.depth == 5 ? at + 4 : at, 4));
    if (position >= 0 && position < header.index_offset) positions.insert(position);
  }
  return positions;
}

void print_index(const std::string& path, const FileHeader& header) {
  const std::set<std::int64_t> positions = block_positions(path, header);
  std::int64_t largest = 0;
  for (auto at = positions.begin(); at != positions.end(); ++at) {
    const auto next = std::next(at);
    largest = std::max(largest, (next == positions.end() ? header.index_offset : *next) - *at);
  }
  const std::int64_t area = header.index_offset - header.data_offset;
  line("index depth", header.depth);
  line("alphabet", std::to_string(header.alphabet) + " letters");
  line("index size", index_size(header));
  line("blocks", positions.size());
  if (!positions.empty()) {
    line("block size", "average " +
                           std::to_string(area / static_cast<std::int64_t>(positions.size())) +
                           ", largest " + std::to_string(largest));
  }
}

struct RecordCount {
  std::size_t records = 0;
  std::size_t headwords = 0;
  std::size_t references = 0;
  std::size_t longest_headword = 0;
  std::size_t longest_record = 0;
};

RecordCount count_records(CDic* dictionary, const FileHeader& header) {
  RecordCount count;
  std::string before;
  const char* found = DicFind(dictionary, nullptr, kToTheEnd, kDecode);
  for (; found != nullptr; found = DicFindNext(dictionary, kDecode)) {
    const std::string_view record = found;
    const EntryLayout at = layout_of(record);
    const std::string_view headword = record.substr(0, at.head_end);
    if (count.records == 0 || headword != before) ++count.headwords;
    before = headword;
    ++count.records;
    count.longest_headword = std::max(count.longest_headword, headword.size());
    count.longest_record = std::max(count.longest_record, record.size());
    if (header.shared() && reads_as_reference(record.substr(at.body, at.source - at.body))) {
      ++count.references;
    }
  }
  return count;
}

void print_records(CDic* dictionary, const FileHeader& header) {
  const RecordCount count = count_records(dictionary, header);
  line("record area", header.index_offset - header.data_offset);
  line("records", count.records);
  line("headwords", count.headwords);
  line("longest", "headword " + std::to_string(count.longest_headword) + ", record " +
                      std::to_string(count.longest_record));
  if (header.shared()) {
    line("shared text", std::to_string(header.shared_size) + " bytes, named by " +
                            std::to_string(count.references) + " records");
  }
}

}  // namespace

void info(const std::string& path) {
  const Dictionary dictionary = open_dictionary(path, 0);
  const FileHeader header = read_file_header(path);
  print_header(path, header);
  print_index(path, header);
  print_records(dictionary.get(), header);
  std::cout.flush();
  if (!std::cout) throw Failure(Status::kFile, "cannot write to standard output");
}

}  // namespace kzdic
