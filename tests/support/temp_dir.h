// A directory of its own for each test that writes files, removed when the test ends.
#ifndef KZ_TESTS_TEMP_DIR_H
#define KZ_TESTS_TEMP_DIR_H

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kz::test {

class TempDir {
 public:
  TempDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kz-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary directory");
    path_ = std::filesystem::canonical(pattern);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  ~TempDir() { std::filesystem::remove_all(path_); }

  const std::filesystem::path& directory() const { return path_; }
  std::string file(const std::string& name) const { return (path_ / name).string(); }

  // Makes a file and gives its path.
  std::string write(const std::string& name, std::string_view contents) const {
    std::ofstream(path_ / name, std::ios::binary) << contents;
    return file(name);
  }
  std::string read(const std::string& name) const {
    std::ifstream in(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

 private:
  std::filesystem::path path_;
};

}  // namespace kz::test

#endif  // KZ_TESTS_TEMP_DIR_H
