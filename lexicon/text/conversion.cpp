// Full conversion: bytes to code points to bytes, by a table where every byte has its answer.
#include <algorithm>
#include <array>
#include <cstring>

#include "kzlexicon/text.h"
#include "lexicon/text/code_page.h"
#include "lexicon/text/code_page_tables.h"
#include "lexicon/text/encoding.h"
#include "lexicon/text/filter.h"

namespace kz::lexicon {
namespace {

// A place in a text that moves forward.
struct TextPlace {
  std::size_t at = 0;
  std::size_t line = 1;
  std::size_t column = 1;

  void move_to(std::size_t target, std::u32string_view text) {
    for (; at < target; ++at) {
      const bool line_end = text[at] == U'\n';
      line += line_end ? 1 : 0;
      column = line_end ? 1 : column + 1;
    }
  }
};

// What each byte of a code page becomes.
class ByteTable {
 public:
  ByteTable(const Encoding& from, const Encoding& to) {
    if (from.form != Encoding::Form::kPage) return;
    for (std::size_t byte = 0; byte < lengths_.size(); ++byte) {
      std::string output;
      const std::u32string text = decode(std::string(1, static_cast<char>(byte)), from.page);
      if (text[0] == kNoCharacter || append_encoded(text, to, output) == 0) continue;
      output.copy(outputs_[byte].data(), kLongest);
      lengths_[byte] = output.size();
      longest_ = std::max(longest_, output.size());
    }
  }

  // Does nothing, and returns false, when some byte becomes nothing.
  bool append(std::string_view text, std::string& out) const {
    const std::size_t size = out.size();
    for (; !text.empty(); text.remove_prefix(std::min(text.size(), kStep))) {
      if (append_step(text.substr(0, kStep), out)) continue;
      out.resize(size);
      return false;
    }
    return true;
  }

 private:
  static constexpr std::size_t kLongest = 8;  // "&#65535;"
  static constexpr std::size_t kStep = 1024;

  bool append_step(std::string_view text, std::string& out) const {
    const std::size_t size = out.size();
    out.resize(size + text.size() * longest_ + kLongest);
    char* end = out.data() + size;
    bool complete = longest_ != 0;
    for (const char c : text) {
      const auto byte = static_cast<unsigned char>(c);
      std::memcpy(end, outputs_[byte].data(), kLongest);
      end += lengths_[byte];
      complete = complete && lengths_[byte] != 0;
    }
    out.resize(static_cast<std::size_t>(end - out.data()));
    return complete;
  }

  std::array<std::array<char, kLongest>, 256> outputs_{};
  std::array<std::size_t, 256> lengths_{};
  std::size_t longest_ = 0;
};

}  // namespace

struct Conversion::Impl {
  Impl(std::string_view from_name, std::string_view to_name)
      : from(find_encoding(from_name)), to(find_encoding(to_name)), bytes(from, to) {}

  // Returns the number of characters.
  std::size_t append(std::string_view text, std::string& out, const Missing& missing) const {
    if (bytes.append(text, out)) return text.size();
    const std::u32string characters = decode(text, from);
    TextPlace place;
    for (std::size_t at = 0;; ++at) {
      at += append_encoded(std::u32string_view(characters).substr(at), to, out);
      if (at >= characters.size()) return characters.size();
      place.move_to(at, characters);
      missing({characters[at], place.line, place.column}, out);
    }
  }

  const Encoding& from;
  const Encoding& to;
  const ByteTable bytes;
};

Conversion::Conversion(std::string_view from, std::string_view to)
    : impl_(std::make_unique<Impl>(from, to)) {}

Conversion::~Conversion() = default;
Conversion::Conversion(Conversion&& other) noexcept = default;
Conversion& Conversion::operator=(Conversion&& other) noexcept = default;

const Encoding& Conversion::from() const { return impl_->from; }
const Encoding& Conversion::to() const { return impl_->to; }

std::string Conversion::apply(std::string_view text) const {
  std::string out;
  append(text, out, [this](const MissingCharacter& missing, std::string&) {
    throw Unmappable(missing.character, to().page);
  });
  return out;
}

void Conversion::append(std::string_view text, std::string& out, const Missing& missing) const {
  impl_->append(text, out, missing);
}

Conversion::Piece Conversion::append_piece(std::string_view line, std::size_t at, std::string& out,
                                           const Missing& missing) const {
  const std::size_t size = piece_size(line, at);
  return answer_piece(at, [&] {
    return Piece{size, impl_->append(line.substr(at, size), out, missing)};
  });
}

}  // namespace kz::lexicon
