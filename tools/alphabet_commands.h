// kzdic translit and kzdic layout: Russian letters for Latin ones, and the reverse.
#ifndef KZ_TOOLS_ALPHABET_COMMANDS_H
#define KZ_TOOLS_ALPHABET_COMMANDS_H

#include <string>

#include "tools/line_filter.h"

namespace kzdic {

struct TranslitOptions {
  FilterOptions filter;
  std::string to;              // "latin" or "russian"
  std::string language;        // of Latin text, "DE" or "FR"; empty for the library's choice
  bool capitals = false;       // Latin capitals for small Russian letters too
  bool smart = false;          // Latin text is English and written as it sounds
  bool small_letters = false;  // of smart output
};

void translit(const TranslitOptions& options);

struct LayoutOptions {
  FilterOptions filter;
  std::string to;           // "latin" or "russian"
  bool look_alike = false;  // by the form of the letters, not by their keys
};

void layout(const LayoutOptions& options);

}  // namespace kzdic

#endif  // KZ_TOOLS_ALPHABET_COMMANDS_H
