// CFindBuffer: the block of a replacement buffer and its lines.
#include "util/replace_buffer.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <string>

#include "kz/charclass.h"
#include "kz/dic_error.h"
#include "kz/replace_buffer.h"
#include "util/replace_buffer_words.h"

namespace kz {
namespace {

constexpr std::size_t kDefaultSize = 16100;
constexpr std::size_t kTerminator = 2;  // zero bytes after the text
constexpr std::size_t kLeastSize = kBufferLineEnd.size() + kTerminator;
constexpr std::size_t kWordLimit = 255;
constexpr std::size_t kSearchLimit = 251;
constexpr std::size_t kConcatLimit = 512;

bool is_white(char c) { return _isspace(c) != 0; }

std::string_view view(const char* text) { return text != nullptr ? text : std::string_view(); }

// What follows the word of a line that a search takes.
enum class Follower : char { any = '\0', line_end = '\r', replacement = '=' };

const char* find_line(std::string_view text, std::string_view word, Follower follower) {
  if (word.empty()) return nullptr;
  for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n', at)) {
    const std::string_view line = text.substr(++at);
    if (!line.starts_with(word)) continue;
    if (follower == Follower::any ||
        line.substr(word.size()).starts_with(static_cast<char>(follower)))
      return line.data();
  }
  return nullptr;
}

char* copy_text(std::string_view text, char* output) {
  *std::copy(text.begin(), text.end(), output) = '\0';
  return output;
}

}  // namespace

// Works on the block of a buffer. Running out of memory for anything but the block ends the
// process.
struct FindBufferCore {
  using Buffer = CFindBuffer;

  static std::string_view text_of(const Buffer& buffer) { return view(buffer.text_); }

  // Makes the block at least this large; text and cursor stay where they are in it.
  static bool grow(Buffer& buffer, std::size_t size) {
    if (buffer.block_ != nullptr && size <= buffer.size_) return true;
    size = std::max(size, kLeastSize);
    auto* const block = static_cast<char*>(std::realloc(buffer.block_, size));
    if (block == nullptr) return false;
    const bool is_new = buffer.block_ == nullptr;
    const std::size_t cursor =
        is_new ? kBufferLineEnd.size() : static_cast<std::size_t>(buffer.cursor_ - buffer.text_);
    buffer.block_ = buffer.text_ = block;
    buffer.cursor_ = block + cursor;
    buffer.size_ = static_cast<std::uint16_t>(size);
    if (is_new) set_text(buffer, kBufferLineEnd);
    return true;
  }

  static bool has_block(Buffer& buffer) {
    return buffer.block_ != nullptr || grow(buffer, kDefaultSize);
  }

  // Room for a text, from a size given at first to the default one.
  static bool make_room(Buffer& buffer, std::size_t length) {
    return has_block(buffer) &&
           (length + kTerminator <= buffer.size_ || grow(buffer, kDefaultSize));
  }

  // Takes a text without the leading line end; it may lie in the block, which may move.
  static bool assign(Buffer& buffer, std::string_view text) noexcept {
    const std::string whole = std::string(kBufferLineEnd).append(text);
    if (!make_room(buffer, whole.size())) return false;
    set_text(buffer, whole);
    return true;
  }

  // The text fits the block; it may lie in it.
  static void set_text(Buffer& buffer, std::string_view text) {
    std::memmove(buffer.text_, text.data(), text.size());
    std::memset(buffer.text_ + text.size(), 0, kTerminator);
    buffer.cursor_ = buffer.text_ + std::min(text.size(), kBufferLineEnd.size());
  }

  // The parts may lie in the block, which may move.
  static bool append(Buffer& buffer, std::initializer_list<std::string_view> parts) noexcept {
    std::string addition;
    for (const std::string_view part : parts) addition += part;
    const std::size_t length = text_of(buffer).size();
    if (!make_room(buffer, length + addition.size())) return false;
    char* const end = std::copy(addition.begin(), addition.end(), buffer.text_ + length);
    std::memset(end, 0, kTerminator);
    return true;
  }

  static bool is_full(const Buffer& buffer, std::size_t addition) {
    return text_of(buffer).size() + addition >= REPLACE_BUFFER_LIMIT;
  }

