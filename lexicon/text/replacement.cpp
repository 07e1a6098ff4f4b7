// Replacement by a buffer of libkzcommon, in Windows-1251.
#include <algorithm>
#include <array>
#include <bitset>
#include <iterator>
#include <memory>
#include <mutex>
#include <new>
#include <vector>

#include "kz/dic_error.h"
#include "kz/replace_buffer.h"
#include "kzlexicon/text.h"
#include "lexicon/text/filter.h"
#include "lexicon/text/russian_text.h"

namespace kz::lexicon {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kRoom = 1 << 20;  // for the answer to a piece of text

// The lines of a buffer, and which texts they take.
class Words {
 public:
  explicit Words(const std::string& path) {
    switch (buffer_.Load(path.c_str())) {
      case DIC_OK: break;
      case DIC_ERR_FORMAT:
        throw Error(ErrorCode::kData,
                    "has a zero byte or is not shorter than " +
                        std::to_string(REPLACE_BUFFER_LIMIT) + " bytes",
                    {.file = path});
      default: throw Error(ErrorCode::kFile, "cannot read", {.file = path});
    }
    read_lines(path);
  }

  std::string replaced(std::string_view text) const {
    const std::lock_guard lock(mutex_);
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
  // where that can be. Words of which the end is after the text are left to the next piece.
  std::size_t first_piece(std::string_view text, std::size_t size) const {
    if (text.size() <= size) return text.size();
    // A character that is in no word is copied, and all lines are tried after it.
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

  // The first place after this one at which all lines are tried.
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
        throw Error(ErrorCode::kData, "the line does not end with CR and LF", {path, number});
      }
      if (line.find(kForeign) != std::string_view::npos) {
        throw Error(ErrorCode::kData, "the line is not Windows-1251", {path, number});
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

  mutable CFindBuffer buffer_{0};  // serves one thread at a time
  mutable std::mutex mutex_;
  std::bitset<256> in_words_;  // by character
  std::size_t growth_ = 1;     // characters that one character of a word can become
  std::size_t longest_ = 0;    // of the words
  std::vector<Line> lines_;    // without those that have no word
  std::array<std::vector<const Line*>, 256> lines_by_first_;  // characters of their words
};

class Replacement : public TextFilter {
 public:
  explicit Replacement(const std::string& path) : words_(path) {}

  void append(std::string_view text, std::string& out) const override {
    const RussianText russian(text);
    out += russian.restore(words_.replaced(russian.bytes()));
  }

  std::size_t append_piece(std::string_view line, std::size_t at, std::string& out) const override {
    return answer_piece(at, [&] {
      const std::size_t size = separate_piece(line, at);
      append(line.substr(at, size), out);
      return size;
    });
  }

 private:
  std::size_t separate_piece(std::string_view line, std::size_t at) const {
    const std::size_t most = piece_size(line, at);
    if (at + most == line.size()) return most;
    const std::string bytes = RussianText(line.substr(at, most)).bytes();
    const std::size_t characters = words_.first_piece(bytes, bytes.size() - words_.longest_word());
    std::size_t size = 0;
    for (std::size_t left = characters + 1; size < most; ++size) {
      if ((line[at + size] & 0xC0) != 0x80 && --left == 0) break;
    }
    return size;
  }

  Words words_;
};

}  // namespace

std::unique_ptr<TextFilter> replacement(const std::string& path) {
  return std::make_unique<Replacement>(path);
}

}  // namespace kz::lexicon
