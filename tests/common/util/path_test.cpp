// The parts of paths.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <tuple>
#include <utility>

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
  EXPECT_TRUE(GetFileName(nullptr) == nullptr && GetExt(nullptr) == nullptr);
  EXPECT_EQ(HasWildCards("a*b") + HasWildCards("?"), 2);
  EXPECT_EQ(HasWildCards("c:\\d.x") + HasWildCards(nullptr), 0);
}

TEST(Path, SeparatorIsCompletedOnce) {
  for (const auto& [path, completed] :
       {std::pair{"", ""}, {"dir", "dir\\"}, {"dir\\", "dir\\"}, {"/", "/"}, {"c:", "c:\\"}}) {
    char text[8];
    EXPECT_EQ(set_pathsep(std::strcpy(text, path)), text);
    EXPECT_STREQ(text, completed);
  }
}

TEST(Path, ExtensionIsReplacedOnlyByOneWithADot) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"c:\\d.x\\f", ".txt", "c:\\d.txt"},
      {"c:\\d.x\\f", "txt", "c:\\d.x\\f.txt"},
      {"a.b.c", ".d", "a.b.d"},
      {"a.b", "c", "a.b.c"},
      {"a.long", ".", "a."},
      {"a", "", "a."},
      {"", ".c", ".c"}};
  for (const auto& [source, extension, result] : cases) {
    char text[20];
    EXPECT_EQ(SetExt(text, source, extension), text);
    EXPECT_STREQ(text, result);
    std::strcpy(text, source);
    EXPECT_STREQ(SetExt(text, text, extension), result);
  }
}

TEST(Path, ShortFormKeepsDriveNameAndTheLastDirectories) {
  const std::string work = "c:\\work\\dicts\\a.dic", mixed = "c:\\a/bb\\ccc\\dddddd/a.dic";
  const std::string name = "averyveryverylongname.dic";
  const std::tuple<std::string, int, std::string> cases[] = {
      {work, 15, work},
      {work, 16, "c:\\...\\a.dic"},
      {work, 17, "c:\\...\\a.dic"},
      {work, 18, "c:\\...\\dicts\\a.dic"},
      {work, 19, work},
      {mixed, 19, "c:\\...\\dddddd/a.dic"},
      {mixed, 18, "c:\\.../a.dic"},
      {"c:a/bb/ccc/dddddd/a.dic", 20, "c:\\.../dddddd/a.dic"},
      {"c:\\dictionaries\\d\\a.dic", 20, "c:\\...\\d\\a.dic"},
      {"/home/user/dictionaries/a.dic", 20, "\\.../a.dic"},
      {"c:\\onlyonedirectory\\a.dic", 16, "c:\\...\\a.dic"},
      {name, 16, name},
      {'\\' + name, 16, '\\' + name},
      {"\\a\\" + name, 16, '\\' + name}};
  for (const auto& [path, maximum, result] : cases) {
    std::string text = path + std::string(16, ' ');
    text[path.size()] = '\0';
    EXPECT_EQ(get_short_path(text.data(), static_cast<int16_t>(maximum)), result);
  }
  EXPECT_EQ(get_short_path(nullptr, 16), nullptr);
}

}  // namespace
