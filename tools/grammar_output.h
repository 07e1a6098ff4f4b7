// Decoded grammar as text and as JSON.
#ifndef KZ_TOOLS_GRAMMAR_OUTPUT_H
#define KZ_TOOLS_GRAMMAR_OUTPUT_H

#include <iosfwd>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

#include "kzlexicon/entry.h"
#include "tools/status.h"

namespace kzdic {

// "part-of-speech   N, noun (noun tags)", and one line per field name.
void print_part_of_speech(const std::string& code, std::ostream& out);
void print_fields(const std::vector<Field>& fields, std::ostream& out);
void print_decoded(const Decoded& decoded, std::ostream& out);

nlohmann::ordered_json fields_json(const std::vector<Field>& fields);
nlohmann::ordered_json decoded_json(const Decoded& decoded);
// {"source": ..., "target": ..., "synonyms": [...]}, those that there are.
nlohmann::ordered_json grammar_json(const std::vector<WordGrammar>& words);

}  // namespace kzdic

#endif  // KZ_TOOLS_GRAMMAR_OUTPUT_H
