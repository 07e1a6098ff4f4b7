// kzdic: builds, imports, dumps, describes and searches dictionaries, and converts their texts.
#include <iostream>
#include <new>

#include "tools/command_line.h"
#include "tools/status.h"

namespace {

int run(int argc, char** argv) {
  kzdic::Status status = kzdic::Status::kOk;
  const auto app = kzdic::make_command_line(status);
  app->set_version_flag("--version", "kzdic " KZ_VERSION);
  try {
    app->parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    // Help and version come this way, too.
    if (app->exit(error) != 0) status = kzdic::Status::kUsage;
    if (!std::cout.flush()) {
      throw kzdic::Failure(kzdic::Status::kFile, "cannot write to standard output");
    }
  }
  return static_cast<int>(status);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const kzdic::Failure& failure) {
    std::cerr << "kzdic: " << failure.what() << '\n';
    return static_cast<int>(failure.status());
  } catch (const std::bad_alloc&) {
    std::cerr << "kzdic: not enough memory\n";
    return static_cast<int>(kzdic::Status::kFile);
  } catch (const std::exception& error) {
    std::cerr << "kzdic: " << error.what() << '\n';
    return static_cast<int>(kzdic::Status::kFile);
  }
}
