// The signals that end the program while it writes.
#ifndef KZ_TOOLS_SIGNALS_H
#define KZ_TOOLS_SIGNALS_H

namespace kzdic {

// From now on such a signal removes unfinished outputs before it ends the program.
void watch_signals();

}  // namespace kzdic

#endif  // KZ_TOOLS_SIGNALS_H
