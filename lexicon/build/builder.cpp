// Build of a dictionary: read, check, sort, place, write, verify.
#include "kzlexicon/builder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <map>
#include <set>
#include <utility>

#include "kzlexicon/output.h"
#include "lexicon/build/dictionary_writer.h"
#include "lexicon/build/shared_text.h"
#include "lexicon/build/sort_order.h"
#include "lexicon/build/verify.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/source/entry_reader.h"
#include "lexicon/text/code_page.h"
#include "platform/memory_file.h"

namespace kz::lexicon {
namespace {

// Blocks that a depth-2 index may leave on average before depth 3 is chosen: two reads of a search.
constexpr std::size_t kBlockTarget = 4096;

constexpr std::size_t kTitleMax = 40;
constexpr std::size_t kLabelMax = 8;
constexpr std::size_t kPasswordMax = 8;

constexpr std::string_view kTypes = "CSTHG";

[[noreturn]] void refuse(const Place& place, const std::string& message) {
  throw Error(place.file.empty() ? ErrorCode::kArgument : ErrorCode::kData, message, place);
}

void check_language(const std::string& language, const Place& place) {
  if (is_language(language)) return;
  refuse(place,
         "no such language: " + language + " (EN, RU, DE, FR, ENRU, RUEN, DERU, RUDE, FRRU, RUFR)");
}

void check_type(const std::string& type, const Place& place) {
  if (type.size() == 1 && kTypes.find(type) != std::string::npos) return;
  refuse(place, "no such type: " + type + " (C, S, T, H, G)");
}

// The text in the code page of the header.
std::string header_text(const std::string& name, const std::string& utf8,
                        const std::string& language, std::size_t limit, const Place& place) {
  std::string text;
  try {
    text = encode_utf8(utf8, header_page(language));
  } catch (const Unmappable& error) {
    throw Error(ErrorCode::kCodePage, "the " + name + ": " + error.what(), place);
  } catch (const BadUtf8&) {
    throw Error(ErrorCode::kData, "the " + name + " is not UTF-8", place);
  }
  if (text.size() > limit) {
    refuse(place,
           "the " + name + " is longer than " + std::to_string(limit) + " characters: " + utf8);
  }
  return text;
}

BuildOptions checked(BuildOptions options) {
  if (options.language.empty()) throw Error(ErrorCode::kArgument, "no language is given");
  check_language(options.language, {});
  if (options.type.empty()) options.type.assign(1, options.language.size() == 4 ? 'C' : 'G');
  check_type(options.type, {});
  if (options.depth != 0 && options.depth != 2 && options.depth != 3 && options.depth != 5) {
    throw Error(ErrorCode::kArgument, "no such depth: " + std::to_string(options.depth));
  }
  return options;
}

HeaderText header_of(const BuildOptions& options) {
  const auto text = [&](const char* name, const std::string& utf8, std::size_t limit) {
    return header_text(name, utf8, options.language, limit, {});
  };
  return {options.language,
          options.type,
          text("title", options.title, kTitleMax),
          text("label", options.label, kLabelMax),
          text("password", options.password, kPasswordMax),
          options.time_stamp};
}

// "cat: characters written otherwise or dropped: 1"; empty when nothing is lost.
std::string describe(const Losses& losses, const std::string& headword) {
  const std::array<std::pair<std::size_t, const char*>, 4> counts = {
      {{losses.characters, "characters written otherwise or dropped"},
       {losses.definitions, "definitions dropped"},
       {losses.synonyms, "synonyms dropped"},
       {losses.meanings, "meanings dropped"}}};
  std::string text;
  for (const auto& [count, what] : counts) {
    if (count == 0) continue;
    text += (text.empty() ? headword + ": " : ", ") + what + ": " + std::to_string(count);
  }
  return text;
}

std::size_t count_headwords(const std::vector<Record>& records) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < records.size(); ++i) {
    count += i == 0 || records[i].headword != records[i - 1].headword ? 1 : 0;
  }
  return count;
}

}  // namespace

struct Builder::Impl {
  // A line under way; records refer to it by its number.
  struct Line {
    std::string text;  // of a record that may have to be read anew
    std::size_t file;  // index into `files`
    std::size_t number;
    std::size_t column;
  };

  explicit Impl(BuildOptions stated)
      : options(checked(std::move(stated))),
        header(header_of(options)),
        form{options.language, options.type == "S", options.packed, options.fold_yo,
             options.depth != 0 ? options.depth : kStrictDepth},
        reader(form),
        may_share(options.shared.value_or(options.packed) && options.type != "S") {}

  // The strictest index that is chosen by size.
  static constexpr int kStrictDepth = 3;

