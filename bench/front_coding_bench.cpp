// Front coding of a sorted word list, beside a plain copy of the same words.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "kz/front_coding.h"

namespace {

// Sorted words made of few syllables, so that neighbours share prefixes as in a dictionary.
std::vector<std::string> make_words() {
  const char* const syllables[] = {"an",  "be",  "com", "di", "ent", "for",  "ing", "ly",
                                   "man", "ous", "per", "re", "st",  "tion", "un",  "ver"};
  std::mt19937 random(1);
  std::vector<std::string> words(50000);
  for (std::string& word : words) {
    for (auto n = 2 + random() % 4; n > 0; --n) word += syllables[random() % 16];
  }
  std::sort(words.begin(), words.end());
  return words;
}

template <class Write>
void run(benchmark::State& state, Write write) {
  const std::vector<std::string> words = make_words();
  std::size_t bytes = 0;
  for (const auto& word : words) bytes += word.size() + 1;
  std::vector<char> out(bytes + words.size() + 64);
  for (auto _ : state) {
    char* at = out.data();
    for (const auto& word : words) at += write(word.c_str(), at);
    benchmark::DoNotOptimize(at);
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

void front_coding(benchmark::State& state) {
  CGenSteno coder;
  run(state, [&](const char* word, char* out) { return coder.CodeOrfo(word, out) + 1; });
}

void string_copy(benchmark::State& state) {
  run(state, [](const char* word, char* out) { return stpcpy(out, word) - out + 1; });
}

BENCHMARK(front_coding);
BENCHMARK(string_copy);

}  // namespace

BENCHMARK_MAIN();
