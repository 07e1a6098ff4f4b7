// Sharing modes between opens of one file, in one process and between processes.
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <optional>
#include <thread>
#include <vector>

#include "tests/common/foundation/fixture.h"

namespace {

constexpr unsigned reading = 1;
constexpr unsigned writing = 2;
constexpr unsigned both = reading | writing;

bool go_together(unsigned a, unsigned b) {
  static constexpr unsigned access[] = {reading, writing, both, reading};
  static constexpr unsigned shared[] = {0, 0, reading, writing, both, reading, reading, reading};
  return (access[a & 3] & ~shared[b >> 4 & 7]) == 0 && (access[b & 3] & ~shared[a >> 4 & 7]) == 0;
}

std::vector<unsigned> all_modes() {
  std::vector<unsigned> modes;
  for (unsigned flags = 0; flags < 0x80; ++flags)
    if ((flags & 0x0C) == 0) modes.push_back(flags);
  return modes;
}

// A process of its own that opens a file and holds it until told to end.
class Holder {
 public:
  Holder(const std::string& name, unsigned flags) {
    EXPECT_EQ(pipe(ready_) + pipe(end_), 0);
    process_ = fork();
    if (process_ == 0) {
      const ZCFile held(name.c_str(), flags);
      char byte = held != -1 ? '1' : '0';
      close(end_[1]);
      const bool told = write(ready_[1], &byte, 1) == 1 && read(end_[0], &byte, 1) == 0;
      _exit(told ? 0 : 1);  // without closing: the file is held until the process ends
    }
    char byte = '0';
    EXPECT_EQ(read(ready_[0], &byte, 1), 1);
    EXPECT_EQ(byte, '1');
  }
  ~Holder() {
    close(end_[1]);
    waitpid(process_, nullptr, 0);
    for (const int handle : {ready_[0], ready_[1], end_[0]}) close(handle);
  }

 private:
  int ready_[2];
  int end_[2];
  pid_t process_;
};

using SharingTest = FileTest;

TEST_F(SharingTest, OpensOfOneProcessAndOfTwoFollowTheRule) {
  const std::string name = write("a", "");
  for (const bool elsewhere : {false, true}) {
    for (const unsigned held : all_modes()) {
      {
        std::optional<Holder> holder;
        ZCFile first;
        if (elsewhere) {
          holder.emplace(name, held);
        } else {
          ASSERT_EQ(first.Open(name.c_str(), held), 1);
        }
        for (const unsigned wanted : all_modes()) {
          EXPECT_EQ(ZCFile(name.c_str(), wanted) != -1, go_together(held, wanted))
              << std::hex << held << " then " << wanted;
        }
      }
      EXPECT_NE(ZCFile(name.c_str(), 2), -1) << "the file is free when its holder has ended";
    }
  }
}

TEST_F(SharingTest, EveryOneOfManyHoldersIsAsked) {
  const std::string name = write("a", "");
  ZCFile writers[3];
  for (ZCFile& writer : writers) ASSERT_EQ(writer.Open(name.c_str(), 0x31), 1);
  for (ZCFile& writer : writers) {
    EXPECT_EQ(ZCFile(name.c_str(), 0x40), -1) << "the writers do not share reading";
    writer.Close();
  }
  ZCFile reader(name.c_str(), 0x40), strict_reader(name.c_str(), 0x20);
  EXPECT_EQ(ZCFile(name.c_str(), 0x41), -1);
  strict_reader.Close();
  EXPECT_NE(ZCFile(name.c_str(), 0x41), -1);
}

TEST_F(SharingTest, AHeldFileIsNotTruncatedAndCountsAsMissing) {
  const std::string name = write("a", "text");
  const ZCFile reader(name.c_str(), 0x20);
  for (const unsigned flags : {0x1002U, 0x1041U, 0x1020U}) {
    errno = 0;
    EXPECT_EQ(ZCFile(name.c_str(), flags), -1);
    EXPECT_EQ(errno, EBUSY);
  }
  EXPECT_EQ(read("a"), "text");
  const Holder holder(write("b", ""), 0x40);
  EXPECT_EQ(ZCFile().IsFileExist(file("b").c_str()), 0);
  EXPECT_EQ(ZCFile().IsFileExist(file("missing").c_str()), 0);
}

TEST_F(SharingTest, RacingOpensNeverHoldTheFileTogether) {
  const std::string name = write("a", "");
  std::atomic<int> holders{0}, successes{0};
  std::vector<std::thread> threads;
  for (unsigned t = 0; t < 4; ++t) {
    threads.emplace_back([&, access = t % 3] {
      for (int i = 0; i < 100; ++i) {
        ZCFile f(name.c_str(), access);
        if (f == -1) continue;
        EXPECT_EQ(holders.fetch_add(1), 0);
        successes.fetch_add(1);
        holders.fetch_sub(1);
        f.Close();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_GT(successes, 0);
}

}  // namespace
