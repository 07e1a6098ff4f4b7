// kzdic: builds, imports, dumps, describes and searches dictionaries, and converts their texts.
#include <iostream>

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
    return app->exit(error) == 0 ? 0 : static_cast<int>(kzdic::Status::kUsage);
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
  } catch (const std::exception& error) {
    std::cerr << "kzdic: " << error.what() << '\n';
    return static_cast<int>(kzdic::Status::kFile);
  }
}
