// Full conversion through Unicode; narrow conversion by the library's functions.
#include "tools/convert_command.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iostream>
#include <nlohmann/json.hpp>

#include "lexicon/text/code_page_tables.h"
#include "lexicon/text/narrow_conversion.h"
#include "lexicon/text/text_encoding.h"
#include "tools/status.h"

namespace kzdic {
namespace {

using Json = nlohmann::ordered_json;

std::string hexadecimal(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string result;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    result += kDigits[byte >> 4];
    result += kDigits[byte & 15];
  }
  return result;
}

// Says what the bytes of an answer are. Those of a code page are not text of JSON.
void describe_output(const std::string& bytes, const Encoding& encoding, Json& object) {
  if (encoding.form != Form::kPage) {
    object["output"] = bytes;
    return;
  }
  object["output"] = to_utf8(decode(bytes, encoding.page));
  object["bytes"] = hexadecimal(bytes);
}

// A place in a block that moves forward.
struct Place {
  std::size_t at = 0;
  std::size_t line = 1;
  std::size_t column = 1;  // in characters

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
    if (from.form != Form::kPage) return;
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

class FullConversion : public LineFilter {
 public:
  explicit FullConversion(const ConvertOptions& options)
      : options_(options),
        from_(find_encoding(options.from)),
        to_(find_encoding(options.to)),
        bytes_(from_, to_) {
    if (!options.replace) return;
    try {
      const std::u32string text = from_utf8(*options.replace);
      const std::size_t length = append_encoded(text, to_, replacement_);
      if (length < text.size()) throw Unmappable(text[length], to_.page);
    } catch (const BadText& bad) {
      throw Failure(Status::kUsage, std::string("--replace: the text ") + bad.what());
    } catch (const Unmappable& missing) {
      throw Failure(Status::kUsage, std::string("--replace: ") + missing.what());
    }
  }

  void answer(const Block& block, std::string& out) override {
    const std::size_t size = out.size();
    if (block.offset == 0) characters_before_ = 0;
    std::size_t length = block.text.size();
    if (!bytes_.append(block.text, out)) {
      const std::u32string text = decode(block.text, from_);
      encode(text, out, [&](const Place& place) { lacking(text[place.at], place, block); });
      length = text.size();
    }
    characters_before_ += length;
    if (options_.check) out.resize(size);
  }

  bool reads_utf8() const override { return from_.form != Form::kPage; }

  void describe(const Block& line, Json& object) override {
    const std::u32string text = decode(line.text, from_);
    object["input"] = from_.form == Form::kPage ? to_utf8(text) : std::string(line.text);
    std::string out;
    Json missing = Json::array();
    encode(text, out, [&](const Place& place) {
      const char32_t c = text[place.at];
      if (!options_.check && !options_.replace) lacking(c, place, line);
      found_ = true;
      missing.push_back({{"column", place.column},
                         {"character", to_utf8(std::u32string_view(&c, 1))},
                         {"code_point", code_point(c)}});
    });
    if (!options_.check) describe_output(out, to_, object);
    object["missing"] = missing;
  }

  bool found() const { return found_; }

 private:
  template <typename Lacking>
  void encode(std::u32string_view text, std::string& out, Lacking report) const {
    Place place;
    for (std::size_t at = 0;; ++at) {
      at += append_encoded(text.substr(at), to_, out);
      if (at >= text.size()) return;
      place.move_to(at, text);
      report(place);
      out += replacement_;
    }
  }

  void lacking(char32_t c, const Place& place, const Block& block) {
    if (options_.replace || (options_.check && block.rehearsal)) return;
    const std::size_t column = place.column + (place.line == 1 ? characters_before_ : 0);
    const std::string message =
        at_line(block.file, block.line + place.line - 1,
                "column " + std::to_string(column) + ": " + Unmappable(c, to_.page).what());
    if (!options_.check) throw Failure(Status::kCodePage, message);
    found_ = true;
    std::cerr << "kzdic: " << message << '\n';
  }

  const ConvertOptions& options_;
  const Encoding& from_;
  const Encoding& to_;
  const ByteTable bytes_;
  std::string replacement_;
  std::size_t characters_before_ = 0;  // of the line, in pieces before this one
  bool found_ = false;
};

class NarrowConversion : public LineFilter {
 public:
  NarrowConversion(const Encoding& from, const Encoding& to)
      : from_(from), to_(to), pair_(find_narrow_pair(from, to)) {}

  void answer(const Block& block, std::string& out) override {
    append_narrowed(block.text, pair_, out);
  }

  bool reads_utf8() const override { return false; }

  void describe(const Block& line, Json& object) override {
    std::string out;
    answer(line, out);
    object["input"] = to_utf8(decode(line.text, from_.page));
    describe_output(out, to_, object);
  }

 private:
  const Encoding& from_;
  const Encoding& to_;
  const NarrowPair& pair_;
};

}  // namespace

Status convert(const ConvertOptions& options) {
  if (options.narrow) {
    NarrowConversion conversion(find_encoding(options.from), find_encoding(options.to));
    run_filter(conversion, options.filter);
    return Status::kOk;
  }
  FullConversion conversion(options);
  run_filter(conversion, options.filter);
  return conversion.found() && options.check ? Status::kNotFound : Status::kOk;
}

void list_code_pages(std::ostream& out) {
  for (const Encoding& encoding : encodings()) {
    out << encoding.name;
    for (const std::string_view alias : encoding.aliases) {
      if (!alias.empty()) out << ' ' << alias;
    }
    out << '\n';
  }
  out << "\nwith --narrow\n";
  for (const NarrowPair& pair : narrow_pairs()) out << pair.from << " to " << pair.to << '\n';
  if (!out.flush()) throw Failure(Status::kFile, "cannot write to standard output");
}

}  // namespace kzdic
