// Runs kzdic in a directory of its own and shows what it said.
#ifndef KZ_TESTS_TOOLS_KZDIC_RUN_H
#define KZ_TESTS_TOOLS_KZDIC_RUN_H

#include <sys/wait.h>

#include <cstdlib>
#include <string>

#include "tests/support/temp_dir.h"

struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
};

// File names on command lines are relative to the directory.
class Workplace : public kz::test::TempDir {
 public:
  // `arguments` is text of the shell, which may quote and redirect.
  Outcome kzdic(const std::string& arguments, const std::string& input = {}) const {
    write("stdin", input);
    const std::string command =
        "cd " + file("") + " && LC_ALL=C " KZDIC_PATH " <stdin >stdout 2>stderr " + arguments;
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, read("stdout"), read("stderr")};
  }
  bool exists(const std::string& name) const { return std::filesystem::exists(file(name)); }
};

#endif  // KZ_TESTS_TOOLS_KZDIC_RUN_H
