// Files in a directory of their own, removed at the end of each test.
#ifndef KZ_TESTS_FOUNDATION_FILE_FIXTURE_H
#define KZ_TESTS_FOUNDATION_FILE_FIXTURE_H

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "kz/file.h"

class FileTest : public testing::Test {
 protected:
  FileTest() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kz-XXXXXX").string();
    directory_ = std::filesystem::canonical(mkdtemp(pattern.data()));
  }
  ~FileTest() override { std::filesystem::remove_all(directory_); }

  std::string path(const std::string& name) const { return (directory_ / name).string(); }

  // Makes a file and gives its path.
  std::string file(const std::string& name, const std::string& contents) const {
    std::ofstream(path(name), std::ios::binary) << contents;
    return path(name);
  }

  static std::string contents(const std::string& name) {
    std::ifstream in(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  std::filesystem::path directory_;
};

inline std::string text(const ZCString& string) {
  return {static_cast<const char*>(string), static_cast<std::size_t>(string.GetLength())};
}

#endif  // KZ_TESTS_FOUNDATION_FILE_FIXTURE_H
