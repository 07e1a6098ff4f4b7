// Conversions of the library, and what is said about missing characters.
#include "tools/convert_command.h"

#include <iostream>
#include <nlohmann/json.hpp>

#include "kzlexicon/text.h"
#include "tools/status.h"
#include "tools/streams.h"

namespace kzdic {
namespace {

using Json = nlohmann::ordered_json;
using Form = Encoding::Form;

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
  object["output"] = decode_utf8(bytes, encoding.page);
  object["bytes"] = hexadecimal(bytes);
}

class FullConversion : public LineFilter {
 public:
  explicit FullConversion(const ConvertOptions& options)
      : options_(options), conversion_(options.from, options.to) {
    if (!options.replace) return;
    try {
      replacement_ = Conversion("utf-8", options.to).apply(*options.replace);
    } catch (const BadText& bad) {
      throw Failure(Status::kUsage, std::string("--replace: the text ") + bad.what());
    } catch (const Unmappable& missing) {
      throw Failure(Status::kUsage, std::string("--replace: ") + missing.what());
    }
  }

  void answer(const Block& block, std::string& out) override {
    const std::size_t size = out.size();
    conversion_.append(block.text, out, reporter(block, 0));
    if (options_.check) out.resize(size);
  }

  std::size_t answer_piece(const Block& line, std::size_t at, std::string& out) override {
    const std::size_t size = out.size();
    if (at == 0) characters_before_ = 0;
    const Conversion::Piece piece =
        conversion_.append_piece(line.text, at, out, reporter(line, characters_before_));
    characters_before_ += piece.characters;
    if (options_.check) out.resize(size);
    return piece.bytes;
  }

  bool reads_utf8() const override { return conversion_.from().form != Form::kPage; }

  void describe(const Block& line, Json& object) override {
    const Conversion::Missing report = reporter(line, 0);
    std::string out;
    Json list = Json::array();
    conversion_.append(line.text, out, [&](const MissingCharacter& missing, std::string& answer) {
      if (!options_.check) report(missing, answer);
      found_ = true;
      list.push_back({{"column", missing.column},
                      {"character", to_utf8(std::u32string_view(&missing.character, 1))},
                      {"code_point", code_point(missing.character)}});
    });
    object["input"] =
        reads_utf8() ? std::string(line.text) : decode_utf8(line.text, conversion_.from().page);
    if (!options_.check) describe_output(out, conversion_.to(), object);
    object["missing"] = list;
  }

  bool found() const { return found_; }

 private:
  // What is done about a missing character: replaced, reported, or the end.
  Conversion::Missing reporter(const Block& block, std::size_t characters_before) {
    return [this, &block, characters_before](const MissingCharacter& missing, std::string& out) {
      if (options_.replace) {
        out += replacement_;
        return;
      }
      if (options_.check && block.rehearsal) return;
      const std::string message =
          at_place({.file = block.file, .line = block.line + missing.line - 1},
                   "column " + std::to_string(missing.column + characters_before) + ": " +
                       Unmappable(missing.character, conversion_.to().page).what());
      if (!options_.check) throw Failure(Status::kCodePage, message);
      found_ = true;
      std::cerr << "kzdic: " << message << '\n';
    };
  }

  const ConvertOptions& options_;
  const Conversion conversion_;
  std::string replacement_;
  std::size_t characters_before_ = 0;  // of the line, in pieces before this one
  bool found_ = false;
};

class NarrowConversion : public TextLineFilter {
 public:
  NarrowConversion(const Encoding& from, const Encoding& to)
      : TextLineFilter(narrow_conversion(from, to)), from_(from), to_(to) {}

  bool reads_utf8() const override { return false; }

  void describe(const Block& line, Json& object) override {
    std::string out;
    answer(line, out);
    object["input"] = decode_utf8(line.text, from_.page);
    describe_output(out, to_, object);
  }

 private:
  const Encoding& from_;
  const Encoding& to_;
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

void list_code_pages() {
  for (const Encoding& encoding : encodings()) {
    std::cout << encoding.name;
    for (const std::string_view alias : encoding.aliases) {
      if (!alias.empty()) std::cout << ' ' << alias;
    }
    std::cout << '\n';
  }
  std::cout << "\nwith --narrow\n";
  for (const NarrowPair& pair : narrow_pairs()) std::cout << pair.from << " to " << pair.to << '\n';
  finish_output();
}

}  // namespace kzdic
