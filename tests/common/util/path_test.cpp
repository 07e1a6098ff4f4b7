// Parts of paths: the examples of docs/paths.md.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "kz/strutil.h"
#include "tests/support/page.h"

namespace {

using Fields = std::vector<std::string>;

// What a function that changes a path in place leaves.
template <class Change>
std::string changed(const std::string& path, Change change) {
  std::string room = path + std::string(16, '\0');
  EXPECT_EQ(change(room.data()), room.data());
  return room.c_str();
}

template <class Check>
void for_each(const char* fence, int count, Check check) {
  for (const std::string& line : kz::test::examples("paths.md", fence)) {
    SCOPED_TRACE(line);
    check(kz::test::fields_of(line));
    --count;
  }
  EXPECT_EQ(count, 0);
}

TEST(PathsPage, ShowsWhatTheFunctionsGive) {
  for_each("parts", 10, [](const Fields& f) {
    const char *const path = f[0].c_str(), *const end = path + f[0].size();
    EXPECT_EQ(GetFileName(path), end - f[1].size());
    EXPECT_EQ(GetExt(path), end - f[2].size());
  });
  for_each("separator", 5, [](const Fields& f) { EXPECT_EQ(changed(f[0], set_pathsep), f[1]); });
  for_each("extension", 7, [](const Fields& f) {
    const char* const extension = f[1].c_str();
    EXPECT_EQ(changed("", [&](char* to) { return SetExt(to, f[0].c_str(), extension); }), f[2]);
    EXPECT_EQ(changed(f[0], [&](char* path) { return SetExt(path, path, extension); }), f[2]);
  });
  for_each("short", 14, [](const Fields& f) {
    const auto maximum = static_cast<int16_t>(std::stoi(f[1]));
    EXPECT_EQ(changed(f[0], [=](char* path) { return get_short_path(path, maximum); }), f[2]);
  });
}

TEST(Path, NullIsNoPath) {
  EXPECT_TRUE(GetFileName(nullptr) == nullptr && GetExt(nullptr) == nullptr);
  EXPECT_EQ(get_short_path(nullptr, 16), nullptr);
  EXPECT_EQ(HasWildCards("a*b") + HasWildCards("?"), 2);
  EXPECT_EQ(HasWildCards("c:\\d.x") + HasWildCards(nullptr), 0);
}

}  // namespace
