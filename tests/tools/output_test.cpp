// The files that kzdic writes: what becomes of targets of all kinds, and what is refused.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <functional>
#include <future>
#include <iterator>
#include <sstream>
#include <thread>

#include "tests/tools/kzdic_run.h"

namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

const std::string kTarget = "out.Dat";

struct Command {
  const char* arguments;  // the target follows
  std::vector<std::string> inputs;
};

const Command kCommands[] = {
    {"build -q s.txt -o ", {"s.txt"}},
    {"import -q --from dictd db --language ENRU -o ", {"db.index", "db.dict"}},
    {"inflect --build t.txt ", {"t.txt"}}};

std::string read_from(int handle) {
  std::string bytes;
  char piece[4096];
  for (ssize_t n; (n = read(handle, piece, sizeof piece)) > 0;) {
    bytes.append(piece, static_cast<std::size_t>(n));
  }
  close(handle);
  return bytes;
}

class Outputs : public ::testing::Test {
 protected:
  Outputs() {
    place_.write("s.txt", "*: language ENRU\ncat*Nкот\n");
    place_.write("db.index", "cat\tA\tT\n");
    place_.write("db.dict", "cat /kæt/ <n>\nкот\n");
    place_.write("t.txt", "ами NM 1\n");
  }

  Outcome run(const Command& command, const std::string& target) const {
    return place_.kzdic(command.arguments + target);
  }
  void expect_no_leftovers() const {
    for (const auto& file : fs::directory_iterator(place_.file(""))) {
      EXPECT_FALSE(file.path().filename().string().starts_with(".kz")) << file;
    }
  }

  // Makes the target; the result waits for what is written to it.
  std::function<std::string()> make(const std::string& kind) const {
    const std::string target = place_.file(kTarget);
    if (kind == "link") fs::create_symlink("file", target);
    if (kind == "stdout") fs::create_symlink("/dev/stdout", target);
    if (kind == "file" || kind == "link") {
      const std::string file = place_.file(kind == "link" ? "file" : kTarget);
      place_.write(kind == "link" ? "file" : kTarget, "what was here before, and was longer");
      EXPECT_EQ(chmod(file.c_str(), 0640), 0);
      EXPECT_TRUE(geteuid() != 0 || chown(file.c_str(), 1234, 7) == 0);
    }
    if (kind == "fifo") {
      EXPECT_EQ(mkfifo(target.c_str(), 0600), 0);
      return reader([target] { return open(target.c_str(), O_RDONLY); });
    }
    if (kind == "socket") {
      const int server = socket(AF_UNIX, SOCK_STREAM, 0);
      struct sockaddr_un address {};
      address.sun_family = AF_UNIX;
      target.copy(address.sun_path, sizeof address.sun_path - 1);
      EXPECT_EQ(bind(server, reinterpret_cast<struct sockaddr*>(&address), sizeof address), 0);
      EXPECT_EQ(listen(server, 1), 0);
      return reader([server] { return accept(server, nullptr, nullptr); });
    }
    if (kind == "stdout") return [this] { return place_.read("stdout"); };
    return [this] { return place_.read(kTarget); };
  }

  static std::function<std::string()> reader(const std::function<int()>& open_end) {
    auto bytes = std::make_shared<std::future<std::string>>(
        std::async(std::launch::async, [open_end] { return read_from(open_end()); }));
    return [bytes] { return bytes->get(); };
  }

  Workplace place_;
};

TEST_F(Outputs, TargetStaysWhatItIsAndGetsTheContents) {
  for (const Command& command : kCommands) {
    ASSERT_EQ(run(command, "expected.Dat").status, 0);
    for (const std::string kind : {"new", "file", "link", "fifo", "socket", "stdout"}) {
      SCOPED_TRACE(command.arguments + kind);
      const auto contents = make(kind);
      struct stat before {};
      struct stat after {};
      lstat(place_.file(kTarget).c_str(), &before);
      const Outcome outcome = run(command, kTarget);
      EXPECT_EQ(outcome.status, 0) << outcome.err;
      EXPECT_EQ(contents(), place_.read("expected.Dat"));
      ASSERT_EQ(lstat(place_.file(kTarget).c_str(), &after), 0);
      if (kind != "new") {
        EXPECT_EQ(after.st_mode, before.st_mode);
        EXPECT_EQ(after.st_uid, before.st_uid);
      }
      if (kind == "link") {
        EXPECT_EQ(fs::status(place_.file("file")).permissions(), fs::perms(0640));
      }
      expect_no_leftovers();
      fs::remove(place_.file(kTarget));
      fs::remove(place_.file("file"));
    }
  }
}

