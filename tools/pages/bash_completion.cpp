// Completion for bash.
#include <algorithm>
#include <ostream>

#include "tools/pages/pages.h"

namespace kzdic::pages {
namespace {

constexpr const char* kHead = R"(# Completion of kzdic for bash.
_kzdic() {
  local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local command=kzdic options='' words='' files='' i
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case "$command ${COMP_WORDS[i]}" in
)";

constexpr const char* kTail = R"(  esac
  if [[ $word == -* ]]; then
    words=$options
    files=
  fi
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
  if [[ -n $files ]]; then
    compopt -o filenames 2>/dev/null
    mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen "$files" -- "$word")
  fi
}
complete -F _kzdic kzdic
)";

std::string joined(const std::vector<std::string>& words, const std::string& separator) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : separator) + word;
  return text;
}

// The shell variables that offer the values of an option or argument.
std::string offer(const Option& option) {
  if (option.value == Value::kFile) return "files=-f";
  if (option.value == Value::kDirectory) return "files=-d";
  return "words='" + joined(option.words, " ") + "'";
}

// The commands that stand directly below one, or below the program.
std::string below(const std::string& name, const std::vector<Command>& commands) {
  std::vector<std::string> words;
  const std::string prefix = name.empty() ? "" : name + " ";
  for (const Command& command : commands) {
    if (!command.name.starts_with(prefix)) continue;
    const std::string word = command.name.substr(prefix.size());
    if (word.find(' ') == std::string::npos) words.push_back(word);
  }
  return joined(words, " ");
}

void write_values(const Command& command, std::ostream& out) {
  for (const Option& option : command.options) {
    if (option.value == Value::kNone) continue;
    std::vector<std::string> patterns;
    for (const std::string& name : option.names) {
      patterns.push_back("'kzdic " + command.name + ":" + name + "'");
    }
    out << "    " << joined(patterns, " | ") << ") " << offer(option) << " ;;\n";
  }
}

void write_arguments(const Command& command, const std::vector<Command>& commands,
                     std::ostream& out) {
  std::vector<std::string> names;
  for (const Option& option : command.options) {
    names.insert(names.end(), option.names.begin(), option.names.end());
  }
  out << "        'kzdic " << command.name << "')\n"
      << "          options='" << joined(names, " ") << "'\n";
  if (command.group) {
    out << "          words='" << below(command.name, commands) << "'\n";
  } else if (!command.arguments.empty()) {
    out << "          " << offer(command.arguments.back()) << '\n';
  }
  out << "          ;;\n";
}

}  // namespace

void write_bash_completion(const std::vector<Command>& commands, std::ostream& out) {
  std::vector<std::string> names(commands.size());
  std::ranges::transform(commands, names.begin(),
                         [](const Command& command) { return "'kzdic " + command.name + "'"; });
  out << kHead << "      " << joined(names, " | ") << ")\n"
      << "        command+=\" ${COMP_WORDS[i]}\" ;;\n    esac\n  done\n"
      << "  case \"$command:$previous\" in\n";
  for (const Command& command : commands) write_values(command, out);
  out << "    *)\n      case \"$command\" in\n"
      << "        kzdic) words='" << below("", commands) << "' options='--help --version' ;;\n";
  for (const Command& command : commands) write_arguments(command, commands, out);
  out << "      esac\n      ;;\n" << kTail;
}

}  // namespace kzdic::pages
