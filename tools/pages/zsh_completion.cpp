// Completion for zsh.
#include <algorithm>
#include <ostream>

#include "tools/pages/pages.h"

namespace kzdic::pages {
namespace {

// Text inside a single-quoted specification of _arguments or _describe.
std::string escaped(const std::string& text) {
  std::string result;
  for (const char c : text) {
    if (c == '\'') {
      result += R"('\'')";
    } else if (std::string_view(":[]\\").find(c) != std::string_view::npos) {
      result += std::string("\\") + c;
    } else {
      result += c;
    }
  }
  return result;
}

std::string function_of(const std::string& command) {
  std::string name = "_kzdic_" + command;
  std::replace(name.begin(), name.end(), ' ', '_');
  return name;
}

// ":message:action" of the value of an option or argument.
std::string action(const Option& option) {
  std::string text = ":" + escaped(option.value_name) + ":";
  if (option.value == Value::kFile) return text + "_files";
  if (option.value == Value::kDirectory) return text + "_files -/";
  if (option.words.empty()) return text;
  text += "(";
  for (const std::string& word : option.words) text += (text.back() == '(' ? "" : " ") + word;
  return text + ")";
}

void write_option(const Option& option, std::ostream& out) {
  for (const std::string& name : option.names) {
    out << " \\\n    '";
    if (option.repeated) out << '*';
    if (!option.repeated && option.names.size() > 1) {
      out << '(';
      for (const std::string& other : option.names)
        out << (&other == option.names.data() ? "" : " ") << other;
      out << ')';
    }
    const bool joined = option.value != Value::kNone && name.starts_with("--");
    out << name << (joined ? "=" : "") << '[' << escaped(option.description) << ']';
    if (option.value != Value::kNone) out << action(option);
    out << '\'';
  }
}

void write_command(const Command& command, std::ostream& out) {
  out << function_of(command.name) << "() {\n  _arguments";
  for (const Option& option : command.options) write_option(option, out);
  for (const Option& argument : command.arguments) {
    out << " \\\n    '"
        << (argument.repeated   ? "*"
            : argument.required ? ":"
                                : "::")
        << action(argument).substr(argument.repeated ? 0 : 1) << '\'';
  }
  out << "\n}\n\n";
}

// A function that offers the commands below `name` and hands over to theirs.
void write_group(const std::string& name, const std::vector<Command>& commands, std::ostream& out) {
  const std::string prefix = name.empty() ? "" : name + " ";
  out << (name.empty() ? "_kzdic" : function_of(name)) << "() {\n"
      << "  local curcontext=$curcontext state line\n"
      << "  local -a commands=(\n";
  for (const Command& command : commands) {
    if (!command.name.starts_with(prefix)) continue;
    const std::string word = command.name.substr(prefix.size());
    if (word.find(' ') != std::string::npos) continue;
    out << "    '" << word << ":" << escaped(command.description) << "'\n";
  }
  out << "  )\n"
      << "  _arguments -C '1: :->command' '*:: :->arguments'\n"
      << "  case $state in\n"
      << "    command) _describe command commands ;;\n"
      << "    arguments) (( $+functions[" << (name.empty() ? "_kzdic" : function_of(name))
      << "_$words[1]] )) && " << (name.empty() ? "_kzdic" : function_of(name)) << "_$words[1] ;;\n"
      << "  esac\n}\n\n";
}

}  // namespace

void write_zsh_completion(const std::vector<Command>& commands, std::ostream& out) {
  out << "#compdef kzdic\n# Completion of kzdic for zsh.\n\n";
  for (const Command& command : commands) {
    if (command.group) {
      write_group(command.name, commands, out);
    } else {
      write_command(command, out);
    }
  }
  write_group("", commands, out);
  out << "_kzdic \"$@\"\n";
}

}  // namespace kzdic::pages
