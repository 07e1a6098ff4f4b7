// Exact look-up in a real dictionary, beside cdb, LMDB and std::unordered_map on the same words.
//
// Usage: lookup_bench DICTIONARY.dic... [benchmark options]; bench/real_dictionaries.sh builds
// dictionaries to give it. All peers hold the entries of the first dictionary; words come in random
// order, all of them hits or all of them misses.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#include "bench/peers.h"
#include "kz/dictionary.h"

namespace {

using scratch::fail;

struct Entries {
  std::vector<std::string> hits;    // every headword once, shuffled
  std::vector<std::string> misses;  // words of the same shape that are no headwords
  std::unordered_map<std::string, std::string> texts;
};

Entries read_entries(const char* path) {
  CDic* const dictionary = DicOpen(path, DIC_MODE_PLAIN);
  if (dictionary == nullptr) fail(std::string("cannot open ") + path);
  Entries entries;
  for (const char* text = DicFind(dictionary, nullptr, DIC_SEARCH_EXACT, DIC_LEVEL_FULL);
       text != nullptr; text = DicFindNext(dictionary, DIC_LEVEL_FULL)) {
    const std::string entry = text;
    const std::string word = entry.substr(0, entry.find('*'));
    if (entries.texts.emplace(word, entry).second) entries.hits.push_back(word);
  }
  DicClose(dictionary);
  std::mt19937 random(1);
  std::shuffle(entries.hits.begin(), entries.hits.end(), random);
  for (std::string word : entries.hits) {
    std::swap(word[word.size() / 2], word[word.size() - 1]);
    word += "ed";
    if (!entries.texts.contains(word)) entries.misses.push_back(word);
  }
  return entries;
}

// Calls find(word) for one word after the other and counts what it found.
template <typename Find>
void look_up(benchmark::State& state, const std::vector<std::string>& words, Find find) {
  std::size_t i = 0;
  std::size_t found = 0;
  std::size_t asked = 0;
  for (const std::string& word : words) benchmark::DoNotOptimize(find(word));  // warm
  for (const std::string& word : words) benchmark::DoNotOptimize(find(word));
  for (auto _ : state) {
    found += find(words[i]) ? 1 : 0;
    ++asked;
    if (++i == words.size()) i = 0;
  }
  state.counters["found"] = static_cast<double>(found) / static_cast<double>(asked);
}

void add(const std::string& name, const Entries& entries, auto find) {
  benchmark::RegisterBenchmark((name + "/hit").c_str(), [=, &entries](benchmark::State& state) {
    look_up(state, entries.hits, find);
  });
  benchmark::RegisterBenchmark((name + "/miss").c_str(), [=, &entries](benchmark::State& state) {
    look_up(state, entries.misses, find);
  });
}

void add_dictionary(const char* path, const Entries& entries) {
  for (const auto mode :
       std::initializer_list<std::int16_t>{DIC_MODE_PLAIN, DIC_MODE_CACHE_ALL, DIC_MODE_CACHE}) {
    CDic* const dictionary = DicOpen(path, mode);
    if (dictionary == nullptr) fail(std::string("cannot open ") + path);
    LoadAllOffsets(dictionary);
    const std::string name = std::filesystem::path(path).stem().string();
    add("kz/" + name + "/mode" + std::to_string(mode), entries,
        [dictionary](const std::string& word) {
          return DicFind(dictionary, word.c_str(), 0, 2) != nullptr;
        });
  }
  benchmark::RegisterBenchmark(
      ("kz/" + std::filesystem::path(path).stem().string() + "/open_close").c_str(),
      [path](benchmark::State& state) {
        for (auto _ : state) DicClose(DicOpen(path, DIC_MODE_PLAIN));
      });
}

}  // namespace

int main(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  if (count < 2) fail("usage: lookup_bench DICTIONARY.dic... [benchmark options]");
  const Entries entries = read_entries(arguments[1]);
  std::printf("%zu headwords\n", entries.hits.size());
  for (int i = 1; i < count; ++i) add_dictionary(arguments[i], entries);

  const scratch::Directory directory;
  peers::Cdb cdb(directory.file("entries.cdb"), entries.texts);
  peers::Lmdb lmdb(directory.file("entries.mdb"), entries.texts);
  add("cdb", entries, [&cdb](const std::string& word) { return cdb.find(word) != nullptr; });
  add("lmdb", entries, [&lmdb](const std::string& word) { return lmdb.find(word) != nullptr; });
  add("unordered_map", entries,
      [&entries](const std::string& word) { return entries.texts.contains(word); });
  benchmark::RunSpecifiedBenchmarks();
}
