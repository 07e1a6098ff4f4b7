// Output of look-ups: readable text, entries as they are, or JSON lines.
#ifndef KZ_TOOLS_ENTRY_PRINTER_H
#define KZ_TOOLS_ENTRY_PRINTER_H

#include <memory>
#include <string>
#include <vector>

#include "kzlexicon/dictionary.h"
#include "tools/status.h"

namespace kzdic {

// What one dictionary answers.
struct Found {
  std::string path;
  std::string language;
  Answer answer;
};

class Printer {
 public:
  virtual ~Printer() = default;
  // The answer to one word; `found` is empty when no dictionary has it. A word that came from
  // standard input (`line`) gets an answer that can be told from the next one: exactly one line of
  // JSON, or lines of text that end with an empty line.
  virtual void print(const std::string& word, const std::vector<Found>& found, bool line) = 0;
  // The same for a word that cannot be looked up.
  virtual void refuse(const std::string& word, const std::string& message, bool line) = 0;
};

// With `grammar`, text and JSON also tell what attribute blocks say.
std::unique_ptr<Printer> make_printer(bool raw, bool json, bool grammar);

}  // namespace kzdic

#endif  // KZ_TOOLS_ENTRY_PRINTER_H
