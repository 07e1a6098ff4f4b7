// Outputs beside inputs.
#ifndef KZ_LEXICON_OUTPUTS_H
#define KZ_LEXICON_OUTPUTS_H

#include <string>
#include <vector>

namespace kz::lexicon {

// Throws Error when the output is the same file as one of the inputs, under whatever names. "-"
// is standard output, or standard input. Devices that can be read and written at once, such as
// terminals, and files that are not there are no matter.
void refuse_inputs_as_output(const std::string& output, const std::vector<std::string>& inputs);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_OUTPUTS_H
