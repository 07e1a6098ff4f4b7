// Copies and changes of ZCString beside std::shared_ptr<std::string> and std::string.
#include <benchmark/benchmark.h>

#include <condition_variable>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "kz/string.h"

namespace {

// In a process of one thread the standard library counts references without atomic operations. A
// second thread, asleep, makes it count as it does in a translation engine.
class SleepingThread {
 public:
  ~SleepingThread() {
    {
      const std::lock_guard lock(mutex_);
      stop_ = true;
    }
    stopped_.notify_one();
    thread_.join();
  }

 private:
  std::mutex mutex_;
  std::condition_variable stopped_;
  bool stop_ = false;
  std::thread thread_{[this] {
    std::unique_lock lock(mutex_);
    stopped_.wait(lock, [this] { return stop_; });
  }};
};

std::string text(const benchmark::State& state) {
  return std::string(static_cast<std::size_t>(state.range(0)), 'a');
}

template <typename String>
void copy_and_destroy(benchmark::State& state, const String& source) {
  for (auto _ : state) {
    String copy(source);
    benchmark::DoNotOptimize(copy);
  }
}

void copy_zcstring(benchmark::State& state) {
  copy_and_destroy(state, ZCString(text(state).c_str()));
}
void copy_shared_ptr(benchmark::State& state) {
  copy_and_destroy(state, std::make_shared<std::string>(text(state)));
}
void copy_std_string(benchmark::State& state) { copy_and_destroy(state, text(state)); }

template <typename String>
void append_in_place(benchmark::State& state, String& string) {
  for (auto _ : state) {
    string = "";
    for (int i = 0; i < 100; ++i) string += "word";
    benchmark::DoNotOptimize(string);
  }
}

void append_zcstring(benchmark::State& state) {
  ZCString string;
  string.GetBuffer(400);
  append_in_place(state, string);
}
void append_std_string(benchmark::State& state) {
  std::string string;
  append_in_place(state, string);
}

void format_zcstring(benchmark::State& state) {
  ZCString string;
  while (state.KeepRunning()) string.Format("%s: %d of %d", "dictionary", 17, 46000);
}
void format_snprintf(benchmark::State& state) {
  std::string string(100, '\0');
  while (state.KeepRunning()) {
    std::snprintf(string.data(), string.size(), "%s: %d of %d", "dictionary", 17, 46000);
    benchmark::DoNotOptimize(string);
  }
}

BENCHMARK(copy_zcstring)->Arg(8)->Arg(100)->Arg(10000);
BENCHMARK(copy_shared_ptr)->Arg(8)->Arg(100)->Arg(10000);
BENCHMARK(copy_std_string)->Arg(8)->Arg(100)->Arg(10000);
BENCHMARK(append_zcstring);
BENCHMARK(append_std_string);
BENCHMARK(format_zcstring);
BENCHMARK(format_snprintf);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const SleepingThread sleeping_thread;
  benchmark::RunSpecifiedBenchmarks();
}
