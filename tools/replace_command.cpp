// Replacement by the library, in Windows-1251.
#include "tools/replace_command.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <iterator>
#include <memory>
#include <new>
#include <vector>

#include "kz/dic_error.h"
#include "kz/replace_buffer.h"
#include "kzlexicon/output.h"
#include "lexicon/text/russian_text.h"
#include "tools/status.h"

namespace kzdic {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kRoom = 1 << 20;  // for the answer to a piece of text

class Words {
 public:
  explicit Words(const std::string& path) {
    switch (buffer_.Load(path.c_str())) {
      case DIC_OK: break;
      case DIC_ERR_FORMAT:
        throw Failure(Status::kDamaged, path + ": has a zero byte or is not shorter than " +
                                            std::to_string(REPLACE_BUFFER_LIMIT) + " bytes");
      default: throw Failure(Status::kFile, path + ": cannot read");
    }
    read_lines(path);
  }

  std::string replaced(std::string_view text) {
    std::string result;
    while (!text.empty()) {
      const std::string piece(text.substr(0, first_piece(text, kRoom / growth_)));
      if (piece.size() > piece.max_size() / growth_) throw std::bad_alloc();
      const auto room = std::make_unique_for_overwrite<char[]>(piece.size() * growth_ + 1);
      result += ChangeWord(&buffer_, piece.c_str(), room.get());
      text.remove_prefix(piece.size());
    }
    return result;
  }

  // The size of a piece at the beginning of a text that can be replaced separately: at most `size`
  // where that can be. Words of which the end is behind the text are left to the next piece.
  std::size_t first_piece(std::string_view text, std::size_t size) const {
    if (text.size() <= size) return text.size();
    // A character that is in no word is copied, and all lines are tried behind it.
    const auto separates = [this](char c) { return !in_words_[static_cast<unsigned char>(c)]; };
    const auto target = text.begin() + static_cast<std::ptrdiff_t>(size);
    const auto before = std::find_if(std::make_reverse_iterator(target), text.rend(), separates);
    if (before != text.rend()) return static_cast<std::size_t>(text.rend() - before);
    std::size_t end = next_place(text, 0);
    for (std::size_t next = end; next <= size; next = next_place(text, next)) end = next;
    return end;
  }

  std::size_t longest_word() const { return longest_; }

 private:
  struct Line {
    std::string word;
    bool replaces;
  };

  // The first place behind this one at which all lines are tried.
  std::size_t next_place(std::string_view text, std::size_t at) const {
    const Line* after = nullptr;  // lines up to this one have been tried
    for (bool dropped = true; dropped && at < text.size();) {
      dropped = false;
      for (const Line* line : lines_by_first_[static_cast<unsigned char>(text[at])]) {
        if (line <= after || !text.substr(at).starts_with(line->word)) continue;
        at += line->word.size();
        if (line->replaces) return at;
        after = line;
        dropped = true;
        break;
      }
    }
    return std::min(at + 1, text.size());
  }

  // Checks the lines, and measures the replacements.
  void read_lines(const std::string& path) {
    std::string_view rest = buffer_.GetBuffer();
    for (std::size_t number = 0; !rest.empty(); ++number) {
      const std::size_t end = rest.find(kLineEnd);
      const std::string_view line = rest.substr(0, end);
      rest.remove_prefix(std::min(rest.size(), line.size() + kLineEnd.size()));
      if (line.find_first_of(kLineEnd) != std::string_view::npos) {
        throw Failure(Status::kDamaged,
                      at_line(path, number, "the line does not end with CR and LF"));
      }
      if (line.find(kForeign) != std::string_view::npos) {
        throw Failure(Status::kDamaged, at_line(path, number, "the line is not Windows-1251"));
      }
      const std::size_t word = std::min(line.find('='), line.size());
      for (const char c : line.substr(0, word)) in_words_.set(static_cast<unsigned char>(c));
      longest_ = std::max(longest_, word);
      if (word != 0) lines_.push_back({std::string(line.substr(0, word)), word != line.size()});
      if (word == 0 || word == line.size()) continue;
      growth_ = std::max(growth_, (line.size() - word - 1 + word - 1) / word);
    }
    for (const Line& line : lines_) {
      lines_by_first_[static_cast<unsigned char>(line.word.front())].push_back(&line);
    }
  }

  CFindBuffer buffer_{0};
  std::bitset<256> in_words_;  // by character
  std::size_t growth_ = 1;     // characters that one character of a word can become
  std::size_t longest_ = 0;    // of the words
  std::vector<Line> lines_;    // without those that have no word
  std::array<std::vector<const Line*>, 256> lines_by_first_;  // characters of their words
};

class ReplaceFilter : public LineFilter {
 public:
  explicit ReplaceFilter(const std::string& path) : words_(path) {}

  std::size_t piece_size(std::string_view line, std::size_t offset) override {
    const std::size_t most = LineFilter::piece_size(line, offset);
    if (offset + most == line.size()) return most;
    const std::string bytes = RussianText(line.substr(offset, most)).bytes();
    const std::size_t characters = words_.first_piece(bytes, bytes.size() - words_.longest_word());
    std::size_t size = 0;
    for (std::size_t left = characters + 1; size < most; ++size) {
      if ((line[offset + size] & 0xC0) != 0x80 && --left == 0) break;
    }
    return size;
  }

  void answer(const Block& block, std::string& out) override {
    const RussianText text(block.text);
    out += text.restore(words_.replaced(text.bytes()));
  }

 private:
  Words words_;
};

}  // namespace

void replace(const ReplaceOptions& options) {
  refuse_inputs_as_output("-", {options.buffer});
  ReplaceFilter filter(options.buffer);
  run_filter(filter, options.filter);
}

}  // namespace kzdic
