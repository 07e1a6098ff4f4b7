// kzdic grammar: tag strings and attribute names in words.
#ifndef KZ_TOOLS_GRAMMAR_COMMAND_H
#define KZ_TOOLS_GRAMMAR_COMMAND_H

#include <string>
#include <vector>

#include "tools/status.h"

namespace kzdic {

// A command works on its arguments or, when the first of them that may be is "-", on the lines of
// standard input: each line gets one answer, one line with `json`, else lines that end with an
// empty one. A line that cannot be answered says so in its answer, and decides the status.
struct GrammarOptions {
  std::string code;                // decode, encode: the part of speech, or "-"
  std::string kind;                // name: "0" to "2", "class", "addition" or "change"
  std::vector<std::string> texts;  // decode: a tag string; encode: fields; name: names or indices
  bool json = false;
};

Status decode_grammar(const GrammarOptions& options);
Status encode_grammar(const GrammarOptions& options);
// kNotFound when a name is none.
Status name_grammar(const GrammarOptions& options);

}  // namespace kzdic

#endif  // KZ_TOOLS_GRAMMAR_COMMAND_H
