// Tag strings taken apart.
#include <algorithm>
#include <iterator>

#include "lexicon/grammar/fields.h"

#include "kzlexicon/error.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

// The library's longest tag string has 132 characters; the analysis below takes its time.
constexpr std::size_t kLongest = 1000;

std::string to_bytes(std::string_view text, const char* what) {
  try {
    return encode(from_utf8(text), CodePage::kRussian);
  } catch (const BadUtf8&) {
    throw Error(ErrorCode::kData, std::string(what) + " is not UTF-8");
  } catch (const Unmappable& error) {
    throw Error(ErrorCode::kCodePage, std::string(what) + ": " + error.what());
  }
}

}  // namespace

char code_byte(std::string_view code) {
  const std::string byte = to_bytes(code, "the part-of-speech code");
  if (byte.size() == 1 && byte[0] != '\0') return byte[0];
  throw Error(ErrorCode::kArgument,
              "the part-of-speech code '" + std::string(code) + "' is not one character");
}

Decoded decode_tags(std::string_view code, std::string_view tags) {
  const char byte = code_byte(code);
  const std::string text = to_bytes(tags, "the tag string");
  if (text.size() > kLongest) throw Error(ErrorCode::kArgument, "the tag string is too long");
  Decoded decoded;
  decoded.code = code;
  decoded.tags = tags;
  std::string unread;
  const Grammar grammar = read_tags(byte, text, &unread);
  std::copy(std::begin(grammar.gram.word), std::end(grammar.gram.word), decoded.words.begin());
  decoded.semantics = grammar.semantics.word;
  decoded.unread = russian_to_utf8(unread);
  decoded.ignored = russian_to_utf8(ignored_characters(byte, text));
  decoded.fields = fields_of(byte, grammar);
  const std::string canonical = canonical_tags(byte, grammar);
  decoded.canonical = russian_to_utf8(canonical);
  const std::vector<Field> kept = fields_of(byte, read_tags(byte, canonical));
  for (const Field& field : decoded.fields) {
    if (std::find(kept.begin(), kept.end(), field) == kept.end()) decoded.left_out.push_back(field);
  }
  return decoded;
}

std::string_view tag_group_of(std::string_view code) { return tag_group(code_byte(code)); }

std::string summary(const std::vector<Field>& fields) {
  std::string text;
  const std::string* before = nullptr;
  for (const Field& field : fields) {
    text += text.empty() ? "" : ", ";
    // Words speak for themselves; the name of other values is said once.
    const bool plain = field.kind == Field::Kind::kWord && !field.name.ends_with("-case");
    if (!plain && (before == nullptr || *before != field.name)) text += field.name + " ";
    text += field.value;
    before = &field.name;
  }
  return text;
}

}  // namespace kz::lexicon
