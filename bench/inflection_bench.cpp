// The longest known ending of a word, beside a hash map asked for every ending in turn, Hunspell
// with the endings as suffixes of the words' stems, and lt-proc with a transducer of any stem and
// the endings.
#include <benchmark/benchmark.h>

#include <hunspell/hunspell.hxx>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "bench/scratch.h"
#include "kz/inflection.h"
#include "text/literal.h"

using kz::operator""_1251;

namespace {

struct Sample {
  std::vector<std::string> endings;  // 2,000 of 1 to 7 letters
  std::vector<std::string> words;    // of 3 to 18 letters, half of them with such an ending
  std::set<std::string> stems;       // of those
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
  Sample sample{{endings.begin(), endings.end()}, {}, {}};
  for (int i = 0; i < 20000; ++i) {
    std::string word = letters(random, 3 + random() % 8);
    sample.stems.insert(word);
    if (i % 2 == 0) word += sample.endings[random() % sample.endings.size()];
    sample.words.push_back(word);
  }
  return sample;
}

const Sample& sample() {
  static const Sample made = make_sample();
  return made;
}

void count_words(benchmark::State& state, std::size_t words) {
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(words));
  state.counters["per_word"] =
      benchmark::Counter(static_cast<double>(words), benchmark::Counter::kIsIterationInvariantRate |
                                                         benchmark::Counter::kInvert);
}

// find(word) tells whether the word has an ending.
template <class Find>
void find_all(benchmark::State& state, Find find) {
  std::size_t found = 0;
  for (auto _ : state) {
    for (const std::string& word : sample().words) found += find(word) ? 1 : 0;
  }
  benchmark::DoNotOptimize(found);
  count_words(state, sample().words.size());
}

void inflection_table(benchmark::State& state) {
  const scratch::Directory directory;
  std::ofstream file(directory.file("endings.txt"));
  for (const std::string& ending : sample().endings) file << ending << " NM 1 D1\n";
  file.close();
  CGrSrcWordFlex table;
  if (table.Load("/endings.Dat", directory.path().c_str(), 1) != 0) scratch::fail("no table");
  find_all(state, [&](const std::string& word) { return table.Find(word.c_str(), 0) != nullptr; });
}

void hash_map(benchmark::State& state) {
  std::unordered_map<std::string_view, const std::string*> map;
  for (const std::string& ending : sample().endings) map.emplace(ending, &ending);
  find_all(state, [&](const std::string& word) {
    for (std::string_view ending = word; !ending.empty(); ending.remove_prefix(1)) {
      if (map.contains(ending)) return true;
    }
    return false;
  });
}

void hunspell(benchmark::State& state) {
  const scratch::Directory directory;
  std::ofstream suffixes(directory.file("words.aff"));
  suffixes << "SET microsoft-cp1251\nSFX A Y " << sample().endings.size() << '\n';
  for (const std::string& ending : sample().endings) suffixes << "SFX A 0 " << ending << " .\n";
  suffixes.close();
  std::ofstream stems(directory.file("words.dic"));
  stems << sample().stems.size() << '\n';
  for (const std::string& stem : sample().stems) stems << stem << "/A\n";
  stems.close();
  Hunspell checker(directory.file("words.aff").c_str(), directory.file("words.dic").c_str());
  find_all(state, [&](const std::string& word) { return checker.spell(word); });
}

// The letters of the sample as UTF-8.
std::string utf8(const std::string& text) {
  std::string result;
  for (const char c : text) {
    const unsigned letter = 0x430u + (static_cast<unsigned char>(c) - 0xE0u);
    result += {static_cast<char>(0xC0u | letter >> 6), static_cast<char>(0x80u | (letter & 0x3Fu))};
  }
  return result;
}

void run(const std::string& command) {
  if (std::system(command.c_str()) != 0) scratch::fail("failed: " + command);
}

// The program reads ten times the words, so that its start counts for little.
void lt_proc(benchmark::State& state) {
  constexpr int kTimes = 10;
  const scratch::Directory directory;
  std::string alphabet;
  for (int c = 0xE0; c <= 0xFF; ++c) alphabet += utf8(std::string(1, static_cast<char>(c)));
  std::ofstream source(directory.file("endings.dix"));
  source << "<dictionary><alphabet>" << alphabet << "</alphabet><sdefs><sdef n=\"x\"/></sdefs>"
         << "<pardefs><pardef n=\"endings\">";
  for (const std::string& ending : sample().endings) {
    source << "<e><p><l>" << utf8(ending) << "</l><r><s n=\"x\"/></r></p></e>\n";
  }
  source << "</pardef></pardefs><section id=\"words\" type=\"standard\"><e><re>[" << alphabet
         << "]*</re><par n=\"endings\"/></e></section></dictionary>";
  source.close();
  std::ofstream text(directory.file("words.txt"));
  for (int i = 0; i < kTimes; ++i) {
    for (const std::string& word : sample().words) text << utf8(word) << '\n';
  }
  text.close();
  const std::string transducer = directory.file("endings.bin");
  run("lt-comp lr " + directory.file("endings.dix") + " " + transducer + " >/dev/null");
  for (auto _ : state)
    run("lt-proc " + transducer + " " + directory.file("words.txt") + " >/dev/null");
  count_words(state, kTimes * sample().words.size());
}

BENCHMARK(inflection_table);
BENCHMARK(hash_map);
BENCHMARK(hunspell);
BENCHMARK(lt_proc)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
