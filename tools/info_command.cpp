// Description of a dictionary file.
#include <iomanip>
#include <iostream>
#include <string_view>

#include "kzlexicon/dictionary.h"
#include "tools/dictionary_commands.h"
#include "tools/streams.h"

namespace kzdic {
namespace {

template <typename Value>
void line(std::string_view name, const Value& value) {
  std::cout << std::left << std::setw(16) << name << value << '\n';
}

std::string form_of(const Header& header) {
  std::string form = header.packed ? "packed" : "plain";
  if (header.shared) form += ", with shared text";
  return form;
}

void print_header(const std::string& path, const Header& header) {
  line("file", path);
  line("generation", header.generation);
  line("language", header.language.empty() ? "unknown" : header.language);
  line("type", header.type.empty() ? "unknown" : header.type);
  line("title", header.title);
  line("label", header.label);
  line("password", header.has_password ? "set" : "none");
  line("property", header.property);
  line("version", header.version);
  line("time stamp", header.time_stamp);
  line("checksum", header.checksum_agrees ? "agrees" : "does not agree");
  line("records are", form_of(header));
  line("file size", header.file_size);
}

void print_index(const Header& header, const Statistics& count) {
  line("index depth", header.depth);
  line("alphabet", std::to_string(header.alphabet) + " letters");
  line("index size", header.index_bytes);
  line("blocks", count.blocks);
  if (count.blocks == 0) return;
  const std::int64_t average = header.record_bytes / static_cast<std::int64_t>(count.blocks);
  line("block size",
       "average " + std::to_string(average) + ", largest " + std::to_string(count.largest_block));
}

void print_records(const Header& header, const Statistics& count) {
  line("record area", header.record_bytes);
  line("records", count.records);
  line("headwords", count.headwords);
  line("longest", "headword " + std::to_string(count.longest_headword) + ", record " +
                      std::to_string(count.longest_record));
  if (header.shared) {
    line("shared text", std::to_string(header.shared_bytes) + " bytes, named by " +
                            std::to_string(count.references) + " records");
  }
}

}  // namespace

void info(const std::string& path) {
  const Dictionary dictionary(path);
  const Statistics count = dictionary.statistics();
  print_header(path, dictionary.header());
  print_index(dictionary.header(), count);
  print_records(dictionary.header(), count);
  finish_output();
}

}  // namespace kzdic
