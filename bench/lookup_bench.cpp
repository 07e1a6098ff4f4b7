// Exact look-up in a real dictionary, beside cdb, LMDB and std::unordered_map on the same words.
//
// Usage: lookup_bench DICTIONARY.dic... [benchmark options]; bench/real_dictionaries.sh builds
// dictionaries to give it. All peers hold the entries of the first dictionary; words come in random
// order, all of them hits or all of them misses.
#include <benchmark/benchmark.h>
#include <cdb.h>
#include <fcntl.h>
#include <lmdb.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#include "kz/dictionary.h"

namespace {

struct Entries {
  std::vector<std::string> hits;    // every headword once, shuffled
  std::vector<std::string> misses;  // words of the same shape that are no headwords
  std::unordered_map<std::string, std::string> texts;
};

[[noreturn]] void fail(const std::string& what) {
  std::fprintf(stderr, "lookup_bench: %s\n", what.c_str());
  std::exit(1);
}

Entries read_entries(const char* path) {
  CDic* const dictionary = DicOpen(path, 0);
  if (dictionary == nullptr) fail(std::string("cannot open ") + path);
  Entries entries;
  for (const char* text = DicFind(dictionary, nullptr, 0, 2); text != nullptr;
       text = DicFindNext(dictionary, 2)) {
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
  for (const auto mode : std::initializer_list<std::int16_t>{0, 2, 4}) {
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
        for (auto _ : state) DicClose(DicOpen(path, 0));
      });
}

void add_cdb(const std::string& path, const Entries& entries) {
  const int out = open(path.c_str(), O_RDWR | O_CREAT | O_TRUNC, 0600);
  cdb_make maker;
  if (out < 0 || cdb_make_start(&maker, out) != 0) fail("cannot make " + path);
  for (const auto& [word, text] : entries.texts) {
    cdb_make_add(&maker, word.data(), static_cast<unsigned>(word.size()), text.data(),
                 static_cast<unsigned>(text.size()));
  }
  if (cdb_make_finish(&maker) != 0) fail("cannot write " + path);
  static cdb database;
  if (cdb_init(&database, out) != 0) fail("cannot open " + path);
  add("cdb", entries, [](const std::string& word) {
    if (cdb_find(&database, word.data(), static_cast<unsigned>(word.size())) <= 0) return false;
    benchmark::DoNotOptimize(cdb_getdata(&database));
    return true;
  });
}

void add_lmdb(const std::string& path, const Entries& entries) {
  MDB_env* environment = nullptr;
  MDB_txn* transaction = nullptr;
  static MDB_dbi database;
  const auto check = [&](int result) {
    if (result != 0) fail("LMDB: " + std::string(mdb_strerror(result)));
  };
  const auto value = [](const std::string& text) {
    return MDB_val{text.size(), const_cast<char*>(text.data())};
  };
  check(mdb_env_create(&environment));
  check(mdb_env_set_mapsize(environment, std::size_t{256} << 20));
  check(mdb_env_open(environment, path.c_str(), MDB_NOSUBDIR | MDB_NOSYNC, 0600));
  check(mdb_txn_begin(environment, nullptr, 0, &transaction));
  check(mdb_dbi_open(transaction, nullptr, 0, &database));
  for (const auto& [word, text] : entries.texts) {
    MDB_val key = value(word), data = value(text);
    check(mdb_put(transaction, database, &key, &data, 0));
  }
  check(mdb_txn_commit(transaction));
  static MDB_txn* reading;
  check(mdb_txn_begin(environment, nullptr, MDB_RDONLY, &reading));
  add("lmdb", entries, [value](const std::string& word) {
    MDB_val key = value(word), data;
    return mdb_get(reading, database, &key, &data) == 0;
  });
}

}  // namespace

int main(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  if (count < 2) fail("usage: lookup_bench DICTIONARY.dic... [benchmark options]");
  const Entries entries = read_entries(arguments[1]);
  std::printf("%zu headwords\n", entries.hits.size());
  for (int i = 1; i < count; ++i) add_dictionary(arguments[i], entries);

  std::string directory = (std::filesystem::temp_directory_path() / "kz-bench-XXXXXX").string();
  if (mkdtemp(directory.data()) == nullptr) fail("no temporary directory");
  add_cdb(directory + "/entries.cdb", entries);
  add_lmdb(directory + "/entries.mdb", entries);
  add("unordered_map", entries,
      [&entries](const std::string& word) { return entries.texts.contains(word); });
  benchmark::RunSpecifiedBenchmarks();
  std::filesystem::remove_all(directory);
}
