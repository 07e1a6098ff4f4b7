// A set of dictionaries: searches of its queue beside single look-ups, loading, and walks over all
// entries beside LMDB's cursor and cdb's sequential read.
//
// Usage: set_bench DICTIONARY.dic... [benchmark options]; bench/real_dictionaries.sh builds
// dictionaries to give it. The first one is copied for the sets; each is walked.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "bench/peers.h"
#include "kz/dic_iterator.h"
#include "kz/dic_queue.h"
#include "kz/dic_set.h"
#include "kz/dictionary.h"

namespace {

using scratch::fail;

constexpr std::size_t kQueue = 10;
constexpr std::size_t kLoaded = 6;

struct Entry {
  std::string word;
  std::string text;
};

CDicEntryIterator* open_walk(const char* path) {
  CDicEntryIterator* const walk = DicIteratorOpen(nullptr, path, nullptr, "", 0, nullptr, 0);
  if (walk == nullptr) fail(std::string("cannot open ") + path);
  return walk;
}

std::vector<Entry> read_entries(const char* path) {
  CDicEntryIterator* const walk = open_walk(path);
  std::vector<Entry> entries;
  const char* text = DicIteratorGetFirstEntry(walk, nullptr, nullptr, nullptr, nullptr, 0);
  for (; text != nullptr;
       text = DicIteratorGetNextEntry(walk, nullptr, nullptr, nullptr, nullptr)) {
    const std::string entry = text;
    entries.push_back({entry.substr(0, entry.find('*')), entry});
  }
  DicIteratorClose(walk);
  return entries;
}

// Words in random order, all of them headwords or none of them.
std::vector<std::string> shuffled(const std::vector<Entry>& entries, bool headwords) {
  std::vector<std::string> words;
  for (const Entry& entry : entries) words.push_back(entry.word + (headwords ? "" : "qq"));
  std::mt19937 random(1);
  std::shuffle(words.begin(), words.end(), random);
  return words;
}

// The dictionary under several names: a set tells dictionaries by their file names.
std::vector<std::string> copies(const std::string& path, const std::string& directory) {
  std::vector<std::string> names;
  for (std::size_t i = 0; i < kQueue; ++i) {
    names.push_back(directory + "/copy" + std::to_string(i) + "enru.dic");
    std::filesystem::copy_file(path, names.back());
  }
  return names;
}

// A queue search that no dictionary but the last can answer visits all of them, as the loop over
// single look-ups does.
void add_searches(const std::vector<std::string>& names, const std::vector<std::string>& misses) {
  for (const auto mode : std::initializer_list<std::int16_t>{0, 2, 4}) {
    CDicSys* const set = DicSysOpen(0, "ENRU", nullptr);
    std::vector<CDic*> single;
    for (const std::string& name : names) {
      LoadAllOffsets(DicQueLoad(set, DIC_APPEND, name.c_str(), mode));
      single.push_back(DicOpen(name.c_str(), mode));
      LoadAllOffsets(single.back());
    }
    const auto measure = [&misses](benchmark::State& state, auto find) {
      for (const std::string& word : misses) find(word);  // warm
      std::size_t i = 0;
      for (auto _ : state) {
        benchmark::DoNotOptimize(find(misses[i]));
        if (++i == misses.size()) i = 0;
      }
    };
    const std::string suffix = "/mode" + std::to_string(mode);
    benchmark::RegisterBenchmark(("ten_look_ups" + suffix).c_str(), [=](benchmark::State& state) {
      measure(state, [&](const std::string& word) {
        const char* found = nullptr;
        for (CDic* const dictionary : single) {
          found = DicFind(dictionary, word.c_str(), 0, 2);
          if (found != nullptr) break;
        }
        return found;
      });
    });
    benchmark::RegisterBenchmark(("queue_of_ten" + suffix).c_str(), [=](benchmark::State& state) {
      measure(state, [&](const std::string& word) {
        DicQueFirst(set, DIC_LIST_ALL, 0);
        return DicQueFind(set, DIC_LIST_ALL, word.c_str(), 0, 2);
      });
    });
  }
}

void add_loading(const std::vector<std::string>& names) {
  benchmark::RegisterBenchmark("load_set_of_six/mode0", [&names](benchmark::State& state) {
    for (auto _ : state) {
      CDicSys* const set = DicSysOpen(1, "ENRU", nullptr);
      for (std::size_t i = 0; i < kLoaded; ++i) {
        if (DicQueLoad(set, DIC_APPEND, names[i].c_str(), DIC_MODE_PLAIN) == nullptr)
          fail("cannot load " + names[i]);
      }
      DicSysClose(set);
    }
  })->Unit(benchmark::kMillisecond);
}

// Calls walk(visit) once per iteration; visit takes the size of each entry.
void add_walk(const std::string& name, auto walk) {
  benchmark::RegisterBenchmark(("walk/" + name).c_str(), [=](benchmark::State& state) {
    std::size_t bytes = 0;
    std::size_t entries = 0;
    for (auto _ : state) {
      walk([&](std::size_t size) {
        bytes += size;
        ++entries;
      });
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
    state.SetItemsProcessed(static_cast<std::int64_t>(entries));
  })->Unit(benchmark::kMillisecond);
}

void add_iterator(const char* path) {
  const std::string name = std::filesystem::path(path).stem().string();
  CDicEntryIterator* const all = open_walk(path);
  const auto bytes = static_cast<double>(std::filesystem::file_size(path));
  const auto add = [&](const std::string& kind, bool parts) {
    const auto walk = [=](auto visit) {
      static char word[DIC_ENTRY_ROOM], code[2], body[DIC_ENTRY_ROOM], extra[DIC_ENTRY_ROOM];
      char* const w = parts ? word : nullptr;
      char* const c = parts ? code : nullptr;
      char* const b = parts ? body : nullptr;
      char* const e = parts ? extra : nullptr;
      const char* record = DicIteratorGetFirstEntry(all, w, c, b, e, 0);
      for (; record != nullptr; record = DicIteratorGetNextEntry(all, w, c, b, e)) {
        visit(std::char_traits<char>::length(record) + 1);
      }
    };
    add_walk(name + kind, walk);
  };
  std::printf("%s: %.0f bytes\n", name.c_str(), bytes);
  add("/records", false);
  add("/parts", true);
}

void add_peer(const std::string& name, auto& peer) {
  add_walk(name, [&peer](auto visit) {
    static char text[DIC_ENTRY_ROOM];
    peer.walk(text, [&](std::size_t size) {
      benchmark::DoNotOptimize(text);
      visit(size + 1);
    });
  });
}

}  // namespace

int main(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  if (count < 2) fail("usage: set_bench DICTIONARY.dic... [benchmark options]");
  const scratch::Directory directory;
  const std::vector<Entry> entries = read_entries(arguments[1]);
  const std::vector<std::string> names = copies(arguments[1], directory.path());
  const std::vector<std::string> misses = shuffled(entries, false);
  add_searches(names, misses);
  add_loading(names);
  for (int i = 1; i < count; ++i) add_iterator(arguments[i]);
  peers::Cdb cdb(directory.file("entries.cdb"), entries);
  peers::Lmdb lmdb(directory.file("entries.mdb"), entries);
  add_peer("cdb", cdb);
  add_peer("lmdb", lmdb);
  benchmark::RunSpecifiedBenchmarks();
}
