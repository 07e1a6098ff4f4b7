// Temporary files of the benchmarks, and their way out.
#ifndef KZ_BENCH_SCRATCH_H
#define KZ_BENCH_SCRATCH_H

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace scratch {

[[noreturn]] inline void fail(const std::string& what) {
  std::fprintf(stderr, "%s: %s\n", program_invocation_short_name, what.c_str());
  std::exit(1);
}

// A directory, removed at the end with all that is in it.
class Directory {
 public:
  Directory() : path_((std::filesystem::temp_directory_path() / "kz-bench-XXXXXX").string()) {
    if (mkdtemp(path_.data()) == nullptr) fail("no temporary directory");
  }
  Directory(const Directory&) = delete;
  Directory& operator=(const Directory&) = delete;
  ~Directory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  const std::string& path() const { return path_; }
  std::string file(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

}  // namespace scratch

#endif  // KZ_BENCH_SCRATCH_H
