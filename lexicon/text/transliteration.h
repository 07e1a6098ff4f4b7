// The filters of transliteration that work on whole lines.
#ifndef KZ_LEXICON_TRANSLITERATION_H
#define KZ_LEXICON_TRANSLITERATION_H

#include <memory>

#include "kzlexicon/text.h"

namespace kz::lexicon {

// English words as they sound.
std::unique_ptr<TextFilter> smart_transliteration(bool small_letters);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_TRANSLITERATION_H
