// Files in a directory of their own, and strings as the tests look at them.
#ifndef KZ_TESTS_FOUNDATION_FIXTURE_H
#define KZ_TESTS_FOUNDATION_FIXTURE_H

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>

#include "kz/file.h"
#include "tests/support/temp_dir.h"

class FileTest : public testing::Test, public kz::test::TempDir {};

inline std::string text(const ZCString& string) {
  return {static_cast<const char*>(string), static_cast<std::size_t>(string.GetLength())};
}

// The texts with a bar after each.
inline std::string texts(std::initializer_list<ZCString> strings) {
  std::string result;
  for (const ZCString& string : strings) result += text(string) + '|';
  return result;
}

inline ZCString tagged(std::string_view text, int tag) {
  ZCString result(text.data(), static_cast<int>(text.size()));
  result.SetLanguage(tag);
  return result;
}

#endif  // KZ_TESTS_FOUNDATION_FIXTURE_H
