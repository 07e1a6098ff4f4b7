// Words of a replacement buffer: compiled to an automaton, replaced.
#include "util/replace_buffer_words.h"

#include <algorithm>
#include <limits>

namespace kz {
namespace {

constexpr std::uint32_t kRoot = 0;
constexpr std::uint32_t kWordEnds = 1U << 31;  // the mark of a state in the table
constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

}  // namespace

WordReplacer::WordReplacer(std::string_view buffer) : buffer_(buffer) {
  read_lines();
  classify_characters();
  add_state(0);
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    add_word(lines_[i].word, static_cast<LineNumber>(i));
  }
  complete_table();
}

void WordReplacer::read_lines() {
  const std::string_view text = buffer_;
  for (std::size_t at = first_line(text); const auto line = read_line(text.substr(at));
       at = next_line(text, at)) {
    if (!line->word.empty()) lines_.push_back(*line);
  }
}

void WordReplacer::classify_characters() {
  for (const BufferLine& line : lines_) {
    for (const char c : line.word) {
      std::uint8_t& character_class = class_of_[static_cast<unsigned char>(c)];
      if (character_class == 0) character_class = static_cast<std::uint8_t>(classes_++);
    }
  }
}

WordReplacer::State WordReplacer::add_state(std::uint32_t depth_of_state) {
  const auto state = static_cast<State>(table_.size());
  table_.resize(table_.size() + classes_ + 2);
  depth(state) = depth_of_state;
  word(state) = kNone;
  return state;
}

void WordReplacer::add_word(std::string_view text, LineNumber line) {
  State state = kRoot;
  for (const char c : text) {
    const std::size_t place = state + class_of(c);
    if (table_[place] == kRoot) {
      const State next = add_state(depth(state) + 1);
      table_[place] = next;
    }
    state = table_[place];
  }
  if (word(state) == kNone) {
    word(state) = static_cast<std::uint32_t>(word_lines_.size());
    word_lines_.emplace_back();
  }
  word_lines_[word(state)].push_back(line);
}

// Goes through the states by depth. Where a beginning does not go on with a character, the state
// does as that of its longest proper ending, the shallower state `behind`.
void WordReplacer::complete_table() {
  struct Step {
    State state;
    State behind;
  };
  std::vector<Step> queue{{kRoot, kRoot}};
  for (std::size_t i = 0; i < queue.size(); ++i) {
    const Step step = queue[i];
    for (std::size_t c = 1; c < classes_; ++c) {
      State& next = table_[step.state + c];
      const State instead = step.state == kRoot ? kRoot : table_[step.behind + c];
      if (next == kRoot) {
        next = instead;
        continue;
      }
      queue.push_back({next, instead & ~kWordEnds});
      next |= word(next) != kNone ? kWordEnds : instead & kWordEnds;
    }
  }
}

// The first place at which a word may be, so that no word ends before the first one that
// ends in the text; the end when there is none.
const char* WordReplacer::find_place(const char* at, const char* end) const {
  State state = kRoot;
  while (at != end) {
    state = table_[state + class_of(*at++)];
    if ((state & kWordEnds) != 0) return at - depth(state & ~kWordEnds);
  }
  return end;
}

// The first line from number `first` on whose word is here.
WordReplacer::LineNumber WordReplacer::find_line(const char* at, const char* end,
                                                 LineNumber first) const {
  LineNumber found = kNone;
  State state = kRoot;
  for (std::uint32_t length = 1; at != end; ++length) {
    state = table_[state + class_of(*at++)] & ~kWordEnds;
    if (depth(state) != length) break;  // what is here is no beginning of a word
    if (word(state) == kNone) continue;
    const std::vector<LineNumber>& lines = word_lines_[word(state)];
    const auto line = std::lower_bound(lines.begin(), lines.end(), first);
    if (line != lines.end()) found = std::min(found, *line);
  }
  return found;
}

char* WordReplacer::replace(std::string_view source, char* output) const {
  const char* at = source.data();
  const char* const end = at + source.size();
  while (at != end) {
    const char* place = find_place(at, end);
    LineNumber number = kNone;
    while (place != end && (number = find_line(place, end, 0)) == kNone) ++place;
    output = std::copy(at, place, output);
    at = place;
    while (number != kNone) {
      const BufferLine& line = lines_[number];
      at += line.word.size();
      if (line.replacement) {
        output = std::copy(line.replacement->begin(), line.replacement->end(), output);
        break;
      }
      // After a dropped word only the lines that remain are tried, then one character is kept.
      number = find_line(at, end, number + 1);
      if (number == kNone && at != end) *output++ = *at++;
    }
  }
  *output = '\0';
  return output;
}

}  // namespace kz