  Place place_of(std::size_t line) const {
    const Line& at = lines[line];
    return {files[at.file], at.number, at.column};
  }

  std::size_t file_number(const std::string& name) {
    if (files.empty() || files.back() != name) files.push_back(name);
    return files.size() - 1;
  }

  // Throws when the dictionary was made or tried.
  void check_unused() const;
  void add(std::string_view text, std::size_t file, std::size_t number, std::size_t column);
  void refuse(ErrorCode code, const std::string& message, std::size_t line);
  template <typename Why>
  void refuse_if(Why why);
  int choose_depth() const;
  void restore_headwords(int depth);
  void sort();
  void refuse_long_prefixes();
  void check_refusals() const;
  int settle();
  BuildSummary write(int handle, const std::string& path, const std::string& name);

  BuildOptions options;
  HeaderText header;
  EntryReader::Options form;
  EntryReader reader;
  bool may_share;
  std::vector<std::string> files;
  std::vector<Line> lines;
  std::vector<Record> records;
  std::vector<Diagnostic> diagnostics;
  std::size_t refused = 0;
  ErrorCode first_refusal = ErrorCode::kData;
  bool used = false;
};

void Builder::Impl::check_unused() const {
  if (used) throw Error(ErrorCode::kArgument, "the builder has made its dictionary");
}

void Builder::Impl::refuse(ErrorCode code, const std::string& message, std::size_t line) {
  if (refused++ == 0) first_refusal = code;
  diagnostics.push_back({Diagnostic::Severity::kError, code, place_of(line), message});
}

void Builder::Impl::add(std::string_view text, std::size_t file, std::size_t number,
                        std::size_t column) {
  check_unused();
  lines.push_back({{}, file, number, column});
  const std::size_t line = lines.size() - 1;
  try {
    Record record = reader.read(text);
    record.line = line;
    if (record.shortened) lines.back().text = text;
    records.push_back(std::move(record));
  } catch (const Error& error) {
    refuse(error.code(), error.message(), line);
  }
}

// Drops the records for which `why` has a reason.
template <typename Why>
void Builder::Impl::refuse_if(Why why) {
  std::erase_if(records, [&](const Record& record) {
    const std::optional<std::string> reason = why(record);
    if (reason) refuse(ErrorCode::kData, *reason, record.line);
    return reason.has_value();
  });
}

// Looks at nothing but what a dictionary of depth 3 would hold, so that the text of a finished
// dictionary leads to its depth again.
int Builder::Impl::choose_depth() const {
  const SortOrder two(options.language, 2);
  const SortOrder three(options.language, kStrictDepth);
  std::set<std::uint32_t> groups;
  std::set<std::string_view> seen;
  std::size_t bytes = 0;
  for (const Record& record : records) {
    if (three.refusal(record.headword)) {
      if (options.skip_bad) continue;
      return 2;
    }
    if (!seen.insert(record.text).second) continue;
    groups.insert(two.group(record.headword));
    bytes += record.text.size() + 1;
  }
  return bytes > groups.size() * kBlockTarget ? kStrictDepth : 2;
}

// Reads the records anew whose headwords an index of less depth holds as they are written.
void Builder::Impl::restore_headwords(int depth) {
  EntryReader::Options less = form;
  less.depth = depth;
  const EntryReader other(less);
  for (Record& record : records) {
    if (!record.shortened) continue;
    const std::size_t line = record.line;
    record = other.read(lines[line].text);
    record.line = line;
  }
}

// Records with the same headword keep their order. Repeated entries are reported and dropped.
void Builder::Impl::sort() {
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
    diagnostics.push_back(
        {Diagnostic::Severity::kNote, ErrorCode::kData, place_of(record.line),
         "the same entry is in " + at_place(place_of(same->line), "left out here")});
  }
  records = std::move(kept);
}

