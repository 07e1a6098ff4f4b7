// Tag strings taken apart.
#include "tools/grammar_decode.h"

#include <algorithm>

#include "tools/code_page.h"
#include "tools/status.h"

namespace kzdic {
namespace {

// The library's longest tag string has 132 characters; the analysis below takes its time.
constexpr std::size_t kLongest = 1000;

std::string to_bytes(std::string_view text, const char* what) {
  try {
    return encode(from_utf8(text), CodePage::kRussian);
  } catch (const BadUtf8&) {
    throw Failure(Status::kCodePage, std::string(what) + " is not UTF-8");
  } catch (const Unmappable& error) {
    throw Failure(Status::kCodePage, std::string(what) + ": " + error.what());
  }
}

}  // namespace

char code_byte(std::string_view code) {
  const std::string byte = to_bytes(code, "the part-of-speech code");
  if (byte.size() == 1 && byte[0] != '\0') return byte[0];
  throw Failure(Status::kUsage,
                "the part-of-speech code '" + std::string(code) + "' is not one character");
}

Decoded decode_tags(std::string_view code, std::string_view tags) {
  const char byte = code_byte(code);
  const std::string text = to_bytes(tags, "the tag string");
  if (text.size() > kLongest) throw Failure(Status::kUsage, "the tag string is too long");
  Decoded decoded;
  decoded.code = code;
  decoded.tags = tags;
  std::string unread;
  decoded.grammar = read_tags(byte, text, &unread);
  decoded.unread = russian_to_utf8(unread);
  decoded.ignored = russian_to_utf8(ignored_characters(byte, text));
  decoded.fields = fields_of(byte, decoded.grammar);
  const std::string canonical = canonical_tags(byte, decoded.grammar);
  decoded.canonical = russian_to_utf8(canonical);
  const std::vector<Field> kept = fields_of(byte, read_tags(byte, canonical));
  for (const Field& field : decoded.fields) {
    if (std::find(kept.begin(), kept.end(), field) == kept.end()) decoded.left_out.push_back(field);
  }
  return decoded;
}

}  // namespace kzdic
