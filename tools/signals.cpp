// Handlers that clear away and end the program.
#include "tools/signals.h"

#include <signal.h>

#include "kzlexicon/output.h"

namespace kzdic {
namespace {

void clear_away_and_end(int signal) {
  kz::lexicon::remove_unfinished_files();
  raise(signal);  // ends the program when the handler, which is reset, returns
}

}  // namespace

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

}  // namespace kzdic
