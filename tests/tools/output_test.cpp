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
using ::testing::Combine;
using ::testing::HasSubstr;
using ::testing::Values;
using Arguments = std::vector<std::string>;

const std::string kTarget = "out.Dat";

struct Command {
  const char* name;
  Arguments arguments;  // the target follows
  Arguments inputs;
};

void PrintTo(const Command& command, std::ostream* out) { *out << command.name; }

const Command kBuild = {"build", {"build", "-q", "s.txt", "-o"}, {"s.txt"}};
const Command kImport = {"import",
                         {"import", "-q", "--from", "dictd", "db", "--language", "ENRU", "-o"},
                         {"db.index", "db.dict"}};
const Command kInflect = {"inflect", {"inflect", "--build", "t.txt"}, {"t.txt"}};

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
    Arguments arguments = command.arguments;
    arguments.push_back(target);
    return place_.kzdic(arguments);
  }
  void expect_no_leftovers() const {
    for (const auto& file : fs::directory_iterator(place_.path(""))) {
      EXPECT_FALSE(file.path().filename().string().starts_with(".kz")) << file;
    }
  }

  Workplace place_;
};

class OutputTable : public Outputs,
                    public ::testing::WithParamInterface<std::tuple<Command, const char*>> {
 protected:
  // Makes the target; the result waits for what is written to it.
  std::function<std::string()> make(const std::string& kind) const {
    const std::string target = place_.path(kTarget);
    if (kind == "link") fs::create_symlink("file", target);
    if (kind == "stdout") fs::create_symlink("/dev/stdout", target);
    if (kind == "file" || kind == "link") {
      const std::string file = place_.path(kind == "link" ? "file" : kTarget);
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

 private:
  static std::function<std::string()> reader(const std::function<int()>& open_end) {
    auto bytes = std::make_shared<std::future<std::string>>(
        std::async(std::launch::async, [open_end] { return read_from(open_end()); }));
    return [bytes] { return bytes->get(); };
  }
};

TEST_P(OutputTable, TargetStaysWhatItIsAndGetsTheContents) {
  const auto& [command, kind] = GetParam();
  const Outcome plain = run(command, "expected.Dat");
  ASSERT_EQ(plain.status, 0) << plain.err;
  const std::string expected = place_.read("expected.Dat");
  const auto contents = make(kind);
  struct stat before {};
  struct stat after {};
  lstat(place_.path(kTarget).c_str(), &before);
  const Outcome outcome = run(command, kTarget);
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(contents(), expected);
  ASSERT_EQ(lstat(place_.path(kTarget).c_str(), &after), 0);
  if (before.st_mode != 0) {
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_uid, before.st_uid);
  }
  if (std::string(kind) == "link") {
    EXPECT_EQ(fs::status(place_.path("file")).permissions(), fs::perms(0640));
  }
  expect_no_leftovers();
}

INSTANTIATE_TEST_SUITE_P(All, OutputTable,
                         Combine(Values(kBuild, kImport, kInflect),
                                 Values("new", "file", "link", "fifo", "socket", "stdout")),
                         [](const auto& each) {
                           return std::string(std::get<0>(each.param).name) + "_" +
                                  std::get<1>(each.param);
                         });

TEST_F(Outputs, InputsAreNotWrittenOver) {
  for (const Command& command : {kBuild, kImport, kInflect}) {
    for (const std::string& input : command.inputs) {
      const std::string bytes = place_.read(input);
      // The text beside a table is an output, too.
      for (const std::string& name : {kTarget, std::string("out.txt")}) {
        fs::create_hard_link(place_.path(input), place_.path(name));
        const bool beside = command.arguments[0] == "inflect";
        const Outcome outcome = run(command, beside ? kTarget : place_.path(name));
        EXPECT_EQ(outcome.status, 2) << input;
        EXPECT_THAT(outcome.err, HasSubstr("is an input"));
        EXPECT_EQ(place_.read(input), bytes);
        fs::remove(place_.path(name));
      }
    }
  }
}

TEST_F(Outputs, StandardOutputIsNoInputEither) {
  fs::rename(place_.path("s.txt"), place_.path("stdout"));  // where the tests send it
  const std::vector<Arguments> commands = {
      {"convert", "--from", "utf-8", "--to", "cp866", "stdout"},
      {"replace", "stdout"},
      {"dump", "stdout"},
      {"import", "--from", "dictd", "db", "-o", "-"}};
  fs::create_hard_link(place_.path("stdout"), place_.path("db.dict.dz"));
  for (const Arguments& arguments : commands) {
    EXPECT_EQ(place_.kzdic(arguments).status, 2) << arguments[0];
  }
}

TEST_F(Outputs, FullDevicesAndReadOnlyFilesAreReported) {
  fs::create_symlink("/dev/full", place_.path("full.Dat"));
  place_.write("closed.Dat", "old");
  fs::permissions(place_.path("closed.Dat"), fs::perms(0444));
  for (const Command& command : {kBuild, kImport, kInflect}) {
    for (const std::string& target : {std::string("full.Dat"), std::string("closed.Dat")}) {
      const Outcome outcome = run(command, target);
      EXPECT_EQ(outcome.status, 3) << command.name;
      EXPECT_THAT(outcome.err, HasSubstr(target + ": cannot write: "));
    }
  }
  EXPECT_EQ(place_.read("closed.Dat"), "old");
  expect_no_leftovers();
}

TEST_F(Outputs, ClosedDescriptorsAreNotTakenForFiles) {
  ASSERT_EQ(run(kBuild, "expected.dic").status, 0);
  for (const std::string closed : {"2>&-", "1>&- 2>&-", "0<&- 1>&- 2>&-"}) {
    const std::string command =
        "cd " + place_.path("") + " && " KZDIC_PATH " build s.txt -o o.dic " + closed;
    EXPECT_EQ(std::system(command.c_str()), 0);
    EXPECT_TRUE(place_.read("o.dic") == place_.read("expected.dic")) << closed;
  }
}

// The table waits for the reader of a pipe while the text beside it is unfinished.
TEST_F(Outputs, NothingUnfinishedIsLeftAfterASignal) {
  ASSERT_EQ(mkfifo(place_.path(kTarget).c_str(), 0600), 0);
  const auto files = [this] {
    return std::distance(fs::directory_iterator(place_.path("")), fs::directory_iterator());
  };
  const auto before = files();
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    const pid_t child = fork();
    if (child == 0) {
      static_cast<void>(chdir(place_.path("").c_str()));
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
