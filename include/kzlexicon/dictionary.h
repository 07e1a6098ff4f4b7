// Dictionaries: open one, look words up, walk its entries.
//
//     using namespace kz::lexicon;
//     Dictionary dictionary("baseenru.dic");
//     for (const Entry& entry : dictionary.find("Table").entries)
//       std::cout << entry.view().meanings[0].synonyms[0] << '\n';
//     // Output: стол
//
// Searches keep their place in the Dictionary, so that it serves one thread at a time: threads open
// one each, which costs a file descriptor, the header and the index. Entries are values that
// outlive it. A word that is not there is no error.
#ifndef KZLEXICON_DICTIONARY_H
#define KZLEXICON_DICTIONARY_H

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kzlexicon/entry.h"
#include "kzlexicon/export.h"
#include "kzlexicon/inflector.h"

namespace kz::lexicon {

// What the header of a dictionary file states, and the sizes of its parts in bytes.
struct Header {
  int generation = 0;    // 1, 2, or 3 for the current format
  std::string language;  // "ENRU"; empty when unknown
  std::string type;      // "C"; empty when unknown
  std::string title;
  std::string label;
  bool has_password = false;
  bool checksum_agrees = false;  // the checksum of the header is right; of no effect on searches
  int property = 0;              // as stored
  int version = 0;               // as stored; 538 before packed records
  std::int64_t time_stamp = 0;   // seconds since 1970; 0 for none
  bool packed = false;           // front-coded records
  bool shared = false;           // has a shared-text block
  int depth = 0;                 // letters of a word that the index looks at: 2, 3 or 5
  int alphabet = 0;              // letters that the index knows: 26, 32 or 43
  std::int64_t file_size = 0;
  std::int64_t record_bytes = 0;
  std::int64_t index_bytes = 0;
  std::int64_t shared_bytes = 0;
};

// What a walk over the whole dictionary counts.
struct Statistics {
  std::size_t blocks = 0;          // of records, that the index names
  std::int64_t largest_block = 0;  // in bytes
  std::size_t records = 0;
  std::size_t headwords = 0;         // different ones
  std::size_t references = 0;        // records that name shared text
  std::size_t longest_headword = 0;  // in characters
  std::size_t longest_record = 0;    // in characters, unpacked
};

// An entry of a dictionary; a value that does not depend on the dictionary. Every call converts or
// takes apart the record anew; bytes without a character become U+FFFD.
class KZL_API Entry {
 public:
  // `record` is in the code pages of the language, "ENRU".
  Entry(std::string record, std::string language);

  std::string text() const;      // the entry as the dictionary has it, "cat*N[|M]кот"
  std::string headword() const;  // as it is indexed, mostly in lower case
  EntryView view() const;        // its pieces, without the marks of the format

  // The record in the code pages of the dictionary, and the dictionary's language.
  const std::string& record() const { return record_; }
  const std::string& language() const { return language_; }

 private:
  std::string record_;
  std::string language_;
};

// The forms in which a word is looked up, in this order. The first that has entries ends the
// search.
enum class Step {
  kNone,
  kTyped,
  kLowerCase,  // lower-cased by the dictionary's language
  kFolded,     // lower-cased, and the Russian letter ё written as е
  kPlain,      // in plain letters or punctuation that the dictionary has for others
  kInflected,  // the headword of an inflected form
};

// The entries found for a word; true when there are any.
struct Answer {
  Step step = Step::kNone;     // how the entries were found; kNone when there are none
  std::vector<Entry> entries;  // in the order of the dictionary
  std::string ending;          // of kInflected: "-ами (NF 1)"; empty for a form without ending

