// Taking a record apart: headword, code, body, extra part.
#include "dictionary/iterator_record.h"

#include "dictionary/records.h"

namespace kz {
namespace {

constexpr char kSeparator = '\\';

// Forwards, in as many leaps as there are such characters: most records have one, and a search
// backwards looks at every character.
std::size_t last_of(std::string_view text, char c) {
  std::size_t last = std::string_view::npos;
  for (std::size_t at = text.find(c); at != std::string_view::npos; at = text.find(c, at + 1)) {
    last = at;
  }
  return last;
}

void copy_text(std::string_view text, char* output) {
  if (output != nullptr) output[text.copy(output, text.size())] = 0;
}

}  // namespace

RecordParts::RecordParts(std::string_view record)
    : headword(record.substr(0, last_of(record, kHeadwordEnd))) {
  std::string_view rest = record.substr(headword.size());
  rest.remove_prefix(rest.empty() ? 0 : 1);
  if (rest.empty()) return;
  code = rest[0];
  rest.remove_prefix(1);

  // A backslash ends the body and begins the extra part, a double one the form to be shown.
  const auto is_double = [&](std::size_t at) {
    return at + 1 < rest.size() && rest[at + 1] == kSeparator;
  };
  std::size_t end = rest.find(kSeparator);
  body = rest.substr(0, end);
  if (end == std::string_view::npos) return;
  if (!is_double(end)) {
    const std::size_t begin = end;
    end = rest.find(kSeparator, begin + 1);
    extra = rest.substr(begin, end - begin);
  }
  if (end != std::string_view::npos && is_double(end)) headword = rest.substr(end + 2);
}

void RecordParts::copy_to(const RecordOutputs& outputs) const {
  copy_text(headword, outputs.headword);
  copy_text({&code, code != 0 ? 1U : 0U}, outputs.code);
  copy_text(body, outputs.body);
  if (extra) copy_text(*extra, outputs.extra);
}

}  // namespace kz
