// Writer of dictionary files, plain and packed.
#include "lexicon/build/dictionary_writer.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <limits>
#include <string_view>

#include "kz/dic_header.h"
#include "kz/dic_index.h"
#include "kz/file.h"
#include "kz/front_coding.h"
#include "kzlexicon/error.h"

namespace kz::lexicon {
namespace {

// The version in which packed records and shared text are allowed: 3.00.
constexpr std::uint16_t kFormatVersion = 0x300;
constexpr std::uint32_t kDataOffset = 154;

// Offsets of header fields.
enum HeaderField : std::size_t {
  kLabelField = 48,
  kLanguageField = 56,
  kTypeField = 61,
  kTitleField = 63,
  kBalanceField = 103,  // Reserved1
  kPasswordField = 104,
  kVersionField = 113,
  kDepthField = 115,
  kAlphabetField = 117,
  kIndexOffsetField = 119,
  kDataOffsetField = 123,
  kFileSizeField = 127,
  kTimeField = 131,
  kChecksumField = 139,
  kPackingField = 141,
  kSharedOffsetField = 142,
  kIndexCountField = 146,
  kSharedSizeField = 150,
};

class Header {
 public:
  void put_text(std::size_t at, std::string_view text) {
    std::copy(text.begin(), text.end(), bytes_.begin() + static_cast<std::ptrdiff_t>(at));
  }
  void put8(std::size_t at, std::uint32_t value) { bytes_[at] = static_cast<char>(value); }
  void put16(std::size_t at, std::uint32_t value) {
    bytes_[at] = static_cast<char>(value & 0xFF);
    bytes_[at + 1] = static_cast<char>((value >> 8) & 0xFF);
  }
  void put32(std::size_t at, std::uint32_t value) {
    put16(at, value);
    put16(at + 2, value >> 16);
  }
  void put_password(const std::string& password) {
    std::array<std::uint8_t, 8> field{};
    DicPwSet(field.data(), password.c_str());
    std::copy(field.begin(), field.end(), bytes_.begin() + kPasswordField);
  }

  // The checksum is part of what it sums. With a low byte of 0 it is 256·h where the other bytes
  // sum to 255·h; a byte that nobody reads makes up the difference.
  void put_checksum() {
    const std::uint32_t rest = sum();
    const std::uint32_t balance = (255 - rest % 255) % 255;
    bytes_[kBalanceField] = static_cast<char>(balance);
    put16(kChecksumField, ((rest + balance) / 255) << 8);
  }

  std::string_view bytes() const { return {bytes_.data(), bytes_.size()}; }

 private:
  std::uint32_t sum() const {
    DicHeader header;
    std::memcpy(&header, bytes_.data(), sizeof header);
    return kz_dict_set_csd(&header);
  }

  std::array<char, kDataOffset> bytes_{};
};

// The file under way. Every failed write ends the command.
class Output {
 public:
  Output(int handle, const std::string& name) : name_(name), file_(handle) {}

  ZCFile& file() { return file_; }

  void write(std::string_view bytes) {
    if (bytes.size() > std::numeric_limits<std::int32_t>::max() - size_) {
      throw Error(ErrorCode::kData, "a dictionary cannot be larger than 2 GB", {name_});
    }
    const auto count = static_cast<unsigned>(bytes.size());
    if (count != 0 && file_.Write(bytes.data(), count) != count) fail("cannot write");
    size_ = std::max<std::size_t>(size_, file_.GetPosition());
  }
  std::uint32_t position() { return file_.GetPosition(); }
  void rewind() { file_.SeekToBegin(); }

  [[noreturn]] void fail(const std::string& what) const {
    throw Error(ErrorCode::kFile, what + ": " + std::strerror(errno), {name_});
  }

