// The directory of a fuzz target's files: one per process, its files rewritten for every input.
#ifndef KZ_FUZZ_SCRATCH_H
#define KZ_FUZZ_SCRATCH_H

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

// Ends with a slash. A run that ends by itself removes it.
inline const std::string& scratch_directory() {
  static const struct Directory {
    Directory() {
      if (mkdtemp(path.data()) == nullptr) std::abort();
      path += '/';
    }
    ~Directory() {
      std::error_code ignored;
      std::filesystem::remove_all(path, ignored);
    }
    std::string path = "/tmp/kz-fuzz-XXXXXX";
  } directory;
  return directory.path;
}

#endif  // KZ_FUZZ_SCRATCH_H
