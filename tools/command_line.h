// The command line of kzdic: one table of commands and their options, from which parsing, help,
// manual pages and completion come.
#ifndef KZ_TOOLS_COMMAND_LINE_H
#define KZ_TOOLS_COMMAND_LINE_H

#include <memory>

#include "tools/status.h"

namespace CLI {
class App;
}

namespace kzdic {

// Runs the command that the arguments tell, or prints help. The exit status; throws Failure.
int run_command_line(int argc, char** argv, const char* version);

// The whole command line. Parsing runs the command that was given, which leaves its exit status in
// `status` or throws Failure.
std::unique_ptr<CLI::App> make_command_line(Status& status);

// Families of commands. Options that take a value have a type name: "FILE" and "DIRECTORY" are
// completed as such, "{a,b}" as one of the words.
void add_dictionary_commands(CLI::App& app);  // build, import, dump, info
void add_lookup_command(CLI::App& app, Status& status);
void add_grammar_commands(CLI::App& app, Status& status);  // grammar decode, encode, name
void add_text_commands(CLI::App& app, Status& status);     // convert, translit, layout, replace
void add_inflect_command(CLI::App& app, Status& status);

}  // namespace kzdic

#endif  // KZ_TOOLS_COMMAND_LINE_H
