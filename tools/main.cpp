// kzdic: builds, imports, dumps, describes and searches dictionaries, and converts their texts.
#include <iostream>
#include <new>

#include "tools/command_line.h"
#include "tools/status.h"

int main(int argc, char** argv) {
  try {
    return kzdic::run_command_line(argc, argv, "kzdic " KZ_VERSION);
  } catch (const kz::lexicon::Error& error) {
    std::cerr << "kzdic: " << error.what() << '\n';
    return static_cast<int>(kzdic::status_of(error));
  } catch (const std::bad_alloc&) {
    std::cerr << "kzdic: not enough memory\n";
    return static_cast<int>(kzdic::Status::kFile);
  } catch (const std::exception& error) {
    std::cerr << "kzdic: " << error.what() << '\n';
    return static_cast<int>(kzdic::Status::kFile);
  }
}
