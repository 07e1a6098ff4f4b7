// kzdic: builds, imports, dumps, describes and searches dictionaries, and converts their texts.
#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <iostream>
#include <new>

#include "kzlexicon/output.h"
#include "tools/command_line.h"
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

void clear_away_and_end(int signal) {
  kz::lexicon::remove_unfinished_files();
  raise(signal);  // ends the program when the handler, which is reset, returns
}

// From now on a signal that ends the program removes unfinished outputs first.
void watch_signals() {
  signal(SIGXFSZ, SIG_IGN);  // the write fails
  for (const int number : {SIGHUP, SIGINT, SIGQUIT, SIGPIPE, SIGTERM, SIGXCPU}) {
    struct sigaction action {};
    if (sigaction(number, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) continue;
    action.sa_handler = clear_away_and_end;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigfillset(&action.sa_mask);
    sigaction(number, &action, nullptr);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (!open_standard_descriptors()) return static_cast<int>(kzdic::Status::kFile);
  watch_signals();
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
