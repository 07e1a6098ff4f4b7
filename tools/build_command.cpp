// Build of a dictionary: read, check, sort, place, write, verify, rename.
#include "tools/build_command.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <iostream>
#include <optional>
#include <set>

#include "lexicon/build/dictionary_writer.h"
#include "lexicon/build/shared_text.h"
#include "lexicon/build/sort_order.h"
#include "lexicon/build/verify.h"
#include "lexicon/file/delivery.h"
#include "lexicon/file/outputs.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/source/entry_reader.h"
#include "tools/input_lines.h"
#include "tools/refusals.h"
#include "tools/status.h"

namespace kzdic {
namespace {

// Blocks that a depth-2 index may leave on average before depth 3 is chosen: two reads of a search.
constexpr std::size_t kBlockTarget = 4096;

constexpr std::size_t kTitleMax = 40;
constexpr std::size_t kLabelMax = 8;
constexpr std::size_t kPasswordMax = 8;

// The type letter that a file-name extension stands for, empty for other extensions.
std::string type_of_extension(const std::string& path) {
  std::string extension = std::filesystem::path(path).extension().string();
  for (char& c : extension) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
  constexpr std::array<std::pair<std::string_view, const char*>, 5> kTypes = {
      {{".dic", "C"}, {".dis", "S"}, {".dit", "T"}, {".dih", "H"}, {".dig", "G"}}};
  for (const auto& [name, type] : kTypes) {
    if (extension == name) return type;
  }
  return {};
}

[[noreturn]] void refuse(const Property& property, const std::string& message) {
  throw Failure(property.place.empty() ? Status::kUsage : Status::kDamaged,
                property.place + message);
}

std::string settle_language(const Property& language) {
  if (!language.value) {
    throw Failure(Status::kUsage,
                  "no language: use --language or a line '*: language ENRU' in the source");
  }
  if (is_language(*language.value)) return *language.value;
  refuse(language, "no such language: " + *language.value +
                       " (EN, RU, DE, FR, ENRU, RUEN, DERU, RUDE, FRRU, RUFR)");
}

std::string settle_type(const Property& type, const std::string& output,
                        const std::string& language) {
  if (!type.value) {
    const std::string told = type_of_extension(output);
    return told.empty() ? std::string(1, language.size() == 4 ? 'C' : 'G') : told;
  }
  const bool known =
      type.value->size() == 1 && std::string_view("CSTHG").find(*type.value) != std::string::npos;
  if (known) return *type.value;
  refuse(type, "no such type: " + *type.value + " (C, S, T, H, G)");
}

std::string header_text(const std::string& name, const Property& property,
                        const std::string& language, std::size_t limit) {
  const std::string utf8 = property.value.value_or("");
  std::string text;
  try {
    text = encode(from_utf8(utf8), header_page(language));
  } catch (const Unmappable& error) {
    throw Failure(Status::kCodePage, property.place + "the " + name + ": " + error.what());
  } catch (const BadUtf8&) {
    throw Failure(Status::kDamaged, property.place + "the " + name + " is not UTF-8");
  }
  if (text.size() > limit) {
    refuse(property,
           "the " + name + " is longer than " + std::to_string(limit) + " characters: " + utf8);
  }
  return text;
}

std::vector<Record> read_records(const SourceText& source, const EntryReader& reader,
                                 Refusals& refusals) {
  std::vector<Record> records;
  records.reserve(source.lines.size());
  for (std::size_t i = 0; i < source.lines.size(); ++i) {
    try {
      records.push_back(reader.read(source.lines[i].text));
      records.back().line = i;
    } catch (const Error& error) {
      refusals.add(status_of(error), source.place(source.lines[i], error.what()));
    }
  }
  return records;
}

// Looks at nothing but what a dictionary of depth 3 would hold, so that the text of a finished
// dictionary leads to its depth again.
int choose_depth(const std::vector<Record>& records, const std::string& language, bool skip_bad) {
  const SortOrder two(language, 2);
  const SortOrder three(language, 3);
  std::set<std::uint32_t> groups;
  std::set<std::string_view> seen;
  std::size_t bytes = 0;
  for (const Record& record : records) {
    if (three.refusal(record.headword)) {
      if (skip_bad) continue;
      return 2;
    }
    if (!seen.insert(record.text).second) continue;
    groups.insert(two.group(record.headword));
    bytes += record.text.size() + 1;
  }
  return bytes > groups.size() * kBlockTarget ? 3 : 2;
}

// Reads the records anew whose headwords an index of less depth holds as they are written.
void restore_headwords(std::vector<Record>& records, const SourceText& source,
                       const EntryReader& reader) {
  for (Record& record : records) {
    if (!record.shortened) continue;
    const std::size_t line = record.line;
    record = reader.read(source.lines[line].text);
    record.line = line;
  }
}

// Drops the records for which `why` has a reason, and reports them.
template <typename Why>
void refuse_if(std::vector<Record>& records, const SourceText& source, Refusals& refusals,
               Why why) {
  std::erase_if(records, [&](const Record& record) {
    const std::optional<std::string> reason = why(record);
    if (reason) refusals.add(Status::kDamaged, source.place(source.lines[record.line], *reason));
    return reason.has_value();
  });
}

// Sorts the records; records with the same headword keep their source order. Entries that stand
// there already are reported and dropped.
void sort_records(std::vector<Record>& records, const SourceText& source) {
  std::stable_sort(records.begin(), records.end(), [](const Record& a, const Record& b) {
    return a.group != b.group ? a.group < b.group : a.headword < b.headword;
  });
  std::vector<Record> kept;
  kept.reserve(records.size());
  std::size_t same_from = 0;
  for (Record& record : records) {
    if (!kept.empty() && kept.back().headword != record.headword) same_from = kept.size();
    const auto same =
        std::find_if(kept.begin() + static_cast<std::ptrdiff_t>(same_from), kept.end(),
                     [&](const Record& other) { return other.text == record.text; });
    if (same == kept.end()) {
      kept.push_back(std::move(record));
      continue;
    }
    const SourceLine& first = source.lines[same->line];
    std::cerr << "kzdic: "
              << source.place(source.lines[record.line],
                              "the same entry stands in " + source.place(first, "left out here"))
              << '\n';
  }
  records = std::move(kept);
}

// A packed record takes over at most 63 characters. A search gives up at a record that takes over
// fewer characters than have matched, so longer common beginnings cannot be told apart.
void refuse_long_prefixes(std::vector<Record>& records, const SourceText& source,
                          Refusals& refusals) {
  std::string before;
  refuse_if(records, source, refusals, [&](const Record& record) -> std::optional<std::string> {
    const std::string& word = record.headword;
    const auto common = std::mismatch(before.begin(), before.end(), word.begin(), word.end());
    if (before != word &&
        common.first - before.begin() > static_cast<std::ptrdiff_t>(kPackedPrefixMax)) {
      return "the headword shares more than " + std::to_string(kPackedPrefixMax) +
             " characters with the one before it, too many for packed records";
    }
    before = word;
    return std::nullopt;
  });
}

std::size_t count_headwords(const std::vector<Record>& records) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < records.size(); ++i) {
    count += i == 0 || records[i].headword != records[i - 1].headword ? 1 : 0;
  }
  return count;
}

}  // namespace

