// Replacing of files: what becomes of the target, its status, its links, and of unfinished files.
#include "platform/replace.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <tuple>

#include "tests/support/temp_dir.h"
#include "tests/support/unprivileged.h"

namespace {

namespace fs = std::filesystem;
using kz::platform::Replacement;
using kz::platform::ReplaceOptions;
using kz::test::TempDir;
using kz::test::Unprivileged;

bool replace(const std::string& target, const ReplaceOptions& options = {}) {
  Replacement file;
  return file.begin(target.c_str(), options) && file.write("new") && file.commit();
}

struct stat status_of(const std::string& name) {
  struct stat status {};
  EXPECT_EQ(stat(name.c_str(), &status), 0) << name;
  return status;
}

using Names = std::set<std::string>;

Names names_in(const std::string& directory) {
  Names names;
  for (const auto& entry : fs::directory_iterator(directory)) names.insert(entry.path().filename());
  return names;
}

// Owner, permissions and symbolic links stay in each case; another hard link sees the new contents
// only when the file is written into.
TEST(Replace, KeepsWhatTheTargetIs) {
  if (geteuid() != 0) GTEST_SKIP() << "not the superuser";
  const struct {
    unsigned directory_mode, mode;
    uid_t owner;      // of the file
    bool privileged;  // as the superuser
    bool replaced;    // by another file; otherwise written into
  } cases[] = {{0755, 0640, 0, true, true},
               {0755, 04750, 1234, true, true},
               {0777, 0666, 1234, false, false},
               {0755, 0666, 1234, false, false},
               {01777, 0666, 1234, false, false}};
  for (const auto& c : cases) {
    SCOPED_TRACE(&c - cases);
    const TempDir dir;
    const std::string target = dir.write("target", "old contents");
    fs::create_hard_link(target, dir.file("twin"));
    fs::create_symlink("target", dir.file("link"));
    ASSERT_EQ(chown(target.c_str(), c.owner, 7), 0);
    ASSERT_EQ(chmod(target.c_str(), c.mode), 0);
    ASSERT_EQ(chmod(dir.file("").c_str(), c.directory_mode), 0);
    const struct stat before = status_of(target);
    for (const bool exclusive : {false, true}) {
      {
        const auto rights = c.privileged ? nullptr : std::make_unique<Unprivileged>();
        EXPECT_TRUE(replace(dir.file("link"), {.exclusive = exclusive}));
      }
      EXPECT_EQ(dir.read("target"), "new");
      EXPECT_EQ(dir.read("twin"), c.replaced ? "old contents" : "new");
      const struct stat after = status_of(target);
      EXPECT_EQ(after.st_mode, before.st_mode);
      EXPECT_EQ(after.st_uid, before.st_uid);
      EXPECT_EQ(after.st_gid, before.st_gid);
      EXPECT_EQ(after.st_ino != before.st_ino, c.replaced);
      EXPECT_EQ(names_in(dir.file("")), (Names{"target", "twin", "link"}));
    }
  }
}

TEST(Replace, MakesNewFilesAlsoBehindLinksThatLeadNowhere) {
  const TempDir dir;
  fs::create_symlink("second", dir.file("first"));
  fs::create_symlink(dir.file("made"), dir.file("second"));
  const mode_t mask = umask(027);
  EXPECT_TRUE(replace(dir.file("first")));
  umask(mask);
  EXPECT_EQ(dir.read("made"), "new");
  EXPECT_EQ(status_of(dir.file("made")).st_mode & 07777U, 0640U);
  EXPECT_EQ(names_in(dir.file("")), (Names{"first", "made", "second"}));
}

TEST(Replace, RefusesWithoutATrace) {
  const TempDir dir;
  chmod(dir.file("").c_str(), 0755);
  dir.write("exists", "old");
  chmod(dir.write("read-only", "old").c_str(), 0444);
  fs::create_symlink("loop", dir.file("loop"));
  fs::create_directory(dir.file("directory"));
  const std::tuple<const char*, ReplaceOptions, int> cases[] = {
      {"read-only", {}, EACCES},
      {"read-only", {.exclusive = true}, EACCES},
      {"directory", {}, EISDIR},
      {"directory", {.exclusive = true}, EISDIR},
      {"loop", {}, ELOOP},
      {"none/file", {}, ENOENT},
      {"exists/file", {}, ENOTDIR},
      {"exists", {.must_be_new = true}, EEXIST},
      {"", {}, EISDIR}};
  const Names before = names_in(dir.file(""));
  for (const auto& [name, options, error] : cases) {
    errno = 0;
    EXPECT_FALSE(replace(dir.file(name), options)) << name;
    EXPECT_EQ(errno, error) << name;
  }
  EXPECT_FALSE(replace(""));
  if (geteuid() == 0) {
    const Unprivileged rights;
    EXPECT_FALSE(replace(dir.file("new")));
    EXPECT_FALSE(replace(dir.file("exists"))) << "a file of the superuser";
  }
  EXPECT_FALSE(replace("/dev/full"));
  EXPECT_EQ(names_in(dir.file("")), before);
  EXPECT_EQ(dir.read("exists") + dir.read("read-only"), "oldold");
}

TEST(Replace, UnfinishedFilesHaveNamesOfTheirOwnAndGoWithTheirMaker) {
  const TempDir dir;
  dir.write("target", "old");
  const auto unfinished = [&] {
    Names names = names_in(dir.file(""));
    names.erase("target");
    for (const std::string& name : names) {
      EXPECT_TRUE(name.starts_with(kz::platform::kUnfinishedPrefix)) << name;
    }
    return names;
  };
  {
    Replacement first, second, third;
    for (Replacement* file : {&first, &second, &third}) {
      ASSERT_TRUE(file->begin(dir.file("target").c_str(), {}));
      ASSERT_TRUE(file->write("longer than what was there"));
    }
    EXPECT_EQ(unfinished().size(), 3u);
    EXPECT_EQ(fs::file_size(first.path()), 26u);
    EXPECT_EQ(dir.read("target"), "old");
    EXPECT_TRUE(second.commit());
    EXPECT_TRUE(first.commit());
    EXPECT_EQ(unfinished().size(), 1u);
    // Another file that got the name is not touched.
    fs::remove(third.path());
    dir.write(fs::path(third.path()).filename(), "of somebody else");
  }
  EXPECT_EQ(unfinished().size(), 1u);
  EXPECT_EQ(dir.read("target"), "longer than what was there");
}

}  // namespace
