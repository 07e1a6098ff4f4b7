// Conversion and change of case of Russian text, beside ICU, glibc iconv and a plain loop.
//
// Every benchmark works on a text of Russian words of the given size and counts its bytes.
#include <benchmark/benchmark.h>
#include <iconv.h>
#include <unicode/ucnv.h>

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "kz/charclass.h"
#include "kz/codepage.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;

std::string russian_text(std::size_t size) {
  constexpr std::string_view sentence =
      U"Съешь ещё этих мягких французских булок, да выпей же чаю — и «спи» спокойно. "_1251;
  std::string text;
  while (text.size() < size) text += sentence;
  text.resize(size);
  return text;
}

// Runs convert(source, destination, size) over a text of the benchmark's size.
template <typename Convert>
void run(benchmark::State& state, Convert convert) {
  const std::string source = russian_text(static_cast<std::size_t>(state.range(0)));
  std::string destination = source;
  for (auto _ : state) {
    convert(source.data(), destination.data(), source.size());
    benchmark::DoNotOptimize(destination.data());
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(state.iterations() * state.range(0));
}

void kz_ansi_to_oem(benchmark::State& state) {
  run(state, [](const char* from, char* to, std::size_t) { strruansitooem(from, to); });
}

void kz_upper_case_in_place(benchmark::State& state) {
  run(state, [](const char*, char* to, std::size_t) { strruansiupr(to); });
}

// One table access for each character up to the final zero.
void plain_loop_ansi_to_oem(benchmark::State& state) {
  std::array<char, 256> table{};
  for (int c = 0; c < 256; ++c) {
    table[static_cast<std::size_t>(c)] = static_cast<char>(_ruansitooem(c));
  }
  run(state, [&table](const char* from, char* to, std::size_t) {
    for (; *from != '\0'; ++from) *to++ = table[static_cast<unsigned char>(*from)];
    *to = '\0';
  });
}

void icu_ansi_to_oem(benchmark::State& state) {
  UErrorCode error = U_ZERO_ERROR;
  using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;
  const Converter source(ucnv_open("windows-1251", &error), ucnv_close);
  const Converter target(ucnv_open("ibm-866", &error), ucnv_close);
  run(state, [&](const char* from, char* to, std::size_t size) {
    std::array<UChar, 1024> pivot;
    UChar* pivot_source = pivot.data();
    UChar* pivot_target = pivot.data();
    UErrorCode status = U_ZERO_ERROR;
    char* out = to;
    const char* in = from;
    ucnv_convertEx(target.get(), source.get(), &out, to + size, &in, from + size, pivot.data(),
                   &pivot_source, &pivot_target, pivot.data() + pivot.size(), true, true, &status);
    if (out != to + size) state.SkipWithError("not converted");
  });
}

void iconv_ansi_to_oem(benchmark::State& state) {
  const iconv_t converter = iconv_open("CP866//TRANSLIT", "CP1251");
  run(state, [&](const char* from, char* to, std::size_t size) {
    char* in = const_cast<char*>(from);
    std::size_t left = size;
    std::size_t room = size;
    iconv(converter, &in, &left, &to, &room);
  });
  iconv_close(converter);
}

void sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(16)->Arg(1 << 10)->Arg(4 << 20);
}

BENCHMARK(kz_ansi_to_oem)->Apply(sizes);
BENCHMARK(plain_loop_ansi_to_oem)->Apply(sizes);
BENCHMARK(icu_ansi_to_oem)->Apply(sizes);
BENCHMARK(iconv_ansi_to_oem)->Apply(sizes);
BENCHMARK(kz_upper_case_in_place)->Apply(sizes);

}  // namespace

BENCHMARK_MAIN();
