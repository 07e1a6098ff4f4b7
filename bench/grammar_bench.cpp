// Reading and writing of tag strings.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
#include <vector>

#include "kz/gram_attr.h"
#include "kz/gram_codec.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;

struct Word {
  char code;
  const char* tags;
};

// Tag strings of twelve characters, of the groups that dictionaries use most.
constexpr Word words[] = {
    {'N', U"MS@aР#12a:3"_1251.data()}, {'N', "F-P@D%NAW#12"},
    {'A', U"PТqcsy-H#7б"_1251.data()}, {'V', "T-ESM3<#105a"},
    {'V', U"CВ:Дe!P1#12"_1251.data()}, {'R', "@PSM3-T?KNAx"},
};
constexpr std::size_t word_count = sizeof words / sizeof *words;

struct Read {
  GRAMINFO gram{};
  SEMANTICS semantics{};
  char code = 0;
  char area[2] = {};
};

void read(Read& to, const Word& word) {
  benchmark::DoNotOptimize(
      StrToGram(word.tags, &to.code, &to.gram, &to.semantics, word.code, to.area));
}

void parse(benchmark::State& state) {
  const Word& word = words[static_cast<std::size_t>(state.range(0))];
  Read to;
  for (auto _ : state) {
    read(to, word);
    benchmark::ClobberMemory();
  }
}

void format(benchmark::State& state) {
  const Word& word = words[static_cast<std::size_t>(state.range(0))];
  Read from;
  read(from, word);
  char out[GRAM_STRING_SIZE];
  for (auto _ : state) {
    GramToStr(word.code, &from.gram, &from.semantics, out);
    benchmark::ClobberMemory();
  }
  state.SetLabel(std::to_string(std::string(out).size()) + " characters");
}

// The words in turn, so that no branch is always taken the same way.
void parse_mixed(benchmark::State& state) {
  Read to;
  for (auto _ : state) {
    for (const Word& word : words) read(to, word);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(word_count));
}

void format_mixed(benchmark::State& state) {
  std::vector<Read> from(word_count);
  for (std::size_t i = 0; i < word_count; ++i) read(from[i], words[i]);
  char out[GRAM_STRING_SIZE];
  for (auto _ : state) {
    for (std::size_t i = 0; i < word_count; ++i) {
      GramToStr(words[i].code, &from[i].gram, &from[i].semantics, out);
    }
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(word_count));
}

void expand_attributes(benchmark::State& state) {
  const uint32_t attributes[2] = {24 | 3 << 8, 12};
  for (auto _ : state) {
    GRAMINFO gram{};
    SetGrSrcAttr(&gram, attributes);
    benchmark::DoNotOptimize(gram);
  }
}

void attribute_index(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(GetAttrNameIndex(2, "D4bopr"));
}

BENCHMARK(parse)->DenseRange(0, word_count - 1);
BENCHMARK(format)->DenseRange(0, word_count - 1);
BENCHMARK(parse_mixed);
BENCHMARK(format_mixed);
BENCHMARK(expand_attributes);
BENCHMARK(attribute_index);

}  // namespace

BENCHMARK_MAIN();
