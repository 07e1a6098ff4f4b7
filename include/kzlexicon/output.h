// Output files that take their place when they are finished.
//
// The contents go to an unfinished file beside the target; commit() puts it in the place of the
// target in one step. Without commit() the target stays as it was, and nothing is left.
//
//     using namespace kz::lexicon;
//     OutputFile output("words.txt");
//     output.stream() << "cat\ndog\n";
//     output.commit();
//     std::cout << std::ifstream("words.txt").rdbuf();
//     // Output: cat
//     // Output: dog
#ifndef KZLEXICON_OUTPUT_H
#define KZLEXICON_OUTPUT_H

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "kzlexicon/export.h"

namespace kz::lexicon {

// One file under way. It neither moves nor copies.
class KZL_API OutputFile {
 public:
  // A symbolic link stays one: the file it leads to is replaced. A device, a pipe or a socket is
  // written to when commit() is called. Throws Error (kFile).
  explicit OutputFile(const std::string& target);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  // Takes the contents. It lives as long as the object; a failed write is reported by commit().
  std::ostream& stream();
  // The contents as a file descriptor, for writers that need one, and a path under which they can
  // be opened meanwhile. Both belong to the object, until commit().
  int handle() const;
  std::string path() const;

  // Writes what the stream still holds and puts the file in the place of the target; once. Throws
  // Error (kFile) for what could not be written; the target then stays as it was.
  void commit();

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

// Removes the unfinished files of this process. A host whose signal handler ends the process calls
// it there: it does nothing that is not allowed in a handler.
KZL_API void remove_unfinished_files() noexcept;

// Throws Error (kArgument) when the output is the same file as one of the inputs, under whatever
// names. "-" is standard output, or standard input. Devices that can be read and written at once,
// such as terminals, and files that are not there are no matter.
KZL_API void refuse_inputs_as_output(const std::string& output,
                                     const std::vector<std::string>& inputs);

}  // namespace kz::lexicon

#endif  // KZLEXICON_OUTPUT_H
