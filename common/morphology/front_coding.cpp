// CGenSteno: writes sorted words as shared prefixes and rests.
#include "kz/front_coding.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>
#include <limits>

#include "text/literal.h"

namespace kz {
namespace {

// The previous word at the start of a list.
constexpr char kStartLetter = static_cast<char>(U'Я'_1251);

template <class Word>
Word load(const char* text) {
  Word word;
  std::memcpy(&word, text, sizeof word);
  return word;
}

// Number of equal leading characters. Words are compared eight characters at a time where both have
// as many; the last eight may overlap those before them.
std::size_t shared_prefix(const char* a, const char* b, std::size_t limit) {
  constexpr std::size_t kStep = sizeof(std::uint64_t);
  std::size_t shared = 0;
  while (limit >= kStep) {
    const std::uint64_t difference =
        load<std::uint64_t>(a + shared) ^ load<std::uint64_t>(b + shared);
    if (difference != 0) {
      const int bits = std::endian::native == std::endian::little ? std::countr_zero(difference)
                                                                  : std::countl_zero(difference);
      return shared + static_cast<std::size_t>(bits) / 8;
    }
    if (shared + kStep == limit) return limit;
    shared = std::min(shared + kStep, limit - kStep);
  }
  while (shared < limit && a[shared] == b[shared]) ++shared;
  return shared;
}

// Inverts the top bit of at least sizeof(Word) characters.
template <class Word>
void invert_words(const char* text, std::size_t length, char* out) {
  constexpr Word kTopBits = static_cast<Word>(0x8080808080808080U);
  const auto invert_word = [=](std::size_t at) {
    const Word inverted = load<Word>(text + at) ^ kTopBits;
    std::memcpy(out + at, &inverted, sizeof inverted);
  };
  for (std::size_t at = 0; at + sizeof(Word) < length; at += sizeof(Word)) invert_word(at);
  invert_word(length - sizeof(Word));
}

void invert(const char* text, std::size_t length, char* out) {
  if (length >= sizeof(std::uint64_t)) return invert_words<std::uint64_t>(text, length, out);
  if (length >= sizeof(std::uint32_t)) return invert_words<std::uint32_t>(text, length, out);
  for (std::size_t i = 0; i < length; ++i) out[i] = static_cast<char>(text[i] ^ 0x80);
}

}  // namespace
}  // namespace kz

CGenSteno::CGenSteno() { Start(); }
CGenSteno::~CGenSteno() = default;

void CGenSteno::Start() {
  previous_[0] = kz::kStartLetter;
  previous_[1] = '\0';
}

std::int16_t CGenSteno::CodeOrfo(const char* word, char* out) {
  if (word == nullptr) return 0;
  const std::size_t length = std::strlen(word);
  if (length == 0 || length >= std::numeric_limits<std::int16_t>::max()) return 0;

  const std::size_t limit = std::min(length, sizeof previous_ - 1);
  const std::size_t shared = kz::shared_prefix(word, previous_, limit);
  const std::size_t rest = length - shared;
  *out++ = static_cast<char>(shared);
  kz::invert(word + shared, rest, out);
  out[rest] = '\0';

  std::memcpy(previous_ + shared, word + shared, limit - shared);
  previous_[limit] = '\0';
  length_ = static_cast<std::int16_t>(rest);
  return static_cast<std::int16_t>(1 + rest);
}
