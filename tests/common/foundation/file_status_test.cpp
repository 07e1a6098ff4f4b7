// Status of files, and operations on files by name.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>
#include <string>
#include <utility>

#include "tests/common/foundation/fixture.h"
#include "tests/support/unprivileged.h"

namespace {

namespace fs = std::filesystem;
using StatusTest = FileTest;
using Times = std::pair<std::int32_t, std::int32_t>;  // of the last change and the last access

void set_times(const std::string& name, std::time_t accessed, std::time_t modified) {
  const struct timespec times[] = {{accessed, 0}, {modified, 999'999'999}};
  ASSERT_EQ(utimensat(AT_FDCWD, name.c_str(), times, 0), 0);
}

Times times_of(const ZCFileStatus& status) {
  return {status.modification_time.GetTime(), status.access_time.GetTime()};
}

ZCFileStatus status_of(const std::string& name) {
  ZCFileStatus status;
  EXPECT_EQ(ZCFile().GetStatus(name.c_str(), status), 1);
  return status;
}

TEST_F(StatusTest, OpenAndNamedFileTellTheSameExceptTheNormalAttribute) {
  const std::string name = write("a.txt", "12345");
  set_times(name, 1'000'000'000, 1'200'000'000);
  ZCFileStatus open_status;
  ASSERT_EQ(ZCFile(name.c_str(), 0).GetStatus(open_status), 1);
  const ZCFileStatus named_status = status_of(name);
  for (const ZCFileStatus& status : {open_status, named_status}) {
    EXPECT_EQ(times_of(status), Times(1'200'000'000, 1'000'000'000));
    EXPECT_EQ(status.size, 5U);
    EXPECT_EQ(status.full_name, name);
  }
  EXPECT_EQ(open_status.creation_time.GetTime(), named_status.creation_time.GetTime());
  EXPECT_NE(open_status.creation_time.GetTime(), 0);
  EXPECT_EQ(open_status.attribute, 0x80);
  EXPECT_EQ(named_status.attribute, 0);
  set_times(name, 0, 5'000'000'000);  // a missing time is replaced, a late one is cut
  EXPECT_EQ(times_of(status_of(name)), Times(0x7FFFFFFF, 0x7FFFFFFF));
}

TEST_F(StatusTest, AttributesTellReadOnlyHiddenAndDirectory) {
  ASSERT_EQ(chmod(write(".hidden", "").c_str(), 0555), 0);
  fs::create_directory(file(".directory"));
  for (const auto& [name, attribute] : {std::pair{file(".hidden"), 0x03},
                                        {directory().string(), 0x10},
                                        {".", 0x10},
                                        {"..", 0x10},
                                        {"./", 0x10},
                                        {file(".directory/"), 0x12}})
    EXPECT_EQ(status_of(name).attribute, attribute) << name;
}

TEST_F(StatusTest, WithoutAFileOnlyTheNameIsFilled) {
  ZCFile f;
  f.SetFilePath("some/where.txt");
  ZCFileStatus status;
  const auto fill = [&] {
    status.creation_time = status.modification_time = status.access_time = 7;
    status.size = status.attribute = 7;
  };
  fill();
  EXPECT_EQ(f.GetStatus(status), 1);
  EXPECT_STREQ(status.full_name, "some/where.txt");
  EXPECT_EQ(status.size + status.attribute, 0U);
  EXPECT_EQ(status.creation_time.GetTime(), 0);
  EXPECT_EQ(times_of(status), Times(0, 0));
  fill();
  for (const auto& [name, full] :
       {std::pair{file("missing"), file("missing")}, {"", ""}, {std::string(300, 'a'), ""}}) {
    EXPECT_EQ(ZCFile().GetStatus(name.c_str(), status), 0);
    EXPECT_EQ(status.full_name, full);
  }
  EXPECT_EQ(status.size, 7U);
}

TEST_F(StatusTest, FullPathsAreAbsoluteAndResolved) {
  fs::create_directories(file("x/y"));
  fs::create_directory_symlink(file("x/y"), file("link"));
  const fs::path before = fs::current_path();
  fs::current_path(file("x"));
  const std::string longest = "/" + std::string(258, 'n');
  ZCFile f;
  for (const auto& [name, full] : {std::pair<std::string, std::string>{"a", file("x/a")},
                                   {"./y/..//../b.txt", file("b.txt")},
                                   {"../link/../a", file("link/../a")},  // which is x/a
                                   {"y/", file("x/y/")},
                                   {"/../..", "/"},
                                   {std::string(300, 'n'), std::string(259, 'n')},
                                   {"", ""},
                                   {longest, longest}}) {
    EXPECT_EQ(f.Open(name.c_str(), 0), 0);
    EXPECT_EQ(text(f.GetFilePath()), full) << name;
  }
  EXPECT_EQ(f.GetFileName().GetLength(), 256);
  fs::current_path(before);
}

TEST_F(StatusTest, NamesAndExtensionsAreTakenFromPaths) {
  ZCFile f;
  const std::pair<const char*, const char*> names[] = {
      {"/a/b.txt", "b.txt"}, {"a\\b", "b"}, {"c:d.e", "d.e"}, {"plain", "plain"}, {"dir/", ""}};
  for (const auto& [path, name] : names) {
    f.SetFilePath(path);
    EXPECT_EQ(text(f.GetFileName()), name);
    EXPECT_EQ(text(f.GetFileTitle()), name);
  }
  const std::pair<const char*, const char*> extensions[] = {
      {"a.b.txt", ".txt"}, {"none", ""}, {"", ""}, {"a.b/c", ".b/c"}, {"end.", "."}, {nullptr, ""}};
  for (const auto& [name, extension] : extensions) EXPECT_EQ(text(f.GetExt(name)), extension);
}

TEST_F(StatusTest, SetStatusSetsTimesOnlyWithAModificationTime) {
  const std::string name = write("a", "");
  set_times(name, 100, 200);
  const auto times_after = [&](Times set) {
    ZCFileStatus status;
    status.attribute = 0;
    status.creation_time = 12345;
    status.modification_time = set.first;
    status.access_time = set.second;
    ZCFile::SetStatus(name.c_str(), status);
    return times_of(status_of(name));
  };
  EXPECT_EQ(times_after({0, 300}), Times(200, 100));
  EXPECT_EQ(times_after({400, 0}), Times(400, 100));
  EXPECT_EQ(times_after({-500, 600}), Times(-500, 600));
  const ZCFile held(name.c_str(), 0);
  EXPECT_EQ(times_after({700, 700}), Times(-500, 600)) << "the file is in use";
}

TEST_F(StatusTest, SetStatusOrdersAttributeAndTimes) {
  const std::string name = write("a", "");
  ASSERT_EQ(chmod(name.c_str(), 0664), 0);
  ZCFileStatus status;
  status.access_time = status.creation_time = 0;
  const struct {
    std::uint8_t attribute;
    std::int32_t time, time_after;
    unsigned mode_after;
  } cases[] = {{0x01, 1000, 1000, 0444},  // times reach a file that becomes read-only
               {0x01, 2000, 1000, 0444},  // or stops being it, not one that stays so
               {0x00, 3000, 3000, 0644},
               {0x20, 0, 3000, 0644}};
  for (const auto& c : cases) {
    status.attribute = c.attribute;
    status.modification_time = c.time;
    ZCFile::SetStatus(name.c_str(), status);
    struct stat found;
    ASSERT_EQ(stat(name.c_str(), &found), 0);
    EXPECT_EQ(found.st_mtime, c.time_after);
    EXPECT_EQ(found.st_mode & 0777U, c.mode_after);
  }
  status.attribute = 0x01;
  ZCFile::SetStatus(directory().c_str(), status);
  EXPECT_NE(ZCFile(file("new").c_str(), 0x1001), -1) << "directories keep their permissions";
}

TEST_F(StatusTest, CopyReplacesTheTargetWithContentsPermissionsAndTime) {
  const std::string big(200'000, 'x');
  const std::string from = write("from", big);
  set_times(from, 1, 1'000'000'000);
  ASSERT_EQ(chmod(from.c_str(), 0444), 0);
  fs::create_symlink(write("to", "older and longer"), file("link"));
  ASSERT_EQ(chmod(write("open", "old").c_str(), 0666), 0);
  const auto copy_to = [&](const char* name) {
    EXPECT_EQ(ZCFile::Copy(from.c_str(), file(name).c_str()), 1);
    EXPECT_EQ(read(name), big);
  };
  copy_to("link");
  copy_to("new");
  EXPECT_TRUE(fs::is_symlink(file("link")));
  struct stat status;
  ASSERT_EQ(stat(file("to").c_str(), &status), 0);
  EXPECT_EQ(status.st_mtime, 1'000'000'000);
  EXPECT_EQ(status.st_mode & 0777U, 0444U);
  // In place, where the directory takes no new file.
  ASSERT_EQ(chmod(directory().c_str(), 0555), 0);
  const kz::test::Unprivileged rights;
  copy_to("open");
}

TEST_F(StatusTest, FailedCopyLeavesTheTargetAndNothingElse) {
  const std::string from = write("from", "new"), held = write("held", "old");
  const std::string read_only = write("read-only", "old");
  ASSERT_EQ(chmod(read_only.c_str(), 0400), 0);
  fs::create_hard_link(from, file("same"));
  const ZCFile holder(held.c_str(), 0x40);
  for (const std::string& to :
       {from, file("same"), held, read_only, directory().string(), file("no/such/place")})
    EXPECT_EQ(ZCFile::Copy(from.c_str(), to.c_str()), 0) << to;
  EXPECT_EQ(ZCFile::Copy(file("missing").c_str(), file("x").c_str()), 0);
  EXPECT_EQ(ZCFile::Copy("/dev/null", file("x").c_str()), 0);
  EXPECT_EQ(read("from") + read("held") + read("read-only"), "newoldold");
  EXPECT_EQ(std::distance(fs::directory_iterator(directory()), {}), 4);
}

TEST_F(StatusTest, RenameMovesAlsoBetweenFileSystemsAndNeverReplaces) {
  const std::string a = file("a"), b = write("b", "b");
  for (const std::string& target : {file("c"), "/dev/shm/kz-rename-" + std::to_string(getpid())}) {
    if (access(fs::path(target).parent_path().c_str(), W_OK) != 0) continue;
    write("a", "a");
    EXPECT_EQ(ZCFile::Rename(a.c_str(), target.c_str()), 1);
    EXPECT_FALSE(fs::exists(a));
    EXPECT_EQ(ZCFile::Rename(a.c_str(), file("d").c_str()), 0);
    EXPECT_EQ(ZCFile::Rename(b.c_str(), target.c_str()), 0);
    EXPECT_EQ(read(target) + read("b"), "ab");
    fs::remove(target);
  }
}

TEST_F(StatusTest, RemoveTakesFilesOnly) {
  EXPECT_EQ(ZCFile::Remove(write("a", "").c_str()), 1);
  EXPECT_EQ(ZCFile::Remove(file("a").c_str()), 0);
  EXPECT_EQ(ZCFile::Remove(directory().c_str()), 0);
  EXPECT_TRUE(fs::exists(directory()));
}

TEST_F(StatusTest, EmptinessFollowsTheSize) {
  ZCFile f(write("a", "").c_str(), 0x42);
  EXPECT_EQ(f.IsEmpty(), 1);
  f.WriteString("x");
  EXPECT_EQ(f.IsEmpty() + f.IsEmpty(file("a").c_str()), 0);
  EXPECT_EQ(f.IsEmpty(file("missing").c_str()), 1);
  EXPECT_EQ(ZCFile().IsEmpty(), 1);
}

TEST_F(StatusTest, MakeTempWantsExactlySixXAndGoesThroughItsNames) {
  const auto made = [&](std::string name) {
    return ZCFile().MakeTemp(name.data()) != nullptr ? name : "none, " + name;
  };
  EXPECT_EQ(made(file("tXXXXXX")), file("t000001"));
  write("t000001", "");
  EXPECT_EQ(made(file("tXXXXXX")), file("ta00001"));
  for (char letter = 'a'; letter <= 'z'; ++letter) write(std::string("t") + letter + "00001", "");
  EXPECT_TRUE(made(file("tXXXXXX")).starts_with("none"));
  fs::remove(file("tq00001"));
  EXPECT_EQ(made(file("tXXXXXX")), file("tq00001"));
  EXPECT_EQ(made("aXXXXX"), "none, a00001");
  EXPECT_EQ(made("XXXXXXX"), "none, 0000001");
  EXPECT_EQ(made("XXXXXXa"), "none, XXXXXXa");
  EXPECT_EQ(made(""), "none, ");
}

}  // namespace
