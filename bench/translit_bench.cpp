// Smart transliteration of English text, beside the letter-by-letter one, ICU's and a plain copy.
#include <benchmark/benchmark.h>
#include <unicode/translit.h>
#include <unicode/unistr.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

#include "kz/translit.h"

namespace {

std::string english_text() {
  constexpr std::string_view sentence =
      "The knight who lived near the station thought that the nation of Europe would rather write "
      "four questions about the church than question its mission; such a conscious decision was "
      "typed in the Washington phone book on page 17, above a picture of a wild child. ";
  std::string text;
  while (text.size() < 1 << 20) text += sentence;
  return text;
}

// Runs write(source, destination) over a megabyte of text and counts its bytes.
template <typename Write>
void run(benchmark::State& state, Write write) {
  const std::string source = english_text();
  std::string destination(3 * source.size() + 1, '\0');
  for (auto _ : state) {
    benchmark::DoNotOptimize(write(source.c_str(), destination.data()));
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(source.size()));
}

void smart(benchmark::State& state) {
  run(state, [](const char* from, char* to) { return strtransliterateenrusmart(from, to, 0); });
}

void smart_with_capitals(benchmark::State& state) {
  run(state, [](const char* from, char* to) { return strtransliterateenrusmart(from, to, 1); });
}

void letter_by_letter(benchmark::State& state) {
  run(state, [](const char* from, char* to) { return strtransliterate(from, to, "FRRU", 0); });
}

// ICU's rules look at neighbours, too, but not at whole words.
void icu_latin_cyrillic(benchmark::State& state) {
  UErrorCode error = U_ZERO_ERROR;
  const std::unique_ptr<icu::Transliterator> rules(
      icu::Transliterator::createInstance("Latin-Cyrillic", UTRANS_FORWARD, error));
  if (U_FAILURE(error)) std::abort();
  const icu::UnicodeString source(english_text().c_str());
  for (auto _ : state) {
    icu::UnicodeString text = source;
    rules->transliterate(text);
    benchmark::DoNotOptimize(text);
  }
  state.SetBytesProcessed(state.iterations() * source.length());
}

void plain_copy(benchmark::State& state) {
  run(state, [](const char* from, char* to) { return stpcpy(to, from); });
}

BENCHMARK(smart);
BENCHMARK(smart_with_capitals);
BENCHMARK(letter_by_letter);
BENCHMARK(icu_latin_cyrillic);
BENCHMARK(plain_copy);

}  // namespace

BENCHMARK_MAIN();