 private:
  std::string name_;
  ZCFile file_;  // on a handle that is not its own
  std::size_t size_ = 0;
};

// Records first to last - 1 are one group.
struct Group {
  std::size_t first;
  std::size_t last;
  const std::string* indexed;  // a word under which the index finds the group
};

// Words with a leading digit join the first group of a letter table: that is where they are
// looked up.
std::vector<Group> groups_of(const std::vector<Record>& records, int depth) {
  std::vector<Group> groups;
  for (std::size_t i = 0; i < records.size();) {
    std::size_t named = i;
    if (depth != 5 && records[i].group == 0) {
      while (named < records.size() && records[named].group == 0) ++named;
      if (named == records.size()) {
        throw Error(ErrorCode::kData, "a dictionary needs a headword that begins with a letter");
      }
    }
    std::size_t last = named;
    while (last < records.size() && records[last].group == records[named].group) ++last;
    groups.push_back({i, last, &records[named].headword});
    i = last;
  }
  return groups;
}

// A plain record follows the line feed that ends the record before it, which belongs to its block.
std::string plain_block(const std::vector<Record>& records, const Group& group) {
  std::string block;
  for (std::size_t i = group.first; i < group.last; ++i) (block += '\n') += records[i].stored;
  return block;
}

std::string packed_block(const std::vector<Record>& records, const Group& group) {
  std::string block;
  std::string code;
  CGenSteno coder;
  // No record begins with a blank: the first one takes nothing over, whatever its first letter is.
  std::array<char, 4> unused{};
  coder.CodeOrfo(" ", unused.data());
  for (std::size_t i = group.first; i < group.last; ++i) {
    code.resize(records[i].stored.size() + 2);
    const std::int16_t size = coder.CodeOrfo(records[i].stored.c_str(), code.data());
    block.append(code, 0, static_cast<std::size_t>(size));
  }
  return block;
}

// Writes the record area, entering each group into the index.
void write_records(Output& out, CDicIndex& index, int depth, const std::vector<Record>& records,
                   const std::vector<Group>& groups, bool packed) {
  for (const Group& group : groups) {
    index.SetFileIndex(out.file(), group.indexed->c_str());
    if (depth != 5 && index.IsIndexChanged() == 0) {
      throw Error(ErrorCode::kData, "the index has no group for '" + *group.indexed + "'");
    }
    out.write(packed ? packed_block(records, group) : plain_block(records, group));
  }
  // The end of the last line, and the empty line after all lines.
  if (!packed) out.write("\n\n");
}

}  // namespace

Written write_dictionary(int handle, const std::string& name, const HeaderText& text,
                         const SortOrder& order, const std::vector<Record>& records, bool packed,
                         const std::string& shared_block) {
  const std::vector<Group> groups = groups_of(records, order.depth());
  const auto alphabet = static_cast<std::int16_t>(order.alphabet_size());
  const auto depth = static_cast<std::int16_t>(order.depth());
  CDicIndex index('R');
  if (index.Init(0, text.language.c_str(), text.type.c_str(), alphabet, 0, depth, kFormatVersion, 0,
                 0) == 0) {
    throw Error(ErrorCode::kFile, "not enough memory for the index", {name});
  }

  Header header;
  Output out(handle, name);
  out.write(header.bytes());
  write_records(out, index, depth, records, groups, packed);
  const std::uint32_t index_offset = out.position();
  if (index.Write(out.file()) != DIC_OK) out.fail("cannot write the index");
  const std::uint32_t shared_offset = out.position();
  out.write(shared_block);
  const std::uint32_t file_size = out.position();

  header.put_text(0, DIC_SIGNATURE);
  header.put_text(kLabelField, text.label);
  header.put_text(kLanguageField, text.language);
  header.put_text(kTypeField, text.type);
  header.put_text(kTitleField, text.title);
  header.put_password(text.password);
  header.put16(kVersionField, kFormatVersion);
  header.put16(kDepthField, static_cast<std::uint32_t>(depth));
  header.put16(kAlphabetField, static_cast<std::uint32_t>(alphabet));
  header.put32(kIndexOffsetField, index_offset);
  header.put32(kDataOffsetField, kDataOffset);
  header.put32(kFileSizeField, file_size);
  header.put32(kTimeField, static_cast<std::uint32_t>(text.time_stamp));
  header.put32(kIndexCountField, depth == 5 ? static_cast<std::uint32_t>(groups.size()) : 0);
  header.put8(kPackingField, (packed ? 1u : 0u) | (shared_block.empty() ? 0u : 2u));
  if (!shared_block.empty()) {
    header.put32(kSharedOffsetField, shared_offset);
    header.put32(kSharedSizeField, static_cast<std::uint32_t>(shared_block.size()));
  }
  header.put_checksum();
  out.rewind();
  out.write(header.bytes());
  return {groups.size(), index_offset - kDataOffset, shared_offset - index_offset, file_size};
}

}  // namespace kz::lexicon
