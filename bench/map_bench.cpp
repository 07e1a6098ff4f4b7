// Look-up in the map beside std::unordered_map, with as many buckets as keys.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <vector>

#include "kz/map.h"

namespace {

// Words of 3 to 14 letters, in the order in which they are looked up.
std::vector<std::string> make_words(std::size_t count, unsigned seed) {
  std::mt19937 random(seed);
  std::vector<std::string> words(count);
  for (std::string& word : words) {
    word.resize(3 + random() % 12);
    for (char& c : word) c = static_cast<char>('a' + random() % 26);
  }
  return words;
}

// Half of the look-ups are hits.
std::vector<std::string> make_queries(std::vector<std::string> words) {
  const std::vector<std::string> others = make_words(words.size(), 2);
  words.insert(words.end(), others.begin(), others.end());
  std::shuffle(words.begin(), words.end(), std::mt19937(3));
  return words;
}

void report(benchmark::State& state, std::size_t queries) {
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(queries));
}

void map_lookup(benchmark::State& state) {
  const auto words = make_words(static_cast<std::size_t>(state.range(0)), 1);
  const auto queries = make_queries(words);
  ZCMapStringToOb map(1024);
  map.InitHashTable(static_cast<unsigned>(words.size()), 1);
  for (const auto& word : words) map[word.c_str()] = nullptr;
  for (auto _ : state) {
    int found = 0;
    ZCObject* value = nullptr;
    for (const auto& query : queries) found += map.Lookup(query.c_str(), value);
    benchmark::DoNotOptimize(found);
  }
  report(state, queries.size());
}

// `Key` is what the look-up is given: a std::string made beforehand, or a text of which the map
// makes one.
template <class Key>
void peer_lookup(benchmark::State& state) {
  const auto words = make_words(static_cast<std::size_t>(state.range(0)), 1);
  const auto queries = make_queries(words);
  std::unordered_map<std::string, void*> map;
  map.max_load_factor(1.0F);
  map.rehash(words.size());
  for (const auto& word : words) map[word] = nullptr;
  for (auto _ : state) {
    int found = 0;
    for (const auto& query : queries) {
      if constexpr (std::is_pointer_v<Key>) {
        found += map.contains(query.c_str()) ? 1 : 0;
      } else {
        found += map.contains(query) ? 1 : 0;
      }
    }
    benchmark::DoNotOptimize(found);
  }
  report(state, queries.size());
}

BENCHMARK(map_lookup)->Arg(1000)->Arg(50000);
BENCHMARK(peer_lookup<std::string>)->Name("unordered_map_string")->Arg(1000)->Arg(50000);
BENCHMARK(peer_lookup<const char*>)->Name("unordered_map_text")->Arg(1000)->Arg(50000);

}  // namespace

BENCHMARK_MAIN();
