// Replacement of 100 listed words in a text, beside a copy of it and a loop over the lines.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kz/replace_buffer.h"
#include "text/literal.h"

using kz::operator""_1251;

namespace {

struct Sample {
  std::string list;
  std::vector<std::pair<std::string, std::string>> words;
  std::string text;  // a listed word in ten
};

std::string make_word(std::mt19937& random) {
  constexpr std::string_view kSyllables[] = {U"во"_1251,  U"да"_1251, U"ко"_1251,   U"ла"_1251,
                                             U"мо"_1251,  U"не"_1251, U"пере"_1251, U"ри"_1251,
                                             U"ста"_1251, U"то"_1251, U"ход"_1251,  U"чи"_1251};
  std::string word;
  for (auto n = 2 + random() % 4; n > 0; --n) word += kSyllables[random() % 12];
  return word;
}

Sample make_sample(std::size_t size) {
  std::mt19937 random(1);
  Sample sample;
  for (int i = 0; i < 100; ++i) {
    sample.words.emplace_back(make_word(random), make_word(random));
    sample.list += sample.words.back().first + '=' + sample.words.back().second + "\r\n";
  }
  while (sample.text.size() < size) {
    sample.text += random() % 10 == 0 ? sample.words[random() % 100].first : make_word(random);
    sample.text += random() % 12 == 0 ? ".\n" : " ";
  }
  return sample;
}

const Sample& sample() {
  static const Sample made = make_sample(10'000'000);
  return made;
}

void count_bytes(benchmark::State& state, std::size_t size) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(size));
}

void change_text(benchmark::State& state) {
  CFindBuffer buffer(0);
  buffer.SetBuffer(sample().list.c_str());
  std::vector<char> output(4 * sample().text.size());
  for (auto _ : state) ChangeWord(&buffer, sample().text.c_str(), output.data());
  count_bytes(state, sample().text.size());
}

// The same text, line by line, as a filter has it.
void change_lines(benchmark::State& state) {
  CFindBuffer buffer(0);
  buffer.SetBuffer(sample().list.c_str());
  std::vector<std::string> lines(1);
  for (const char c : sample().text) {
    if (c == '\n') {
      lines.emplace_back();
    } else {
      lines.back() += c;
    }
  }
  std::vector<char> output(65536);
  for (auto _ : state) {
    for (const std::string& line : lines) ChangeWord(&buffer, line.c_str(), output.data());
  }
  count_bytes(state, sample().text.size());
}

void every_line_at_every_position(benchmark::State& state) {
  const std::string_view text = std::string_view(sample().text).substr(0, 1'000'000);
  std::string output;
  for (auto _ : state) {
    output.clear();
    for (std::size_t at = 0; at < text.size();) {
      const auto stands_here = [&](const auto& pair) {
        return text.compare(at, pair.first.size(), pair.first) == 0;
      };
      const auto found = std::find_if(sample().words.begin(), sample().words.end(), stands_here);
      if (found != sample().words.end()) {
        output += found->second;
        at += found->first.size();
      } else {
        output += text[at++];
      }
    }
  }
  count_bytes(state, text.size());
}

void copy(benchmark::State& state) {
  std::vector<char> output(sample().text.size() + 1);
  for (auto _ : state) {
    std::strcpy(output.data(), sample().text.c_str());
    benchmark::ClobberMemory();
  }
  count_bytes(state, sample().text.size());
}

BENCHMARK(change_text);
BENCHMARK(change_lines);
BENCHMARK(every_line_at_every_position);
BENCHMARK(copy);

}  // namespace

BENCHMARK_MAIN();
