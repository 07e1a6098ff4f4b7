// Filters: commands that read lines and answer each of them.
//
// Lines are answered as they arrive: behind every piece that standard input delivers, the whole
// lines in it are converted together and written at once, so that a program at the other end of a
// pipe gets its answer and a file is converted in large pieces.
#ifndef KZ_TOOLS_LINE_FILTER_H
#define KZ_TOOLS_LINE_FILTER_H

#include <cstddef>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace kzdic {

struct FilterOptions {
  std::vector<std::string> files;  // "-" is standard input, and so are no files at all
  bool json = false;
};

// Whole lines with their line ends, which the last line of a file may lack.
struct Block {
  std::string_view text;
  const std::string& file;
  std::size_t line;  // number of the first one
};

class LineFilter {
 public:
  virtual ~LineFilter() = default;

  // Appends what becomes of the lines. Throws BadText or Failure for a line that cannot be
  // answered; the lines before it are then asked for again, one by one.
  virtual void answer(const Block& block, std::string& out) = 0;

  // Tells about one line without its line end, when JSON is wanted: its answer, as "output".
  virtual void describe(const Block& line, nlohmann::ordered_json& object);
};

// Answers all lines of the files. Throws Failure, which names file and line, when one cannot be
// answered; the answers to those before it are written.
void run_filter(LineFilter& filter, const FilterOptions& options);

}  // namespace kzdic

#endif  // KZ_TOOLS_LINE_FILTER_H
