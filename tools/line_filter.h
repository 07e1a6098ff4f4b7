// Filters: commands that read lines and answer each of them.
//
// Lines are answered as they arrive: behind every piece that standard input delivers, the whole
// lines in it are converted together and written at once, so that a program at the other end of a
// pipe gets its answer and a file is converted in large pieces. A very long line is the only thing
// that is held in the memory as a whole: it is answered in pieces, twice, so that none of its
// answer is written when a later piece cannot be answered.
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

  // Of a piece of a long line: the whole line, and where the piece is in it.
  std::string_view whole = {};
  std::size_t offset = 0;
  bool rehearsal = false;  // the same piece comes again, and this answer is thrown away
};

class LineFilter {
 public:
  virtual ~LineFilter() = default;

  // Appends what becomes of the lines. Throws BadText or Failure for a line that cannot be
  // answered; the lines before it are then asked for again, one by one.
  virtual void answer(const Block& block, std::string& out) = 0;

  // How many bytes of a long line, from a place on, can be answered as one piece: about kPiece.
  // Here, they end with a character, and not inside of a character reference.
  static constexpr std::size_t kPiece = 65536;
  virtual std::size_t piece_size(std::string_view line, std::size_t offset);

  // Whether the text is UTF-8, in which a byte-order mark may come first.
  virtual bool reads_utf8() const { return true; }

  // Tells about one line without its line end, when JSON is wanted: its answer, as "output".
  virtual void describe(const Block& line, nlohmann::ordered_json& object);
};

// Answers all lines of the files. Throws Failure, which names file and line, when one cannot be
// answered; the answers to those before it are written.
void run_filter(LineFilter& filter, const FilterOptions& options);

}  // namespace kzdic

#endif  // KZ_TOOLS_LINE_FILTER_H
