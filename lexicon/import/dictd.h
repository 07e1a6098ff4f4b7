// Reader of dictd databases: an index of headwords, and a text file that may be compressed.
//
// Each line of BASE.index is a headword, an offset and a length, parted by tabs; the numbers are in
// base 64, most significant digit first. BASE.dict, or BASE.dict.dz compressed, holds the texts.
#ifndef KZ_LEXICON_DICTD_H
#define KZ_LEXICON_DICTD_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kz::lexicon {

struct DictdEntry {
  std::string headword;  // as the index spells it
  std::string_view text;
  std::size_t offset;  // of the text in the text file
  std::size_t length;
  std::size_t line;  // of the index
};

class DictdDatabase {
 public:
  // Compressed texts can be much longer than their files.
  static constexpr std::size_t kLongestText = 0x7FFFFFFF;

  // Reads the index, and of the text what the index needs. Throws Error for a file that cannot be
  // read, is damaged, or holds a longer text.
  explicit DictdDatabase(const std::string& base, std::size_t limit = kLongestText);
  DictdDatabase(const DictdDatabase&) = delete;
  DictdDatabase& operator=(const DictdDatabase&) = delete;

  // In the order of the index, without the database's entries about itself.
  const std::vector<DictdEntry>& entries() const { return entries_; }
  const std::string& text_path() const { return text_path_; }

 private:
  void read_index(const std::string& path);

  std::string text_path_;
  std::string text_;
  std::vector<DictdEntry> entries_;
};

// The value of a base-64 number; nothing for an empty or malformed one and for more than 10 digits.
std::optional<std::size_t> base64_number(std::string_view digits);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_DICTD_H
