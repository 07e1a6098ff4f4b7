// A shell command line per run.
#include "tests/tools/kzdic_run.h"

#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace {

std::string quoted(const std::string& argument) {
  std::string result = "'";
  for (const char c : argument) result += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return result + "'";
}

}  // namespace

Workplace::Workplace() {
  static std::atomic<int> number{0};
  std::string name = "kzdic-test-";
  name += std::to_string(getpid());
  name += '-';
  name += std::to_string(number++);
  directory_ = std::filesystem::temp_directory_path() / name;
  std::filesystem::create_directories(directory_);
}

Workplace::~Workplace() {
  std::error_code ignored;
  std::filesystem::remove_all(directory_, ignored);
}

Outcome Workplace::kzdic(const std::vector<std::string>& arguments,
                         const std::string& input) const {
  write("stdin", input);
  std::string command = "cd " + quoted(directory_.string()) + " && LC_ALL=C " KZDIC_PATH;
  for (const std::string& argument : arguments) command += " " + quoted(argument);
  command += " <stdin >stdout 2>stderr";
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, read("stdout"), read("stderr")};
}

void Workplace::write(const std::string& name, const std::string& bytes) const {
  std::ofstream(directory_ / name, std::ios::binary) << bytes;
}

std::string Workplace::read(const std::string& name) const {
  std::ifstream in(directory_ / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

bool Workplace::exists(const std::string& name) const {
  return std::filesystem::exists(directory_ / name);
}
