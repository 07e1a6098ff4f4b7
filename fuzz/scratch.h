// The directory of a fuzz target's files: one per process, its files rewritten for every input.
#ifndef KZ_FUZZ_SCRATCH_H
#define KZ_FUZZ_SCRATCH_H

#include <cstdlib>
#include <string>

// Ends with a slash.
inline const std::string& scratch_directory() {
  static const std::string result = [] {
    std::string pattern = "/tmp/kz-fuzz-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    return pattern + "/";
  }();
  return result;
}

#endif  // KZ_FUZZ_SCRATCH_H
