// Views of entries in the code pages of their dictionary.
#ifndef KZ_LEXICON_RECORD_VIEW_H
#define KZ_LEXICON_RECORD_VIEW_H

#include <string>

#include "kzlexicon/entry.h"

namespace kz::lexicon {

EntryView view_record(const std::string& record, const std::string& language);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_RECORD_VIEW_H