  // White space at the end becomes one line end, if the file can take it.
  static void trim(Buffer& buffer) {
    const std::string_view text = text_of(buffer);
    const auto begin = std::find_if_not(text.begin(), text.end(), is_white);
    if (begin == text.end()) return set_text(buffer, kBufferLineEnd);
    const auto end = std::find_if_not(text.rbegin(), text.rend(), is_white).base();
    const auto length = static_cast<std::size_t>(end - text.begin());
    const auto file_length = static_cast<std::size_t>(end - begin) + kBufferLineEnd.size();
    set_text(buffer, text.substr(0, length));
    if (file_length < REPLACE_BUFFER_LIMIT) append(buffer, {kBufferLineEnd});
  }

  static const WordReplacer& compiled(Buffer& buffer) {
    const std::string_view text = text_of(buffer);
    if (buffer.replacer_ == nullptr || buffer.replacer_->buffer() != text) {
      delete buffer.replacer_;
      buffer.replacer_ = nullptr;
      buffer.replacer_ = new WordReplacer(text);
    }
    return *buffer.replacer_;
  }

  static char* change_words(Buffer* buffer, const char* source, char* output) noexcept {
    if (buffer == nullptr) return copy_text(view(source), output);
    compiled(*buffer).replace(view(source), output);
    return output;
  }
};

}  // namespace kz

using kz::FindBufferCore;
using kz::Follower;

CFindBuffer::CFindBuffer(std::int16_t mode) : mode_(mode) {
  static_cast<void>(mode_);  // the caller's alone
}

CFindBuffer::~CFindBuffer() {
  CFindBuffer::Free();
  delete replacer_;
}

std::int16_t CFindBuffer::Allocate(std::uint16_t size) {
  if (block_ != nullptr) return 1;
  return FindBufferCore::grow(*this, size != 0 ? size : kz::kDefaultSize) ? 1 : 0;
}

std::int16_t CFindBuffer::Free() {
  std::free(block_);
  block_ = text_ = cursor_ = nullptr;
  modified_ = corrected_ = 0;
  size_ = 0;
  return 0;
}

char* CFindBuffer::Clear() {
  if (!FindBufferCore::has_block(*this)) return nullptr;
  FindBufferCore::set_text(*this, kz::kBufferLineEnd);
  return text_;
}

char* CFindBuffer::GetBuffer() { return FindBufferCore::has_block(*this) ? block_ : nullptr; }

std::int16_t CFindBuffer::SetBuffer(const char* text) {
  const std::string_view given = kz::view(text);
  if (text == nullptr || given.size() >= REPLACE_BUFFER_LIMIT) return 0;
  if (!FindBufferCore::assign(*this, given.substr(kz::first_line(given)))) return 0;
  modified_ = 1;
  return 1;
}

std::int16_t CFindBuffer::Load(const char* path) {
  if (!FindBufferCore::make_room(*this, kz::kBufferLineEnd.size() + REPLACE_BUFFER_LIMIT)) {
    return DIC_ERR_MEMORY;
  }
  Clear();
  const std::int16_t result = LoadBuffer(path, text_ + kz::kBufferLineEnd.size());
  if (result != DIC_OK) {
    Clear();
    return result;
  }
  FindBufferCore::trim(*this);
  modified_ = 0;
  return DIC_OK;
}

std::int16_t CFindBuffer::Save(const char* path) {
  if (!FindBufferCore::has_block(*this)) return 1;
  const std::string_view text = FindBufferCore::text_of(*this);
  const auto begin = std::find_if_not(text.begin(), text.end(), kz::is_white);
  if (begin == text.end()) return DIC_ERR_MEMORY;
  const std::int16_t result = SaveBuffer(path, text_ + (begin - text.begin()));
  if (result == DIC_OK) modified_ = 0;
  return result;
}

const char* CFindBuffer::Find(const char* word, std::int16_t mode) {
  return FindWordInBuffer(block_, word, mode);
}

std::int16_t CFindBuffer::Find(const char* word) {
  const std::string_view text = FindBufferCore::text_of(*this);
  return kz::find_line(text, kz::view(word), Follower::line_end) != nullptr ? 1 : 0;
}

