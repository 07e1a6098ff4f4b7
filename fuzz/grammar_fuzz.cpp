// Fuzz target: tag strings as text, and records of any bits.
//
// The first byte is the part-of-speech code, the next 32 are the records, the rest is the text.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "kz/gram_attr.h"
#include "kz/gram_codec.h"
#include "kz/gram_map.h"

namespace {

void require(bool condition) {
  if (!condition) std::abort();
}

// The room is exact, so that the sanitizer sees every overrun. Semantic flags read back.
void check_record(int code, const GRAMINFO& gram, const SEMANTICS& semantics) {
  char written[GRAM_STRING_SIZE];
  GramToStr(static_cast<std::int16_t>(code), &gram, &semantics, written);
  char flags[34];
  SEMANTICS read{};
  get_semantics(set_semantics(flags, &semantics) == flags ? "" : flags + 1, &read);
  require(std::memcmp(&read, &semantics, sizeof read) == 0);
  GRAMINFO attributes = gram;
  SetGrSrcAttr1(&attributes);
}

void check_text(int code, const std::string& text) {
  const char* const end = text.c_str() + text.size();
  GRAMINFO gram{};
  SEMANTICS semantics{};
  char code_out = 0;
  char latin[2] = {};
  const char* at = StrToGram(text.c_str(), &code_out, &gram, &semantics, code, latin);
  require(at >= text.c_str() && at <= end);
  at = StrToGram1(text.c_str(), &code_out, &gram, &semantics, code, latin);
  require(at >= text.c_str() && at <= end);
  at = get_semantics(text.c_str(), &semantics);
  require(at >= text.c_str() && at <= end);
}

void check_mapping(std::int16_t code, const std::string& text) {
  const char* const end = text.c_str() + text.size();
  std::uint8_t record[WORD_RECORD_SIZE] = {};
  record[WORD_RECORD_CODE] = static_cast<std::uint8_t>(code);
  for (const std::int16_t mode :
       {std::int16_t{0}, std::int16_t{1}, std::int16_t{2}, std::int16_t{3}}) {
    const char* at = er_get_wgram(mode, text.c_str(), record, code);
    require(at >= text.c_str() && at <= end);
    at = re_get_wgram(mode, text.c_str(), record, code);
    require(at >= text.c_str() && at <= end);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kRecords = sizeof(GRAMINFO) + sizeof(SEMANTICS);
  if (size < 1 + kRecords) return 0;
  GRAMINFO gram;
  SEMANTICS semantics;
  std::memcpy(&gram, data + 1, sizeof gram);
  std::memcpy(&semantics, data + 1 + sizeof gram, sizeof semantics);
  const std::string bytes(reinterpret_cast<const char*>(data) + 1 + kRecords, size - 1 - kRecords);
  const std::string text = bytes.c_str();
  check_record(data[0], gram, semantics);
  check_text(data[0], text);
  check_mapping(data[0], text);
  return 0;
}
