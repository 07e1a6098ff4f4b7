// Inflection tables: the endings that a form of a word can have, and the headwords it may belong
// to.
//
// A table is a text with an ending and its attributes on each line (docs/tables.md);
// data/ruflex.txt is one for Russian. Tables are compiled to ".Dat" files, which programs load.
//
//     using namespace kz::lexicon;
//     Inflector::compile_file("data/ruflex.txt", "ruflex.Dat");
//     const Inflector inflector("ruflex.Dat");
//     std::cout << inflector.headwords("столами").front().headword << '\n';
//     // Output: стол
//
// Any number of threads may use one Inflector at once.
#ifndef KZLEXICON_INFLECTOR_H
#define KZLEXICON_INFLECTOR_H

#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kzlexicon/export.h"

namespace kz::lexicon {

// One record of an ending: a class of words that have it. docs/tables.md describes classes,
// additions and stem changes.
struct InflectionReading {
  std::string word_class;            // "NM"
  std::string addition;              // empty for none
  int paradigm = 0;                  // 0 for none
  std::string letter;                // of the paradigm; empty for none
  std::string stem_change;           // empty for none
  std::vector<std::string> grammar;  // "noun", "masculine": the part of speech comes first
};

// An ending of the table that a word has.
struct Ending {
  std::string ending;
  std::string rest;        // the word without it, in lower case
  std::string attributes;  // the line of the table: "ами NM 1 | NF 1"
  std::vector<InflectionReading> readings;
};

// How a word of a headword is inflected.
enum class WordGroup { kMasculine, kFeminine, kNeuter, kPlural, kAdjective, kVerb };

// A headword that a word may be a form of.
struct HeadwordForm {
  std::string headword;  // in lower case
  WordGroup group = WordGroup::kMasculine;
  std::string ending;      // as the table writes it; empty for a form without ending
  std::string word_class;  // "NF 1"
};

class KZL_API Inflector {
 public:
  // Loads a compiled table, whose name ends in ".Dat", into memory. Throws Error: kArgument for
  // another name, kFile when it cannot be opened, kData when it is no table.
  explicit Inflector(const std::string& path);
  ~Inflector();
  Inflector(Inflector&& other) noexcept;
  Inflector& operator=(Inflector&& other) noexcept;

  // Compiles the text of a table into the file `path`, whose name ends in ".Dat", and writes the
  // text in Windows-1251 beside it, "ruflex.txt" for "ruflex.Dat". `name` is that of the text in
  // messages. Throws Error: kArgument for another name and for an output that is the input, kFile,
  // kData and kCodePage with the line that a reader would pass over or not understand. The files
  // appear under their names when they are complete.
  static void compile(std::istream& text, const std::string& name, const std::string& path);
  static void compile_file(const std::string& text_name, const std::string& path);
  // The path of the text beside a table. Throws Error (kArgument) for a path that does not end in
  // ".Dat".
  static std::string text_path(const std::string& path);

  // Both take a word in any case, have nothing for a word that Windows-1251 cannot hold, and throw
  // BadUtf8.

  // The known endings of a word, the longest first.
  std::vector<Ending> endings(std::string_view word) const;
  // The headwords to look for, the most likely first. Most of them are no words: a dictionary
  // decides, as Dictionary::find_inflected does.
  std::vector<HeadwordForm> headwords(std::string_view word) const;

 private:
  friend class Dictionary;
  struct Table;
  std::unique_ptr<Table> table_;
};

}  // namespace kz::lexicon

#endif  // KZLEXICON_INFLECTOR_H