// A packed record takes over at most 63 characters. A search gives up at a record that takes over
// fewer characters than have matched, so longer common beginnings cannot be told apart.
void Builder::Impl::refuse_long_prefixes() {
  std::string before;
  refuse_if([&](const Record& record) -> std::optional<std::string> {
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

void Builder::Impl::check_refusals() const {
  if (options.skip_bad || refused == 0) return;
  throw Error(first_refusal, std::to_string(refused) +
                                 (refused == 1 ? " entry cannot" : " entries cannot") +
                                 " be stored");
}

// Checks and sorts the records for an index of the depth that is returned.
int Builder::Impl::settle() {
  if (options.packed) {
    refuse_if([&](const Record& record) {
      return packed_refusal(record.text, options.language, may_share);
    });
  }
  const int depth = options.depth != 0 ? options.depth : choose_depth();
  if (depth < form.depth) restore_headwords(depth);
  const SortOrder order(options.language, depth);
  refuse_if([&](const Record& record) { return order.refusal(record.headword); });
  for (Record& record : records) record.group = order.group(record.headword);
  sort();
  if (options.packed) refuse_long_prefixes();
  check_refusals();
  if (records.empty()) throw Error(ErrorCode::kData, "the source holds no entries");
  return depth;
}

// Writes to an empty open file, which can be opened by the path; `name` is that of messages.
BuildSummary Builder::Impl::write(int handle, const std::string& path, const std::string& name) {
  check_unused();
  used = true;
  BuildSummary summary;
  summary.depth = settle();
  const SharedText shared = place_bodies(records, options.packed, may_share);
  const Written written =
      write_dictionary(handle, name, header, SortOrder(options.language, summary.depth), records,
                       options.packed, shared.block);
  verify_dictionary(path, name, records);
  summary.headwords = count_headwords(records);
  summary.records = records.size();
  summary.blocks = written.groups;
  summary.file_bytes = written.file_bytes;
  summary.record_bytes = written.record_bytes;
  summary.index_bytes = written.index_bytes;
  summary.shared_bytes = shared.block.size();
  summary.shared_texts = shared.texts;
  summary.referring_records = shared.moved;
  summary.left_out = refused;
  return summary;
}

BuildOptions with_properties(BuildOptions options, const Properties& properties) {
  const auto stated = [](const Property& property, std::string& option) {
    if (property.value) option = *property.value;
    return property.value.has_value();
  };
  if (stated(properties.language, options.language)) {
    check_language(options.language, properties.language.place);
  }
  if (stated(properties.type, options.type)) check_type(options.type, properties.type.place);
  if (stated(properties.title, options.title)) {
    header_text("title", options.title, options.language, kTitleMax, properties.title.place);
  }
  if (stated(properties.label, options.label)) {
    header_text("label", options.label, options.language, kLabelMax, properties.label.place);
  }
  return options;
}

std::string type_of_file_name(const std::string& path) {
  std::string extension = std::filesystem::path(path).extension().string();
  for (char& c : extension) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
  constexpr std::array<std::pair<std::string_view, const char*>, 5> kExtensions = {
      {{".dic", "C"}, {".dis", "S"}, {".dit", "T"}, {".dih", "H"}, {".dig", "G"}}};
  for (const auto& [name, type] : kExtensions) {
    if (extension == name) return type;
  }
  return {};
}

Builder::Builder(BuildOptions options) : impl_(std::make_unique<Impl>(std::move(options))) {}
Builder::~Builder() = default;
Builder::Builder(Builder&& other) noexcept = default;
Builder& Builder::operator=(Builder&& other) noexcept = default;

Builder& Builder::add(const PlainEntry& entry, const Place& place) {
  impl_->check_unused();
  SourceWriter writer(impl_->options.language);
  for (const std::string& line : writer.lines(entry)) add_line(line, place);
  std::string losses = describe(writer.losses(), entry.headword);
  if (!losses.empty()) {
    impl_->diagnostics.push_back(
        {Diagnostic::Severity::kWarning, ErrorCode::kCodePage, place, std::move(losses)});
  }
  return *this;
}

Builder& Builder::add_line(std::string_view line, const Place& place) {
  impl_->add(line, impl_->file_number(place.file), place.line, place.column);
  return *this;
}

Builder& Builder::add_source(const SourceText& source) {
  for (const SourceLine& line : source.lines) {
    impl_->add(line.text, impl_->file_number(source.files[line.file]), line.line, 0);
  }
  return *this;
}

BuildSummary Builder::write(const std::string& path) {
  OutputFile output(path);
  const BuildSummary summary = impl_->write(output.handle(), output.path(), path);
  output.commit();
  return summary;
}

std::string Builder::to_memory(BuildSummary* summary) {
  platform::MemoryFile file;
  const std::string name = "(memory)";
  if (!file.write({})) {
    throw Error(ErrorCode::kFile, std::string("cannot write: ") + std::strerror(errno), {name});
  }
  const BuildSummary written = impl_->write(file.handle(), file.path(), name);
  if (summary != nullptr) *summary = written;
  std::string bytes(written.file_bytes, '\0');
  if (!file.read(bytes)) {
    throw Error(ErrorCode::kFile, std::string("cannot read: ") + std::strerror(errno), {name});
  }
  return bytes;
}

const std::vector<Diagnostic>& Builder::diagnostics() const { return impl_->diagnostics; }

}  // namespace kz::lexicon