std::int16_t CFindBuffer::Add(const char* word) {
  const std::string_view given = kz::view(word);
  if (given.empty()) return 0;
  if (!FindBufferCore::has_block(*this)) return -1;
  if (Find(word) != 0) return 1;
  if (given.size() >= kz::kWordLimit || FindBufferCore::is_full(*this, given.size()) ||
      std::all_of(given.begin(), given.end(), kz::is_white)) {
    return 0;
  }
  return FindBufferCore::append(*this, {given, kz::kBufferLineEnd}) ? 1 : -1;
}

std::int16_t CFindBuffer::Add(const char* word, const char* replacement) {
  if (word == nullptr) return 0;
  if (!FindBufferCore::has_block(*this)) return -1;
  if (Find(word) != 0) return 1;
  const std::string_view given = kz::view(word);
  const std::string_view behind = kz::view(replacement);
  if (FindBufferCore::is_full(*this, given.size() + 1 + behind.size())) return 0;
  return FindBufferCore::append(*this, {given, "=", behind, kz::kBufferLineEnd}) ? 1 : -1;
}

std::int16_t CFindBuffer::Concat(const char* text) {
  const std::string_view given = kz::view(text);
  if (given.empty()) return 0;
  if (!FindBufferCore::has_block(*this)) return -1;
  if (given.size() >= kz::kConcatLimit || FindBufferCore::is_full(*this, given.size())) return 0;
  return FindBufferCore::append(*this, {given}) ? 1 : -1;
}

const char* CFindBuffer::Replace(const char* word, char* output) {
  if (output != nullptr) *output = '\0';
  const std::string_view text = FindBufferCore::text_of(*this);
  const std::string_view wanted = kz::view(word);
  const char* const line = kz::find_line(text, wanted, Follower::replacement);
  if (line == nullptr) return nullptr;
  const char* const replacement = line + wanted.size() + 1;
  const std::string_view rest(replacement);
  if (output != nullptr) kz::copy_text(rest.substr(0, rest.find('\r')), output);
  corrected_ = static_cast<std::int16_t>(corrected_ + 1);
  return replacement;
}

char* CFindBuffer::GetWordFor(const char* line, char* output) {
  if (line == nullptr || output == nullptr) return output;
  const auto read = kz::read_line(line);
  return read ? kz::copy_text(read->word, output) : nullptr;
}

const char* CFindBuffer::GetWordTo(const char* line, char* output) {
  if (output != nullptr) *output = '\0';
  const char* const equals = line != nullptr ? std::strchr(line, '=') : nullptr;
  if (equals == nullptr) return nullptr;
  const std::string_view rest(equals + 1);
  if (output != nullptr) kz::copy_text(rest.substr(0, rest.find('\r')), output);
  return equals + 1;
}

char* CFindBuffer::First(char* output) {
  if (output != nullptr) *output = '\0';
  if (block_ == nullptr) return nullptr;
  cursor_ = text_ + kz::first_line(text_);
  return GetWordFor(cursor_, output);
}

char* CFindBuffer::Next(char* output) {
  if (output != nullptr) *output = '\0';
  if (block_ == nullptr) return nullptr;
  cursor_ += kz::next_line(cursor_, 0);
  return GetWordFor(cursor_, output);
}

std::int16_t CFindBuffer::GetModified() const { return modified_; }
void CFindBuffer::SetModified(std::int16_t modified) { modified_ = modified; }
std::int16_t CFindBuffer::GetCorrected() const { return corrected_; }
void CFindBuffer::SetCorrected(std::int16_t corrected) { corrected_ = corrected; }

extern "C" {

const char* FindWordInBuffer(const char* buffer, const char* word, int16_t mode) {
  const std::string_view wanted = kz::view(word);
  if (wanted.size() >= kz::kSearchLimit) return nullptr;
  const Follower follower = mode == 0   ? Follower::line_end
                            : mode == 1 ? Follower::replacement
                                        : Follower::any;
  return kz::find_line(kz::view(buffer), wanted, follower);
}

char* ChangeWord(CFindBuffer* buffer, const char* source, char* destination) {
  if (destination == nullptr) return nullptr;
  return FindBufferCore::change_words(buffer, source, destination);
}

}  // extern "C"
