// The longest known ending of a word, beside a hash map asked for every ending in turn.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "kz/inflection.h"
#include "text/literal.h"

using kz::operator""_1251;

namespace {

struct Sample {
  std::vector<std::string> endings;  // 2,000 of 1 to 7 letters
  std::vector<std::string> words;    // of 3 to 14 letters, half of them with such an ending
};

std::string letters(std::mt19937& random, std::size_t length) {
  // Vowels and the consonants of endings are more frequent, as they are in words.
  constexpr std::string_view kLetters = U"аааеееёжзиииййклммнноооппрсттууфхцчшщыыьюяябвгд"_1251;
  std::string text(length, ' ');
  for (char& c : text) c = kLetters[random() % kLetters.size()];
  return text;
}

Sample make_sample() {
  std::mt19937 random(1);
  std::set<std::string> endings;
  while (endings.size() < 2000) endings.insert(letters(random, 1 + random() % 7));
  Sample sample{{endings.begin(), endings.end()}, {}};
  for (int i = 0; i < 20000; ++i) {
    std::string word = letters(random, 3 + random() % 8);
    if (i % 2 == 0) word += sample.endings[random() % sample.endings.size()];
    sample.words.push_back(word);
  }
  return sample;
}

const Sample& sample() {
  static const Sample made = make_sample();
  return made;
}

template <class Find>
void find_all(benchmark::State& state, Find find) {
  std::size_t found = 0;
  for (auto _ : state) {
    for (const std::string& word : sample().words) found += find(word) != nullptr ? 1 : 0;
  }
  benchmark::DoNotOptimize(found);
  const auto words = static_cast<std::int64_t>(sample().words.size());
  state.SetItemsProcessed(state.iterations() * words);
  state.counters["per_word"] =
      benchmark::Counter(static_cast<double>(words), benchmark::Counter::kIsIterationInvariantRate |
                                                         benchmark::Counter::kInvert);
}

void inflection_table(benchmark::State& state) {
  const auto text = std::filesystem::temp_directory_path() / "kz-inflection-bench.txt";
  const auto compiled = std::filesystem::path(text).replace_extension(".Dat");
  std::ofstream file(text);
  for (const std::string& ending : sample().endings) file << ending << " NM 1 D1\n";
  file.close();
  CGrSrcWordFlex table;
  const int result = table.Load(compiled.c_str(), nullptr, 1);
  std::filesystem::remove(text);
  std::filesystem::remove(compiled);
  if (result != 0) {
    std::fprintf(stderr, "inflection_bench: cannot load %s\n", text.c_str());
    std::exit(1);
  }
  find_all(state, [&](const std::string& word) { return table.Find(word.c_str(), 0); });
}

void hash_map(benchmark::State& state) {
  std::unordered_map<std::string_view, const std::string*> map;
  for (const std::string& ending : sample().endings) map.emplace(ending, &ending);
  find_all(state, [&](const std::string& word) -> const std::string* {
    for (std::string_view ending = word; !ending.empty(); ending.remove_prefix(1)) {
      if (const auto found = map.find(ending); found != map.end()) return found->second;
    }
    return nullptr;
  });
}

BENCHMARK(inflection_table);
BENCHMARK(hash_map);

}  // namespace

BENCHMARK_MAIN();
