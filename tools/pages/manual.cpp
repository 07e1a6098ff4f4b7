// Manual pages: written text with generated synopsis and options.
#include <algorithm>
#include <istream>
#include <ostream>

#include "tools/pages/pages.h"

namespace kzdic::pages {
namespace {

std::string escaped(const std::string& text) {
  std::string result;
  for (const char c : text) {
    if (std::string_view("\\*_#<>").find(c) != std::string_view::npos) result += '\\';
    result += c;
  }
  return result;
}

std::string value_of(const Option& option) {
  return option.value == Value::kNone ? "" : " _" + escaped(option.value_name) + "_";
}

std::string names_of(const Option& option) {
  std::string text;
  for (const std::string& name : option.names) text += (text.empty() ? "*" : ", *") + name + "*";
  return text + value_of(option);
}

void write_synopsis(const Command& command, std::ostream& out) {
  out << "*kzdic " << command.name << "*";
  if (command.options.size() > 1) out << " [_options_]";
  for (const Option& option : command.options) {
    if (option.required) out << " *" << option.names.front() << "*" << value_of(option);
  }
  for (const Option& argument : command.arguments) {
    const std::string name = "_" + escaped(argument.value_name) + "_";
    out << ' ' << (argument.required ? name : "[" + name + "]") << (argument.repeated ? "..." : "");
  }
  out << "\n\n";
}

void write_option(const std::string& heading, const Option& option, std::ostream& out) {
  out << heading << "\n\t" << escaped(option.description) << ".";
  if (!option.words.empty()) {
    out << " One of";
    for (const std::string& word : option.words) {
      out << (word == option.words.front() ? " " : ", ") << "*" << escaped(word) << "*";
    }
    out << ".";
  }
  if (!option.environment.empty()) {
    out << " Default: the environment variable *" << escaped(option.environment) << "*.";
  }
  out << "\n\n";
}

void write_options(const Command& command, bool titled, std::ostream& out) {
  if (titled) out << "## kzdic " << command.name << "\n\n";
  if (titled) out << escaped(command.description) << ".\n\n";
  for (const Option& argument : command.arguments) {
    write_option("_" + escaped(argument.value_name) + "_", argument, out);
  }
  for (const Option& option : command.options) write_option(names_of(option), option, out);
}

void write_list(const std::vector<Command>& commands, std::ostream& out) {
  for (const Command& command : commands) {
    if (command.group) continue;
    out << "*kzdic " << command.name << "*\n\t" << escaped(command.description) << ".\n\n";
  }
}

}  // namespace

void write_manual(std::istream& page, const std::string& name, const std::vector<Command>& commands,
                  std::ostream& out) {
  std::vector<Command> own;
  for (const Command& command : commands) {
    const std::string first = command.name.substr(0, command.name.find(' '));
    if (first == name && !command.group) own.push_back(command);
  }
  for (std::string line; std::getline(page, line);) {
    if (line == "@SYNOPSIS@") {
      for (const Command& command : own) write_synopsis(command, out);
    } else if (line == "@OPTIONS@") {
      for (const Command& command : own) write_options(command, own.size() > 1, out);
    } else if (line == "@COMMANDS@") {
      write_list(commands, out);
    } else {
      out << line << '\n';
    }
  }
}

}  // namespace kzdic::pages
