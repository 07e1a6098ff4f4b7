// Manual pages and shell completion, written from the command line's table of options.
#ifndef KZ_TOOLS_PAGES_PAGES_H
#define KZ_TOOLS_PAGES_PAGES_H

#include <iosfwd>
#include <string>
#include <vector>

namespace kzdic::pages {

// What follows an option or argument, as its type name tells.
enum class Value { kNone, kText, kFile, kDirectory, kWord };

struct Option {
  std::vector<std::string> names;  // "-o", "--output"; none for an argument
  std::string value_name;          // "FILE"; empty for a flag
  Value value = Value::kNone;
  std::vector<std::string> words;  // that the value may be
  std::string description;
  std::string environment;  // the variable that stands for the option
  bool required = false;
  bool repeated = false;
};

struct Command {
  std::string name;  // "lookup", "grammar decode"
  std::string description;
  std::vector<Option> options;
  std::vector<Option> arguments;
  bool group = false;  // of commands, nothing by itself
};

// All commands of kzdic, those of groups included.
std::vector<Command> all_commands();

// Copies a page in scdoc's language, with the lines "@SYNOPSIS@" and "@OPTIONS@" replaced for every
// command whose first word is `name`, and "@COMMANDS@" by a list of all commands.
void write_manual(std::istream& page, const std::string& name, const std::vector<Command>& commands,
                  std::ostream& out);
void write_bash_completion(const std::vector<Command>& commands, std::ostream& out);
void write_zsh_completion(const std::vector<Command>& commands, std::ostream& out);

}  // namespace kzdic::pages

#endif  // KZ_TOOLS_PAGES_PAGES_H
