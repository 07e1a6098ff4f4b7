// A set of dictionaries: searches of its queue beside single look-ups, loading, and walks over all
// entries beside LMDB's cursor and cdb's sequential read.
//
// Usage: set_bench DICTIONARY.dic... [benchmark options]; bench/real_dictionaries.sh builds
// dictionaries to give it. The first one is copied for the sets; each is walked.
#include <benchmark/benchmark.h>
#include <cdb.h>
#include <fcntl.h>
#include <lmdb.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "kz/dic_iterator.h"
#include "kz/dic_queue.h"
#include "kz/dic_set.h"
#include "kz/dictionary.h"

namespace {

constexpr std::int16_t kAll = 0;  // the list of every dictionary of the queue
constexpr std::size_t kQueue = 10;
constexpr std::size_t kLoaded = 6;

[[noreturn]] void fail(const std::string& what) {
  std::fprintf(stderr, "set_bench: %s\n", what.c_str());
  std::exit(1);
}

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
      LoadAllOffsets(DicQueLoad(set, -1, name.c_str(), mode));
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
        DicQueFirst(set, kAll, 0);
        return DicQueFind(set, kAll, word.c_str(), 0, 2);
      });
    });
  }
}

void add_loading(const std::vector<std::string>& names) {
  benchmark::RegisterBenchmark("load_set_of_six/mode0", [&names](benchmark::State& state) {
    for (auto _ : state) {
      CDicSys* const set = DicSysOpen(1, "ENRU", nullptr);
      for (std::size_t i = 0; i < kLoaded; ++i) {
        if (DicQueLoad(set, -1, names[i].c_str(), 0) == nullptr) fail("cannot load " + names[i]);
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

void add_cdb(const std::string& path, const std::vector<Entry>& entries) {
  const int file = open(path.c_str(), O_RDWR | O_CREAT | O_TRUNC, 0600);
  cdb_make maker;
  if (file < 0 || cdb_make_start(&maker, file) != 0) fail("cannot make " + path);
  for (const Entry& entry : entries) {
    cdb_make_add(&maker, entry.word.data(), static_cast<unsigned>(entry.word.size()),
                 entry.text.data(), static_cast<unsigned>(entry.text.size()));
  }
  if (cdb_make_finish(&maker) != 0) fail("cannot write " + path);
  static cdb database;
  if (cdb_init(&database, file) != 0) fail("cannot open " + path);
  add_walk("cdb", [](auto visit) {
    static char text[DIC_ENTRY_ROOM];
    unsigned position;
    cdb_seqinit(&position, &database);
    while (cdb_seqnext(&position, &database) > 0) {
      const unsigned size = cdb_datalen(&database);
      cdb_read(&database, text, size, cdb_datapos(&database));
      benchmark::DoNotOptimize(text);
      visit(size + 1);
    }
  });
}

void add_lmdb(const std::string& path, const std::vector<Entry>& entries) {
  MDB_env* environment = nullptr;
  MDB_txn* transaction = nullptr;
  static MDB_dbi database;
  static MDB_txn* reading;
  const auto check = [](int result) {
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
  for (const Entry& entry : entries) {
    MDB_val key = value(entry.word), data = value(entry.text);
    check(mdb_put(transaction, database, &key, &data, 0));
  }
  check(mdb_txn_commit(transaction));
  check(mdb_txn_begin(environment, nullptr, MDB_RDONLY, &reading));
  add_walk("lmdb", [](auto visit) {
    static char text[DIC_ENTRY_ROOM];
    MDB_cursor* cursor = nullptr;
    MDB_val key, data;
    mdb_cursor_open(reading, database, &cursor);
    while (mdb_cursor_get(cursor, &key, &data, MDB_NEXT) == 0) {
      std::copy_n(static_cast<const char*>(data.mv_data), data.mv_size, text);
      benchmark::DoNotOptimize(text);
      visit(data.mv_size + 1);
    }
    mdb_cursor_close(cursor);
  });
}

}  // namespace

int main(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  if (count < 2) fail("usage: set_bench DICTIONARY.dic... [benchmark options]");
  std::string directory = (std::filesystem::temp_directory_path() / "kz-bench-XXXXXX").string();
  if (mkdtemp(directory.data()) == nullptr) fail("no temporary directory");
  const std::vector<Entry> entries = read_entries(arguments[1]);
  const std::vector<std::string> names = copies(arguments[1], directory);
  const std::vector<std::string> misses = shuffled(entries, false);
  add_searches(names, misses);
  add_loading(names);
  for (int i = 1; i < count; ++i) add_iterator(arguments[i]);
  add_lmdb(directory + "/entries.mdb", entries);
  add_cdb(directory + "/entries.cdb", entries);
  benchmark::RunSpecifiedBenchmarks();
  std::filesystem::remove_all(directory);
}
