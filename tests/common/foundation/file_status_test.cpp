// Status of files, and operations on files by name.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>
#include <string>

#include "tests/common/foundation/file_fixture.h"
#include "tests/support/unprivileged.h"

namespace {

void set_times(const std::string& name, std::time_t accessed, std::time_t modified) {
  const struct timespec times[] = {{accessed, 0}, {modified, 999'999'999}};
  ASSERT_EQ(utimensat(AT_FDCWD, name.c_str(), times, 0), 0);
}

using StatusTest = FileTest;

TEST_F(StatusTest, OpenAndNamedFileTellTheSameExceptTheNormalAttribute) {
  const std::string name = file("a.txt", "12345");
  set_times(name, 1'000'000'000, 1'200'000'000);
  ZCFile f(name.c_str(), 0);
  ZCFileStatus open_status;
  ZCFileStatus named_status;
  ASSERT_EQ(f.GetStatus(open_status), 1);
  ASSERT_EQ(f.GetStatus(name.c_str(), named_status), 1);
  for (const ZCFileStatus& status : {open_status, named_status}) {
    EXPECT_EQ(status.modification_time.GetTime(), 1'200'000'000);
    EXPECT_EQ(status.access_time.GetTime(), 1'000'000'000);
    EXPECT_EQ(status.size, 5U);
    EXPECT_EQ(status.full_name, name);
  }
  EXPECT_EQ(open_status.creation_time.GetTime(), named_status.creation_time.GetTime());
  EXPECT_NE(open_status.creation_time.GetTime(), 0);
  EXPECT_EQ(open_status.attribute, 0x80);
  EXPECT_EQ(named_status.attribute, 0);
}

TEST_F(StatusTest, MissingTimesAreReplacedAndLateOnesAreCut) {
  ZCFileStatus status;
  const std::string name = file("a", "");
  set_times(name, 0, 5'000'000'000);
  ASSERT_EQ(ZCFile().GetStatus(name.c_str(), status), 1);
  EXPECT_EQ(status.modification_time.GetTime(), 0x7FFFFFFF);
  EXPECT_EQ(status.access_time.GetTime(), 0x7FFFFFFF);
}

TEST_F(StatusTest, AttributesTellReadOnlyHiddenAndDirectory) {
  const std::string name = file(".hidden", "");
  ASSERT_EQ(chmod(name.c_str(), 0555), 0);
  ZCFileStatus status;
  ASSERT_EQ(ZCFile().GetStatus(name.c_str(), status), 1);
  EXPECT_EQ(status.attribute, 0x03);
  for (const char* const visible : {directory_.c_str(), ".", "..", "./"}) {
    ASSERT_EQ(ZCFile().GetStatus(visible, status), 1);
    EXPECT_EQ(status.attribute, 0x10) << visible;
  }
  std::filesystem::create_directory(path(".directory"));
  ASSERT_EQ(ZCFile().GetStatus(path(".directory/").c_str(), status), 1);
  EXPECT_EQ(status.attribute, 0x12);
}

TEST_F(StatusTest, WithoutAFileOnlyTheNameIsFilled) {
  ZCFile f;
  f.SetFilePath("some/where.txt");
  ZCFileStatus status;
  status.size = 7;
  status.creation_time = status.modification_time = status.access_time = 7;
  status.attribute = 7;
  EXPECT_EQ(f.GetStatus(status), 1);
  EXPECT_STREQ(status.full_name, "some/where.txt");
  EXPECT_EQ(status.size + status.attribute, 0U);
  for (const ZCTime& time : {status.creation_time, status.modification_time, status.access_time})
    EXPECT_EQ(time.GetTime(), 0);
  EXPECT_EQ(f.IsEmpty(), 1);
}

TEST_F(StatusTest, FailedStatusOfANameTouchesOnlyTheName) {
  ZCFileStatus status;
  status.size = 7;
  EXPECT_EQ(ZCFile().GetStatus(path("missing").c_str(), status), 0);
  EXPECT_EQ(status.full_name, path("missing"));
  EXPECT_EQ(ZCFile().GetStatus("", status), 0);
  EXPECT_STREQ(status.full_name, "");
  EXPECT_EQ(ZCFile().GetStatus(std::string(300, 'a').c_str(), status), 0);
  EXPECT_STREQ(status.full_name, "");
  EXPECT_EQ(status.size, 7U);
}

TEST_F(StatusTest, FullPathsAreAbsoluteAndResolved) {
  std::filesystem::create_directories(path("x/y"));
  std::filesystem::create_directory_symlink(path("x/y"), path("link"));
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(path("x"));
  const std::string root = directory_.string();
  ZCFile f;
  for (const auto& [name, full] : {std::pair<std::string, std::string>{"a", root + "/x/a"},
                                   {"./y/..//../b.txt", root + "/b.txt"},
                                   {"../link/../a", root + "/link/../a"},  // which is x/a
                                   {"y/", root + "/x/y/"},
                                   {"/../..", "/"},
                                   {std::string(300, 'n'), std::string(259, 'n')},
                                   {"", ""}}) {
    EXPECT_EQ(f.Open(name.c_str(), 0), 0);
    EXPECT_EQ(text(f.GetFilePath()), full) << name;
  }
  std::filesystem::current_path(before);
  const std::string longest = "/" + std::string(258, 'n');
  f.Open(longest.c_str(), 0);
  EXPECT_EQ(text(f.GetFilePath()), longest);
  EXPECT_EQ(f.GetFileName().GetLength(), 256);
}

TEST_F(StatusTest, NamesAndExtensionsAreTakenFromPaths) {
  ZCFile f;
  for (const auto& [path, name] : {std::pair{"/a/b.txt", "b.txt"},
                                   {"a\\b", "b"},
                                   {"c:d.e", "d.e"},
                                   {"plain", "plain"},
                                   {"dir/", ""}}) {
    f.SetFilePath(path);
    EXPECT_EQ(text(f.GetFileName()), name);
    EXPECT_EQ(text(f.GetFileTitle()), name);
  }
  for (const auto& [name, extension] :
       {std::pair{"a.b.txt", ".txt"}, {"none", ""}, {"", ""}, {"a.b/c", ".b/c"}, {"end.", "."}})
    EXPECT_EQ(text(f.GetExt(name)), extension);
  EXPECT_EQ(text(f.GetExt(nullptr)), "");
}

TEST_F(StatusTest, SetStatusSetsTimesOnlyWithAModificationTime) {
  const std::string name = file("a", "");
  set_times(name, 100, 200);
  ZCFileStatus status;
  const auto set = [&](std::int32_t modified, std::int32_t accessed) {
    status.attribute = 0;
    status.creation_time = 12345;
    status.modification_time = modified;
    status.access_time = accessed;
    ZCFile::SetStatus(name.c_str(), status);
    EXPECT_EQ(ZCFile().GetStatus(name.c_str(), status), 1);
  };
  set(0, 300);
  EXPECT_EQ(status.modification_time.GetTime(), 200);
  EXPECT_EQ(status.access_time.GetTime(), 100);
  set(400, 0);
  EXPECT_EQ(status.modification_time.GetTime(), 400);
  EXPECT_EQ(status.access_time.GetTime(), 100);
  set(-500, 600);
  EXPECT_EQ(status.modification_time.GetTime(), -500);
  EXPECT_EQ(status.access_time.GetTime(), 600);
  const ZCFile held(name.c_str(), 0);
  set(700, 700);
  EXPECT_EQ(status.modification_time.GetTime(), -500) << "the file is in use";
}

TEST_F(StatusTest, SetStatusOrdersAttributeAndTimes) {
  const std::string name = file("a", "");
  ASSERT_EQ(chmod(name.c_str(), 0664), 0);
  ZCFileStatus status;
  struct Case {
    std::uint8_t attribute;
    std::int32_t time;
    std::int32_t time_after;
    unsigned mode_after;
  };
  // Times reach a file that becomes read-only or stops being it, not one that stays read-only.
  for (const Case& c : {Case{0x01, 1000, 1000, 0444}, Case{0x01, 2000, 1000, 0444},
                        Case{0x00, 3000, 3000, 0644}, Case{0x20, 0, 3000, 0644}}) {
    status.attribute = c.attribute;
    status.modification_time = c.time;
    status.access_time = 0;
    status.creation_time = 0;
    ZCFile::SetStatus(name.c_str(), status);
    struct stat found;
    ASSERT_EQ(stat(name.c_str(), &found), 0);
    EXPECT_EQ(found.st_mtime, c.time_after);
    EXPECT_EQ(found.st_mode & 0777U, c.mode_after);
  }
  status.attribute = 0x01;
  ZCFile::SetStatus(directory_.c_str(), status);
  EXPECT_NE(ZCFile(path("new").c_str(), 0x1001), -1) << "directories keep their permissions";
}

TEST_F(StatusTest, CopyReplacesTheTargetWithContentsPermissionsAndTime) {
  const std::string big(200'000, 'x');
  const std::string from = file("from", big);
  set_times(from, 1, 1'000'000'000);
  ASSERT_EQ(chmod(from.c_str(), 0444), 0);
  const std::string to = file("to", "older and longer");
  std::filesystem::create_symlink(to, path("link"));
  ASSERT_EQ(ZCFile::Copy(from.c_str(), path("link").c_str()), 1);
  EXPECT_TRUE(std::filesystem::is_symlink(path("link")));
  EXPECT_EQ(contents(to), big);
  struct stat status;
  ASSERT_EQ(stat(to.c_str(), &status), 0);
  EXPECT_EQ(status.st_mtime, 1'000'000'000);
  EXPECT_EQ(status.st_mode & 0777U, 0444U);
  EXPECT_EQ(ZCFile::Copy(from.c_str(), path("new").c_str()), 1);
  EXPECT_EQ(contents(path("new")), big);
  // In place, where the directory takes no new file.
  ASSERT_EQ(chmod(file("open", "old").c_str(), 0666) + chmod(directory_.c_str(), 0555), 0);
  const kz::test::Unprivileged rights;
  EXPECT_EQ(ZCFile::Copy(from.c_str(), path("open").c_str()), 1);
  EXPECT_EQ(contents(path("open")), big);
}

TEST_F(StatusTest, FailedCopyLeavesTheTargetAndNothingElse) {
  const std::string from = file("from", "new");
  const std::string held = file("held", "old");
  const std::string read_only = file("read-only", "old");
  ASSERT_EQ(chmod(read_only.c_str(), 0400), 0);
  std::filesystem::create_hard_link(from, path("same"));
  const ZCFile holder(held.c_str(), 0x40);
  for (const std::string& to :
       {from, path("same"), held, read_only, directory_.string(), path("no/such/place")})
    EXPECT_EQ(ZCFile::Copy(from.c_str(), to.c_str()), 0) << to;
  EXPECT_EQ(ZCFile::Copy(path("missing").c_str(), path("x").c_str()), 0);
  EXPECT_EQ(ZCFile::Copy("/dev/null", path("x").c_str()), 0);
  EXPECT_EQ(contents(from), "new");
  EXPECT_EQ(contents(held), "old");
  EXPECT_EQ(contents(read_only), "old");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory_), {}), 4);
}

TEST_F(StatusTest, RenameNeverReplaces) {
  const std::string a = file("a", "a");
  const std::string b = file("b", "b");
  EXPECT_EQ(ZCFile::Rename(a.c_str(), b.c_str()), 0);
  EXPECT_EQ(contents(a) + contents(b), "ab");
  EXPECT_EQ(ZCFile::Rename(a.c_str(), path("c").c_str()), 1);
  EXPECT_EQ(contents(path("c")), "a");
  EXPECT_FALSE(std::filesystem::exists(a));
  EXPECT_EQ(ZCFile::Rename(a.c_str(), path("d").c_str()), 0);
}

TEST_F(StatusTest, RenameMovesBetweenFileSystems) {
  struct stat here;
  struct stat there;
  ASSERT_EQ(stat(directory_.c_str(), &here), 0);
  if (stat("/dev/shm", &there) != 0 || here.st_dev == there.st_dev || access("/dev/shm", W_OK) != 0)
    GTEST_SKIP() << "one file system";
  const std::string a = file("a", "a");
  const std::string target = "/dev/shm/kz-rename-" + std::to_string(getpid());
  EXPECT_EQ(ZCFile::Rename(a.c_str(), target.c_str()), 1);
  EXPECT_EQ(contents(target), "a");
  EXPECT_FALSE(std::filesystem::exists(a));
  const std::string b = file("b", "b");
  EXPECT_EQ(ZCFile::Rename(b.c_str(), target.c_str()), 0);
  EXPECT_EQ(contents(target) + contents(b), "ab");
  std::filesystem::remove(target);
}

TEST_F(StatusTest, RemoveTakesFilesOnly) {
  EXPECT_EQ(ZCFile::Remove(file("a", "").c_str()), 1);
  EXPECT_EQ(ZCFile::Remove(path("a").c_str()), 0);
  std::filesystem::create_directory(path("empty"));
  EXPECT_EQ(ZCFile::Remove(path("empty").c_str()), 0);
  EXPECT_TRUE(std::filesystem::exists(path("empty")));
}

TEST_F(StatusTest, EmptinessFollowsTheSize) {
  ZCFile f(file("a", "").c_str(), 0x42);
  EXPECT_EQ(f.IsEmpty(), 1);
  f.WriteString("x");
  EXPECT_EQ(f.IsEmpty(), 0);
  EXPECT_EQ(f.IsEmpty(path("a").c_str()), 0);
  EXPECT_EQ(f.IsEmpty(path("missing").c_str()), 1);
}

TEST_F(StatusTest, MakeTempGoesThroughItsNames) {
  const auto made = [&] {
    std::string name = path("tXXXXXX");
    return ZCFile().MakeTemp(name.data()) == name.data() ? name : "";
  };
  EXPECT_EQ(made(), path("t000001"));
  file("t000001", "");
  EXPECT_EQ(made(), path("ta00001"));
  for (char letter = 'a'; letter <= 'z'; ++letter) file(std::string("t") + letter + "00001", "");
  EXPECT_EQ(made(), "");
  std::filesystem::remove(path("tq00001"));
  EXPECT_EQ(made(), path("tq00001"));
}

TEST_F(StatusTest, MakeTempWantsExactlySixX) {
  for (const auto& [pattern, left] : {std::pair<std::string, std::string>{"aXXXXX", "a00001"},
                                      {"XXXXXXX", "0000001"},
                                      {"XXXXXXa", "XXXXXXa"},
                                      {"", ""}}) {
    std::string name = pattern;
    EXPECT_EQ(ZCFile().MakeTemp(name.data()), nullptr);
    EXPECT_EQ(name, left);
  }
}

}  // namespace
