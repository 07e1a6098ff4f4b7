// Comparison of files by device and inode.
#include "kzlexicon/output.h"

#include <sys/stat.h>
#include <unistd.h>

#include "kzlexicon/error.h"

namespace kz::lexicon {
namespace {

bool find_file(const std::string& name, int standard, struct stat& status) {
  return (name == "-" ? fstat(standard, &status) : stat(name.c_str(), &status)) == 0 &&
         (S_ISREG(status.st_mode) || S_ISBLK(status.st_mode));
}

}  // namespace

void refuse_inputs_as_output(const std::string& output, const std::vector<std::string>& inputs) {
  struct stat written;
  if (!find_file(output, STDOUT_FILENO, written)) return;
  for (const std::string& input : inputs) {
    struct stat read;
    if (find_file(input, STDIN_FILENO, read) && read.st_dev == written.st_dev &&
        read.st_ino == written.st_ino) {
      throw Error(ErrorCode::kArgument, (output == "-" ? "(standard output)" : output) +
                                            ": would be written over, and is an input" +
                                            (input == output || input == "-" ? "" : ": " + input));
    }
  }
}

}  // namespace kz::lexicon
