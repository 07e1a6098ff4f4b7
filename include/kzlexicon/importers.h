// Importers: databases of other programs as source text.
//
//     using namespace kz::lexicon;
//     std::ofstream out("mueller7.txt");
//     const ImportSummary summary = import_dictd("/usr/share/dictd/mueller7", {}, out);
//     std::cout << summary.articles << " articles, " << summary.entries << " entries\n";
#ifndef KZLEXICON_IMPORTERS_H
#define KZLEXICON_IMPORTERS_H

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

#include "kzlexicon/export.h"
#include "kzlexicon/source.h"

namespace kz::lexicon {

// What was read, written and left out.
struct ImportSummary {
  std::string name;  // of the database
  std::string language;
  std::size_t articles = 0;
  std::size_t entries = 0;
  std::size_t plain_headwords = 0;  // written in plain letters: a character is not in the code page
  std::size_t bad_characters = 0;   // headwords left out: a character is not in the code page
  std::size_t unindexed = 0;        // headwords left out: without a letter, or too long
  std::size_t empty = 0;            // articles of which no translation is left
  Losses losses;
};

// The files of a database of dictd, which any of them names, or BASE without an extension.
KZL_API std::vector<std::string> dictd_files(const std::string& base);

// A database of dictd: BASE.index with BASE.dict or BASE.dict.dz. `language` is that of the
// dictionary, "ENRU"; when it is empty, it is derived from the name and the data. Writes directives
// and source lines. Throws Error for files that cannot be read or are damaged.
KZL_API ImportSummary import_dictd(const std::string& base, const std::string& language,
                                   std::ostream& out);

}  // namespace kz::lexicon

#endif  // KZLEXICON_IMPORTERS_H
