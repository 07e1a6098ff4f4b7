// kzdic: builds, imports, dumps, describes and searches dictionaries, and converts their texts.
#include <fcntl.h>
#include <unistd.h>

#include <iostream>
#include <new>

#include "tools/command_line.h"
#include "tools/signals.h"
#include "tools/status.h"

namespace {

// A file must not get the number of a standard descriptor that the caller has closed: messages
// would be written into it. Reading and writing there fail as before.
bool open_standard_descriptors() {
  for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
    const int mode = descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY;
    if (fcntl(descriptor, F_GETFD) < 0 && open("/dev/null", mode) != descriptor) return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (!open_standard_descriptors()) return static_cast<int>(kzdic::Status::kFile);
  kzdic::watch_signals();
  try {
    return kzdic::run_command_line(argc, argv, "kzdic " KZ_VERSION);
  } catch (const kz::lexicon::Error& error) {
    std::cerr << "kzdic: " << error.what() << '\n';
    return static_cast<int>(kzdic::status_of(error));
  } catch (const std::bad_alloc&) {
    std::cerr << "kzdic: not enough memory\n";
    return static_cast<int>(kzdic::Status::kFile);
  } catch (const std::exception& error) {
    std::cerr << "kzdic: " << error.what() << '\n';
    return static_cast<int>(kzdic::Status::kFile);
  }
}
