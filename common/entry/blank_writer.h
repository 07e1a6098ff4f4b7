// Output of text whose blanks depend on their neighbours.
#ifndef KZ_ENTRY_BLANK_WRITER_H
#define KZ_ENTRY_BLANK_WRITER_H

#include <cstddef>
#include <cstring>
#include <string_view>

namespace kz::entry {

// Appends to a caller's buffer, which may be the one that is being read as long as the output does
// not overtake the input. What comes when `room` characters are there is dropped.
class BlankWriter {
 public:
  BlankWriter(char* begin, std::size_t room) : begin_(begin), end_(begin), limit_(begin + room) {}

  void put(char c) {
    if (!is_full()) *end_++ = c;
  }
  void put(std::string_view text) {
    text = text.substr(0, static_cast<std::size_t>(limit_ - end_));
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

  bool is_full() const { return end_ == limit_; }
  std::string_view text() const { return {begin_, static_cast<std::size_t>(end_ - begin_)}; }
  char* end() const { return end_; }

 private:
  bool ends_with_blank() const { return end_ != begin_ && end_[-1] == ' '; }

  char* begin_;
  char* end_;
  char* limit_;
};

}  // namespace kz::entry

#endif  // KZ_ENTRY_BLANK_WRITER_H
