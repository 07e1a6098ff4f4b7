// Text in the encodings of kzlexicon/text.h, from and to code points.
#ifndef KZ_LEXICON_TEXT_ENCODING_H
#define KZ_LEXICON_TEXT_ENCODING_H

#include <cstddef>
#include <string>
#include <string_view>

#include "kzlexicon/text.h"

namespace kz::lexicon {

// Throws BadText.
std::u32string decode(std::string_view text, const Encoding& encoding);

// Appends the characters up to the first that the encoding lacks. Returns their number.
std::size_t append_encoded(std::u32string_view text, const Encoding& encoding, std::string& out);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_TEXT_ENCODING_H
