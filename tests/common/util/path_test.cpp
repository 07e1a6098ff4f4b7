// The parts of paths against tables and a slow reference.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "kz/strutil.h"

namespace {

TEST(Path, NamesAndExtensionsStartBehindTheRightSeparator) {
  const struct {
    const char *path, *name, *extension;
  } cases[] = {
      {"c:\\dir\\name.ext", "name.ext", ".ext"},
      {"/dir.d/name", "name", ""},
      {"c:\\d.x\\f", "f", ""},
      {"a\\b/c.d:e", "b/c.d:e", ".d:e"},  // a backslash goes before the others
      {"a/b:c.d", "b:c.d", ".d"},         // and a slash before a colon
      {"c:name.a.b", "name.a.b", ".b"},
      {".profile", ".profile", ".profile"},
      {"dir\\", "", ""},
      {"name.", "name.", "."},
      {"", "", ""},
  };
  for (const auto& [path, name, extension] : cases) {
    EXPECT_EQ(GetFileName(path), path + std::strlen(path) - std::strlen(name)) << path;
    EXPECT_EQ(GetExt(path), path + std::strlen(path) - std::strlen(extension)) << path;
  }
  EXPECT_EQ(GetFileName(nullptr), nullptr);
  EXPECT_EQ(GetExt(nullptr), nullptr);
  EXPECT_EQ(HasWildCards("a*b"), 1);
  EXPECT_EQ(HasWildCards("?"), 1);
  EXPECT_EQ(HasWildCards("c:\\d.x"), 0);
  EXPECT_EQ(HasWildCards(nullptr), 0);
}

TEST(Path, SeparatorIsCompletedOnce) {
  const struct {
    const char *path, *completed;
  } cases[] = {{"", ""}, {"dir", "dir\\"}, {"dir\\", "dir\\"}, {"/", "/"}, {"c:", "c:\\"}};
  for (const auto& [path, completed] : cases) {
    char text[8];
    std::strcpy(text, path);
    EXPECT_EQ(set_pathsep(text), text);
    EXPECT_STREQ(text, completed);
  }
}

TEST(Path, ExtensionIsReplacedOnlyByOneWithADot) {
  const struct {
    const char *source, *extension, *result;
  } cases[] = {
      {"c:\\d.x\\f", ".txt", "c:\\d.txt"},
      {"c:\\d.x\\f", "txt", "c:\\d.x\\f.txt"},
      {"a.b.c", ".d", "a.b.d"},
      {"a.b", "c", "a.b.c"},
      {"a", ".c", "a.c"},
      {"a.long", ".", "a."},
      {"a", "", "a."},
      {"", ".c", ".c"},
  };
  for (const auto& [source, extension, result] : cases) {
    char text[20];
    EXPECT_EQ(SetExt(text, source, extension), text);
    EXPECT_STREQ(text, result);
    std::strcpy(text, source);
    EXPECT_STREQ(SetExt(text, text, extension), result);
  }
}

// The rule with all separators listed in the order in which they are tried.
std::string slow_short_path(const std::string& path, std::size_t maximum) {
  if (path.size() <= maximum || maximum < 16) return path;
  const std::size_t excess = path.size() - maximum;
  const std::size_t drive = path[1] == ':' && path[0] >= 'a' && path[0] <= 'x' ? 2 : 0;
  std::size_t end = path.size();
  while (end > drive && path[end - 1] != '\\' && path[end - 1] != '/') --end;
  const std::string directory = path.substr(drive, end - drive);
  if (directory.empty()) return path;
  std::vector<std::size_t> separators;
  for (std::size_t i = 1; i < directory.size(); ++i) {
    if (directory[i] == '\\') separators.push_back(i);
  }
  for (std::size_t i = separators.empty() ? 1 : separators.back() + 1; i < directory.size(); ++i) {
    if (directory[i] == '/') separators.push_back(i);
  }
  std::string shorter = "\\";
  for (const std::size_t s : separators) {
    if (directory.size() >= excess + (directory.size() - s + 4)) {
      shorter = "\\..." + directory.substr(s);
      break;
    }
  }
  return path.substr(0, drive) + shorter + path.substr(end);
}

TEST(Path, ShortFormDropsTheFirstDirectories) {
  std::mt19937 random(5);
  const std::string alphabet = "abbbbbbb\\\\/.:";
  for (int round = 0; round < 50000; ++round) {
    std::string path(random() % 60, 'x');
    for (char& c : path) c = alphabet[random() % alphabet.size()];
    if (round % 2 != 0) path.insert(0, "c:");
    const auto maximum = static_cast<int16_t>(random() % 45);
    std::string buffer = path + "#####";
    buffer[path.size()] = '\0';
    ASSERT_EQ(get_short_path(buffer.data(), maximum), buffer.data());
    ASSERT_EQ(buffer.c_str(), slow_short_path(path, static_cast<std::size_t>(maximum))) << path;
    ASSERT_EQ(buffer.substr(path.size() + 1), "####");
  }
}

TEST(Path, ShortFormKeepsDriveNameAndTheLastDirectories) {
  const struct {
    const char* path;
    int16_t maximum;
    const char* result;
  } cases[] = {
      {"c:\\work\\dicts\\a.dic", 16, "c:\\...\\a.dic"},
      {"c:\\work\\dicts\\a.dic", 15, "c:\\work\\dicts\\a.dic"},
      {"c:\\dictionaries\\d\\a.dic", 20, "c:\\...\\d\\a.dic"},
      {"/home/user/dictionaries/a.dic", 20, "\\.../a.dic"},
      {"c:\\onlyonedirectory\\a.dic", 16, "c:\\...\\a.dic"},
      {"averyveryverylongname.dic", 16, "averyveryverylongname.dic"},
      {"\\averyveryverylongname.dic", 16, "\\averyveryverylongname.dic"},
      {"\\a\\averyveryverylongname.dic", 16, "\\averyveryverylongname.dic"},
  };
  for (const auto& [path, maximum, result] : cases) {
    char text[40];
    std::strcpy(text, path);
    EXPECT_STREQ(get_short_path(text, maximum), result);
  }
  EXPECT_EQ(get_short_path(nullptr, 16), nullptr);
}

}  // namespace
