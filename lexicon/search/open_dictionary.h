// A dictionary that is open for as long as the object lives.
#ifndef KZ_LEXICON_OPEN_DICTIONARY_H
#define KZ_LEXICON_OPEN_DICTIONARY_H

#include <cstdint>
#include <memory>
#include <string>

#include "kz/dictionary.h"

namespace kz::lexicon {

struct CloseDictionary {
  void operator()(CDic* dictionary) const { DicClose(dictionary); }
};
using DictionaryHandle = std::unique_ptr<CDic, CloseDictionary>;

// Throws Error: kFile when the file cannot be opened, kDamaged when it is no dictionary.
DictionaryHandle open_dictionary(const std::string& path, std::int16_t mode);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_OPEN_DICTIONARY_H
