// Completion for bash.
#include <algorithm>
#include <ostream>

#include "tools/pages/pages.h"

namespace kzdic::pages {
namespace {

// "place" counts the arguments before the word. Bash has "=" as a word of its own.
constexpr const char* kHead = R"(# Completion of kzdic for bash.
_kzdic() {
  local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local command=kzdic place=0 options='' words='' files='' i
  if [[ $word == '=' ]]; then
    word=
  elif [[ $previous == '=' ]]; then
    previous=${COMP_WORDS[COMP_CWORD - 2]}
  fi
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

// The commands that are directly below one, or below the program.
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

// "'kzdic build:-o' | 'kzdic build:--output'", the names of one option.
std::string pattern(const Command& command, const Option& option) {
  std::vector<std::string> names;
  for (const std::string& name : option.names) {
    names.push_back("'kzdic " + command.name + ":" + name + "'");
  }
  return joined(names, " | ");
}

std::string valued_options(const std::vector<Command>& commands) {
  std::vector<std::string> patterns;
  for (const Command& command : commands) {
    for (const Option& option : command.options) {
      if (option.value != Value::kNone) patterns.push_back(pattern(command, option));
    }
  }
  return joined(patterns, " | ");
}

void write_values(const Command& command, std::ostream& out) {
  for (const Option& option : command.options) {
    if (option.value == Value::kNone) continue;
    out << "    " << pattern(command, option) << ") " << offer(option) << " ;;\n";
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
  if (command.group) out << "          words='" << below(command.name, commands) << "'\n";
  if (!command.arguments.empty()) {
    out << "          case $place in\n";
    for (std::size_t place = 0; place + 1 < command.arguments.size(); ++place) {
      out << "            " << place << ") " << offer(command.arguments[place]) << " ;;\n";
    }
    out << "            *) " << offer(command.arguments.back()) << " ;;\n          esac\n";
  }
  out << "          ;;\n";
}

}  // namespace

void write_bash_completion(const std::vector<Command>& commands, std::ostream& out) {
  std::vector<std::string> names(commands.size());
  std::ranges::transform(commands, names.begin(),
                         [](const Command& command) { return "'kzdic " + command.name + "'"; });
  out << kHead << "      " << joined(names, " | ") << ")\n"
      << "        command+=\" ${COMP_WORDS[i]}\"\n        continue ;;\n    esac\n"
      << "    case \"$command:${COMP_WORDS[i - 1]}\" in\n"
      << "      " << valued_options(commands) << " | *:=) continue ;;\n    esac\n"
      << "    [[ ${COMP_WORDS[i]} == -?* || ${COMP_WORDS[i]} == '=' ]] || ((++place))\n  done\n"
      << "  case \"$command:$previous\" in\n";
  for (const Command& command : commands) write_values(command, out);
  out << "    *)\n      case \"$command\" in\n"
      << "        kzdic) words='" << below("", commands) << "' options='--help --version' ;;\n";
  for (const Command& command : commands) write_arguments(command, commands, out);
  out << "      esac\n      ;;\n" << kTail;
}

}  // namespace kzdic::pages
