// The parts of paths.
#include <gtest/gtest.h>

#include <cstring>

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

TEST(Path, ShortFormKeepsDriveNameAndTheLastDirectories) {
  const struct {
    const char* path;
    int16_t maximum;
    const char* result;
  } cases[] = {
      {"c:\\work\\dicts\\a.dic", 16, "c:\\...\\a.dic"},
      {"c:\\work\\dicts\\a.dic", 17, "c:\\...\\a.dic"},
      {"c:\\work\\dicts\\a.dic", 18, "c:\\...\\dicts\\a.dic"},
      {"c:\\work\\dicts\\a.dic", 19, "c:\\work\\dicts\\a.dic"},
      {"c:\\a/bb\\ccc\\dddddd/a.dic", 19, "c:\\...\\dddddd/a.dic"},
      {"c:\\a/bb\\ccc\\dddddd/a.dic", 18, "c:\\.../a.dic"},
      {"c:a/bb/ccc/dddddd/a.dic", 20, "c:\\.../dddddd/a.dic"},
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
