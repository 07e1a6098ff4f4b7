// Replacement of the words of a buffer in one pass over a text.
#ifndef KZ_UTIL_REPLACE_BUFFER_WORDS_H
#define KZ_UTIL_REPLACE_BUFFER_WORDS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "util/replace_buffer.h"

namespace kz {

// The words of a buffer as an Aho-Corasick automaton. Its results are those of trying line by line
// at every position.
//
// A state stands for a beginning of a word. The automaton reads the text, one table access per
// character, and is always in the state of the longest beginning that ends there. So when a word
// ends at a place, no word that is still possible begins before that beginning: from there on,
// up to that word, the places are looked at closely.
class WordReplacer {
 public:
  explicit WordReplacer(std::string_view buffer);

  // The text that it was made for.
  const std::string& buffer() const { return buffer_; }

  // Writes the source with its words replaced, and a final zero; returns the position of the zero.
  char* replace(std::string_view source, char* output) const;

 private:
  // A state is the place of its row in the table. The row holds the next state by class of
  // characters, marked where a word ends with it, then the two columns of the state itself.
  using State = std::uint32_t;
  using LineNumber = std::uint32_t;

  void read_lines();
  void classify_characters();
  void add_word(std::string_view word, LineNumber line);
  void complete_table();

  State add_state(std::uint32_t depth);
  std::size_t class_of(char c) const { return class_of_[static_cast<unsigned char>(c)]; }
  std::uint32_t& depth(State state) { return table_[state + classes_]; }
  std::uint32_t depth(State state) const { return table_[state + classes_]; }
  std::uint32_t& word(State state) { return table_[state + classes_ + 1]; }
  std::uint32_t word(State state) const { return table_[state + classes_ + 1]; }
  const char* find_place(const char* at, const char* end) const;
  LineNumber find_line(const char* at, const char* end, LineNumber first) const;

  std::string buffer_;
  std::vector<BufferLine> lines_;                    // views of buffer_; none with an empty word
  std::vector<std::vector<LineNumber>> word_lines_;  // by word
  std::array<std::uint8_t, 256> class_of_{};         // 0 for characters that are in no word
  std::size_t classes_ = 1;
  std::vector<std::uint32_t> table_;
};

}  // namespace kz

#endif  // KZ_UTIL_REPLACE_BUFFER_WORDS_H
