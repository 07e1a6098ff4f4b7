// Everything of libkzlexicon: dictionaries read, searched, built, imported and checked, in UTF-8.
//
// Rules that hold for all of it, unless a declaration says otherwise:
// - Texts are UTF-8, passed as views that the call does not keep, and returned by value.
// - Failures are exceptions of the type Error (kzlexicon/error.h); std::bad_alloc aside, nothing
//   else is thrown. When a call throws, its objects stay usable, unless it says otherwise.
// - An object serves one thread at a time; any number of threads may use objects of their own.
//   The const members of one object may be called by several threads at once.
// - A moved-from object may only be destroyed or assigned to.
// - The library prints nothing, never ends the process, and neither reads nor sets the locale.
//
//     std::cout << kz::lexicon::part_name("V") << '\n';
//     // Output: verb
#ifndef KZLEXICON_LEXICON_H
#define KZLEXICON_LEXICON_H

#include "kzlexicon/builder.h"
#include "kzlexicon/code_page.h"
#include "kzlexicon/dictionary.h"
#include "kzlexicon/dictionary_set.h"
#include "kzlexicon/entry.h"
#include "kzlexicon/error.h"
#include "kzlexicon/grammar.h"
#include "kzlexicon/importers.h"
#include "kzlexicon/inflector.h"
#include "kzlexicon/output.h"
#include "kzlexicon/source.h"
#include "kzlexicon/text.h"

#endif  // KZLEXICON_LEXICON_H
