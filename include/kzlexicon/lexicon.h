// Everything of libkzlexicon: dictionaries read, searched, built, imported and checked, in UTF-8.
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
#include "kzlexicon/source.h"
#include "kzlexicon/text.h"

#endif  // KZLEXICON_LEXICON_H
