// Filters: commands that read lines and answer each of them.
//
// Lines are answered as they arrive: after every piece that standard input delivers, the whole
// lines in it are converted together and written at once, so that a program at the other end of a
// pipe gets its answer and a file is converted in large pieces. A very long line is the only thing
// that is held in the memory as a whole: it is answered in pieces, twice, so that none of its
// answer is written when a later piece cannot be answered.
#ifndef KZ_TOOLS_LINE_FILTER_H
#define KZ_TOOLS_LINE_FILTER_H

#include <cstddef>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kzlexicon/text.h"
#include "tools/status.h"

namespace kzdic {

struct FilterOptions {
  std::vector<std::string> files;  // "-" is standard input, and so are no files at all
  bool json = false;
};

// Whole lines with their line ends, which the last line of a file may lack.
struct Block {
  std::string_view text;
  const std::string& file;
  std::size_t line;        // number of the first one
  bool rehearsal = false;  // the same text comes again, and this answer is thrown away
};

class LineFilter {
 public:
  virtual ~LineFilter() = default;

  // Appends what becomes of the lines. Throws BadText or Failure for a line that cannot be
  // answered; the lines before it are then asked for again, one by one.
  virtual void answer(const Block& block, std::string& out) = 0;
  // The same for the piece of a long line that begins at a place. Returns the size of the piece.
  virtual std::size_t answer_piece(const Block& line, std::size_t at, std::string& out) = 0;

  // True when the text is UTF-8, in which a byte-order mark may come first.
  virtual bool reads_utf8() const { return true; }

  // Tells about one line without its line end, when JSON is wanted.
  virtual void describe(const Block& line, nlohmann::ordered_json& object) = 0;
};

// A filter of the library; JSON has "input" and "output".
class TextLineFilter : public LineFilter {
 public:
  explicit TextLineFilter(std::unique_ptr<TextFilter> filter) : filter_(std::move(filter)) {}

  void answer(const Block& block, std::string& out) override { filter_->append(block.text, out); }
  std::size_t answer_piece(const Block& line, std::size_t at, std::string& out) override {
    return filter_->append_piece(line.text, at, out);
  }
  void describe(const Block& line, nlohmann::ordered_json& object) override;

 private:
  std::unique_ptr<TextFilter> filter_;
};

// Answers all lines of the files. Throws Failure, which names file and line, when one cannot be
// answered; the answers to those before it are written.
void run_filter(LineFilter& filter, const FilterOptions& options);

}  // namespace kzdic

#endif  // KZ_TOOLS_LINE_FILTER_H
