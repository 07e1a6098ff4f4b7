// Importers: databases of other programs as source text.
//
//     using namespace kz::lexicon;
//     std::ostringstream text;
//     const ImportSummary summary = import_dictd("pets", "ENRU", text);
//     std::cout << summary.articles << " articles, " << summary.entries << " entries\n";
//     Builder builder({.language = summary.language});
//     builder.add_source(SourceReader().add(text.str(), "pets").take());
//     builder.write("imported.dic");
//     // Output: 1 articles, 1 entries
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
  std::string name;      // of the database: its base name
  std::string language;  // as given, or as derived from the name and the data
  std::size_t articles = 0;
  std::size_t entries = 0;
  std::size_t plain_headwords = 0;  // written in plain letters: a character is not in the code page
  std::size_t bad_characters = 0;   // headwords left out: a character is not in the code page
  std::size_t unindexed = 0;        // headwords left out: without a letter, or too long
  std::size_t empty = 0;            // articles of which no translation is left
  Losses losses;                    // of the entries that were written
};

// The paths of a database of dictd, whether there are such files or not: BASE.index, BASE.dict.dz
// and BASE.dict. `base` is BASE or any of them.
KZL_API std::vector<std::string> dictd_files(const std::string& base);

// A database of dictd: BASE.index with BASE.dict or BASE.dict.dz. `language` is that of the
// dictionary, "ENRU"; when it is empty, it is derived from the name and the data. Writes directives
// and source lines (docs/sources.md) to `out`, whose failures the caller checks. Throws Error:
// kFile for files that cannot be read, kData for damaged ones, kArgument for languages that the
// data leave unclear.
KZL_API ImportSummary import_dictd(const std::string& base, const std::string& language,
                                   std::ostream& out);

}  // namespace kz::lexicon

#endif  // KZLEXICON_IMPORTERS_H
