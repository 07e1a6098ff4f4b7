// A directory of its own for each test that writes files, removed when the test ends.
#ifndef KZ_TESTS_TEMP_DIR_H
#define KZ_TESTS_TEMP_DIR_H

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace kz::test {

class TempDir {
 public:
  TempDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kz-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary directory");
    path_ = pattern;
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  ~TempDir() { std::filesystem::remove_all(path_); }

  std::string file(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace kz::test

#endif  // KZ_TESTS_TEMP_DIR_H