void build(const BuildOptions& options) {
  refuse_inputs_as_output(options.output, options.sources);
  const SourceText source =
      read_source(options.sources, Marked::kDirective, options.properties, &std::cin);
  check_standard_input();
  const Properties& properties = source.properties;
  const std::string language = settle_language(properties.language);
  const std::string type = settle_type(properties.type, options.output, language);
  const bool word_list = type == "S";
  const bool may_share = (options.shared || options.packed) && !options.no_shared && !word_list;
  HeaderText header{language,
                    type,
                    header_text("title", properties.title, language, kTitleMax),
                    header_text("label", properties.label, language, kLabelMax),
                    header_text("password", {options.password, {}}, language, kPasswordMax),
                    options.time_stamp};

  Refusals refusals(options.skip_bad);
  EntryReader::Options form{language, word_list, options.packed, options.fold_yo};
  form.depth = options.depth != 0 ? options.depth : 3;
  std::vector<Record> records = read_records(source, EntryReader(form), refusals);
  if (options.packed) {
    refuse_if(records, source, refusals, [&](const Record& record) {
      return packed_refusal(record.text, language, may_share);
    });
  }
  const int depth =
      options.depth != 0 ? options.depth : choose_depth(records, language, options.skip_bad);
  if (depth < form.depth) {
    form.depth = depth;
    restore_headwords(records, source, EntryReader(form));
  }
  const SortOrder order(language, depth);
  refuse_if(records, source, refusals,
            [&](const Record& record) { return order.refusal(record.headword); });
  for (Record& record : records) record.group = order.group(record.headword);
  sort_records(records, source);
  if (options.packed) refuse_long_prefixes(records, source, refusals);
  refusals.check();
  if (records.empty()) throw Failure(Status::kDamaged, "the source holds no entries");

  const SharedText shared = place_bodies(records, options.packed, may_share);
  Delivery output(options.output);
  const Written written = write_dictionary(output.handle(), options.output, header, order, records,
                                           options.packed, shared.block);
  verify_dictionary(output.path(), options.output, records);
  output.deliver();

  if (options.quiet) return;
  std::cerr << options.output << ": " << count_headwords(records) << " headwords, "
            << records.size() << " records in " << written.groups << " blocks at depth " << depth
            << "; " << written.file_bytes << " bytes (records " << written.record_bytes
            << ", index " << written.index_bytes << ", shared text " << shared.block.size() << "); "
            << shared.moved << " records refer to " << shared.texts << " shared texts";
  if (refusals.count() != 0) std::cerr << "; " << refusals.count() << " entries left out";
  std::cerr << '\n';
}

}  // namespace kzdic
