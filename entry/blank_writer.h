// Output of text whose blanks depend on their neighbours.
#ifndef KZ_ENTRY_BLANK_WRITER_H
#define KZ_ENTRY_BLANK_WRITER_H

#include <cstddef>
#include <cstring>
#include <string_view>

namespace kz::entry {

// Appends to a caller's buffer with enough room, which may be the one that is being read as long as
// the output does not overtake the input.
class BlankWriter {
 public:
  explicit BlankWriter(char* begin) : begin_(begin), end_(begin) {}

  void put(char c) { *end_++ = c; }
  void put(std::string_view text) {
    if (text.empty()) return;
    std::memmove(end_, text.data(), text.size());
    end_ += text.size();
  }
  // A blank, unless the output already ends with one.
  void put_blank() {
    if (!ends_with_blank()) put(' ');
  }
  // A blank between what is there and what comes next: none at the start or after another blank.
  void separate() {
    if (end_ != begin_) put_blank();
  }
  void drop_blank() {
    if (ends_with_blank()) --end_;
  }

  std::string_view text() const { return {begin_, static_cast<std::size_t>(end_ - begin_)}; }
  char* end() const { return end_; }

 private:
  bool ends_with_blank() const { return end_ != begin_ && end_[-1] == ' '; }

  char* begin_;
  char* end_;
};

}  // namespace kz::entry

#endif  // KZ_ENTRY_BLANK_WRITER_H