  explicit operator bool() const { return step != Step::kNone; }
};

// "as typed", "in lower case", "by its ending -ами (NF 1)"; empty for kNone.
KZL_API std::string describe_step(const Answer& answer);

// The part of a dictionary that a walk covers; empty texts set no bound.
struct WalkRange {
  std::string first{};       // only headwords that begin with this letter or a later one
  std::string last{};        // only headwords that begin with this letter or an earlier one
  std::string part_codes{};  // only entries with one of these part codes, "NV",
  bool other_codes = false;  // or, when this is set, only entries with none of them
};

class KZL_API Dictionary {
 public:
  // Opens a file, which stays open as long as the object. Throws Error: kFile when it cannot be
  // opened, kData when it is no dictionary.
  explicit Dictionary(const std::string& path);
  // Opens the bytes of a dictionary file, such as Builder::to_memory gives; a copy of them is kept.
  // `name` stands for the path in path() and in messages. Throws Error: kData, or kFile when there
  // is no memory for a copy.
  static Dictionary from_memory(std::string_view bytes, const std::string& name = "(memory)");
  ~Dictionary();
  Dictionary(Dictionary&& other) noexcept;
  Dictionary& operator=(Dictionary&& other) noexcept;

  // These live as long as the dictionary and stay the same.
  const std::string& path() const;
  const std::string& language() const;  // "ENRU"; empty when the header names none
  const Header& header() const;
  // Opens the file anew and reads all of it. Throws Error when it cannot be opened.
  Statistics statistics() const;

  // The searches throw BadUtf8 for a word that is not UTF-8, and no other Error: a word that the
  // dictionary cannot have has an empty answer.

  // The entries of a headword, by the first step that has any. `next` asks for that many of the
  // entries that follow; the answer has them after those of the word.
  Answer find(std::string_view word, std::size_t next = 0);
  // All entries whose headword begins with the word, by the first step that has any. The empty word
  // has none; entries() has all.
  Answer find_prefix(std::string_view word);
  // An answer for each headword that the word may be a form of, the most likely first. Only
  // dictionaries from Russian have any; find() does not look for inflected forms.
  std::vector<Answer> find_inflected(std::string_view word, const Inflector& inflector);

  // The entries of a range, in the order of the file:
  //
  //   for (const Entry& entry : dictionary.entries()) ...
  //
  // A walk opens the file anew: searches do not disturb it, and it may outlive the dictionary.
  // Throws Error: kFile when the file cannot be opened any more, kArgument for a bound that is no
  // letter of the dictionary, kCodePage and kData for texts that its code page cannot hold.
  class Walk;
  Walk entries(const WalkRange& range = {}) const;

 private:
  friend class DictionarySet;
  struct Impl;
  explicit Dictionary(std::unique_ptr<Impl> impl);
  std::unique_ptr<Impl> impl_;
};

class KZL_API Dictionary::Walk {
 public:
  // An input iterator: it reads one entry after the other, and *it is valid until ++it. It belongs
  // to the walk, which must neither move nor end while it is in use.
  class KZL_API Iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using value_type = Entry;
    using difference_type = std::ptrdiff_t;
    using pointer = const Entry*;
    using reference = const Entry&;

    Iterator() = default;
    explicit Iterator(Walk* walk) : walk_(walk) {}
    reference operator*() const { return walk_->current(); }
    pointer operator->() const { return &walk_->current(); }
    Iterator& operator++() {
      if (!walk_->next()) walk_ = nullptr;
      return *this;
    }
    void operator++(int) { ++*this; }
    friend bool operator==(const Iterator&, const Iterator&) = default;

   private:
    Walk* walk_ = nullptr;
  };

  ~Walk();
  Walk(Walk&& other) noexcept;
  Walk& operator=(Walk&& other) noexcept;

  // The walk goes on where it is: begin() is the next entry, so that a loop that was left by break
  // can be continued by another. Throws Error (kFile), as ++ does, when the dictionary cannot be
  // read.
  Iterator begin() { return next() ? Iterator(this) : Iterator(); }
  Iterator end() const { return {}; }

 private:
  friend class Dictionary;
  struct Impl;
  explicit Walk(std::unique_ptr<Impl> impl);
  bool next();
  const Entry& current() const;
  std::unique_ptr<Impl> impl_;
};

}  // namespace kz::lexicon

#endif  // KZLEXICON_DICTIONARY_H
