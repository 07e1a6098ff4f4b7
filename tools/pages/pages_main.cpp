// Writes the manual pages and completions of kzdic: run by the build.
//
//     kzdic_pages man PAGE.scd NAME   the page of the command NAME, in scdoc's language
//     kzdic_pages bash | zsh
#include <fstream>
#include <iostream>

#include "tools/pages/pages.h"

int main(int argc, char** argv) {
  const std::vector<kzdic::pages::Command> commands = kzdic::pages::all_commands();
  const std::string kind = argc > 1 ? argv[1] : "";
  if (kind == "bash") {
    kzdic::pages::write_bash_completion(commands, std::cout);
  } else if (kind == "zsh") {
    kzdic::pages::write_zsh_completion(commands, std::cout);
  } else if (kind == "man" && argc == 4) {
    std::ifstream page(argv[2]);
    kzdic::pages::write_manual(page, argv[3], commands, std::cout);
    if (!page.eof()) {
      std::cerr << argv[2] << ": cannot read\n";
      return 1;
    }
  } else {
    std::cerr << "usage: kzdic_pages man PAGE NAME | bash | zsh\n";
    return 2;
  }
  return std::cout.flush() ? 0 : 1;
}