TEST_F(Outputs, InputsAreNotWrittenOver) {
  for (const Command& command : kCommands) {
    for (const std::string& input : command.inputs) {
      const std::string bytes = place_.read(input);
      // The text beside a table is an output, too.
      for (const std::string& name : {kTarget, std::string("out.txt")}) {
        fs::create_hard_link(place_.file(input), place_.file(name));
        const bool beside = command.inputs[0] == "t.txt";
        const Outcome outcome = run(command, beside ? kTarget : place_.file(name));
        EXPECT_EQ(outcome.status, 2) << input;
        EXPECT_THAT(outcome.err, HasSubstr("is an input"));
        EXPECT_EQ(place_.read(input), bytes);
        fs::remove(place_.file(name));
      }
    }
  }
}

TEST_F(Outputs, StandardOutputIsNoInputEither) {
  fs::rename(place_.file("s.txt"), place_.file("stdout"));  // where the tests send it
  fs::create_hard_link(place_.file("stdout"), place_.file("db.dict.dz"));
  for (const char* command : {"convert --from utf-8 --to cp866 stdout", "replace stdout",
                              "dump stdout", "import --from dictd db -o -"}) {
    EXPECT_EQ(place_.kzdic(command).status, 2) << command;
  }
}

TEST_F(Outputs, FullDevicesAndReadOnlyFilesAreReported) {
  fs::create_symlink("/dev/full", place_.file("full.Dat"));
  place_.write("closed.Dat", "old");
  fs::permissions(place_.file("closed.Dat"), fs::perms(0444));
  for (const Command& command : kCommands) {
    for (const std::string& target : {std::string("full.Dat"), std::string("closed.Dat")}) {
      const Outcome outcome = run(command, target);
      EXPECT_EQ(outcome.status, 3) << command.arguments;
      EXPECT_THAT(outcome.err, HasSubstr(target + ": cannot write: "));
    }
  }
  EXPECT_EQ(place_.read("closed.Dat"), "old");
  expect_no_leftovers();
}

TEST_F(Outputs, ClosedDescriptorsAreNotTakenForFiles) {
  ASSERT_EQ(run(kCommands[0], "expected.dic").status, 0);
  for (const std::string closed : {"2>&-", "1>&- 2>&-", "0<&- 1>&- 2>&-"}) {
    EXPECT_EQ(place_.kzdic("build s.txt -o o.dic " + closed).status, 0);
    EXPECT_TRUE(place_.read("o.dic") == place_.read("expected.dic")) << closed;
  }
}

// The table waits for the reader of a pipe while the text beside it is unfinished.
TEST_F(Outputs, NothingUnfinishedIsLeftAfterASignal) {
  ASSERT_EQ(mkfifo(place_.file(kTarget).c_str(), 0600), 0);
  const auto files = [this] {
    return std::distance(fs::directory_iterator(place_.file("")), fs::directory_iterator());
  };
  const auto before = files();
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    const pid_t child = fork();
    if (child == 0) {
      static_cast<void>(chdir(place_.file("").c_str()));
      execl(KZDIC_PATH, "kzdic", "inflect", "--build", "t.txt", kTarget.c_str(), nullptr);
      _exit(127);
    }
    int status = 0;
    while (files() == before && waitpid(child, &status, WNOHANG) == 0) std::this_thread::yield();
    kill(child, signal);
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << status;
    EXPECT_EQ(files(), before);
  }
}

}  // namespace
