// Dictionaries: open one, look words up, walk its entries.
//
//     using namespace kz::lexicon;
//     Dictionary dictionary("baseenru.dic");
//     for (const Entry& entry : dictionary.find("Table").entries)
//       std::cout << entry.view().meanings[0].synonyms[0] << '\n';
//     // Output: стол
//
// All texts are UTF-8. A Dictionary serves one thread at a time: threads open one each, which costs
// little. Errors are thrown as Error; a word that is not there is no error.
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

// What the header of a dictionary file states.
struct Header {
  int generation = 0;    // 1, 2, or 3 for the current format
  std::string language;  // "ENRU"; empty when unknown
  std::string type;      // "C"; empty when unknown
  std::string title;
  std::string label;
  bool has_password = false;
  bool checksum_agrees = false;
  int property = 0;
  int version = 0;
  std::int64_t time_stamp = 0;  // seconds since 1970
  bool packed = false;          // front-coded records
  bool shared = false;          // has a shared-text block
  int depth = 0;                // of the letter index
  int alphabet = 0;             // letters of the index
  std::int64_t file_size = 0;
  std::int64_t record_bytes = 0;
  std::int64_t index_bytes = 0;
  std::int64_t shared_bytes = 0;
};

// What a walk over the whole dictionary counts.
struct Statistics {
  std::size_t blocks = 0;
  std::int64_t largest_block = 0;
  std::size_t records = 0;
  std::size_t headwords = 0;
  std::size_t references = 0;  // records that name shared text
  std::size_t longest_headword = 0;
  std::size_t longest_record = 0;
};

// An entry found; a value of its own.
class KZL_API Entry {
 public:
  // `record` is in the code pages of the language.
  Entry(std::string record, std::string language);

  std::string text() const;  // the entry as the dictionary has it
  std::string headword() const;
  EntryView view() const;

  // The record in the code pages of the dictionary, and the dictionary's language.
  const std::string& record() const { return record_; }
  const std::string& language() const { return language_; }

 private:
  std::string record_;
  std::string language_;
};

// The forms in which a word is looked up, in this order.
enum class Step {
  kNone,
  kTyped,
  kLowerCase,  // lower-cased by the dictionary's language
  kFolded,     // lower-cased, and the Russian letter ё written as е
  kPlain,      // in plain letters or punctuation that the dictionary has for others
  kInflected,  // the headword of an inflected form
};

struct Answer {
  Step step = Step::kNone;  // how the entries were found; kNone when there are none
  std::vector<Entry> entries;
  std::string ending;  // "-ами (NF 1)": how an inflected form was understood

  explicit operator bool() const { return step != Step::kNone; }
};

// "as typed", "in lower case", "by its ending -ами (NF 1)"
KZL_API std::string describe_step(const Answer& answer);

// The part of a dictionary that a walk covers; empty texts set no bound.
struct WalkRange {
  std::string first{};       // the first letter of the first headwords
  std::string last{};        // the first letter of the last headwords
  std::string part_codes{};  // only entries with one of these part codes,
  bool other_codes = false;  // or only entries with none of them
};

class KZL_API Dictionary {
 public:
  // Opens a file. Throws Error: kFile when it cannot be opened, kData when it is no dictionary.
  explicit Dictionary(const std::string& path);
  // Opens the bytes of a dictionary file, such as Builder::to_memory gives.
  static Dictionary from_memory(std::string_view bytes, const std::string& name = "(memory)");
  ~Dictionary();
  Dictionary(Dictionary&& other) noexcept;
  Dictionary& operator=(Dictionary&& other) noexcept;

  const std::string& path() const;
  const std::string& language() const;
  const Header& header() const;
  // Reads the whole dictionary.
  Statistics statistics() const;

  // The entries of a headword, by the first step that has any. `next` asks for so many of the
  // entries that follow them.
  Answer find(std::string_view word, std::size_t next = 0);
  // All entries whose headword begins with the word, by the first step that has any.
  Answer find_prefix(std::string_view word);
  // An answer for each headword that the word may be a form of, the most likely first. Only
  // dictionaries from Russian have any.
  std::vector<Answer> find_inflected(std::string_view word, const Inflector& inflector);

  // The entries of a range, in the order of the file:
  //
  //   for (const Entry& entry : dictionary.entries()) ...
  //
  // A walk has a place of its own; searches do not disturb it, and it may outlive the dictionary.
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

  // The walk goes on where it is: begin() is the next entry. Throws Error, as ++ does, when the
  // dictionary cannot be read.
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
