// Entry iterators: a walk over the records of one dictionary.
#include "kz/dic_iterator.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>
#include <string_view>

#include "dictionary/index.h"
#include "dictionary/iterator_record.h"
#include "dictionary/lookup.h"
#include "kz/dictionary.h"
#include "kz/special.h"
#include "text/literal.h"

namespace kz {
namespace {

// The walk hands out whole records.
constexpr std::int16_t kResolved = DIC_LEVEL_FULL;

constexpr int kWesternSize = 43;

enum State : std::int16_t { kClosed = 0, kOpened = 1, kReading = 2 };

void copy_word(char (&field)[80], const char* word) {
  const std::size_t length = word != nullptr ? strnlen(word, sizeof field - 1) : 0;
  *std::copy_n(word, length, field) = 0;
}

}  // namespace

// The private parts of an iterator. It has no state of its own.
class EntryWalk {
 public:
  explicit EntryWalk(CDicEntryIterator& iterator) : it_(iterator) {}

  bool open(CDic* dictionary, const char* path, const char* from, const char* to,
            const char* filter, std::int16_t include);
  void close(bool borrowed);

  CDic* dictionary() const { return it_.dictionary_; }
  // The dictionary's language, for a dictionary that is there.
  const char* language() const { return Lookup::language(*it_.dictionary_); }
  std::int32_t counter() const { return it_.counter_; }

  const char* first(const RecordOutputs& outputs, std::int16_t search_mode);
  const char* next(const RecordOutputs& outputs);

 private:
  enum class Verdict { kEnd, kSkip, kKeep };

  void set_range(bool has_end);
  char base_of(char letter) const {
    return static_cast<char>(kz_codr_base_member(letter, language()));
  }
  void step() { it_.record_ = DicFindNext(it_.dictionary_, kResolved); }
  void find_start();
  const char* keep(const RecordOutputs& outputs);
  Verdict examine(const RecordOutputs& outputs);
  bool is_after_end(char letter) const;
  bool passes_filter(char code) const;

  CDicEntryIterator& it_;
};

bool EntryWalk::open(CDic* dictionary, const char* path, const char* from, const char* to,
                     const char* filter, std::int16_t include) {
  // The texts may belong to the dictionary that is closed here: its path, a record of it.
  const ZCString own_path(path);
  copy_word(it_.from_, from);
  copy_word(it_.to_, to);
  it_.filter_ = filter;
  it_.include_ = include;
  const bool given = dictionary != nullptr;
  close(given && dictionary == it_.dictionary_);
  if (!given) dictionary = DicOpen(own_path, DIC_MODE_PLAIN);
  if (dictionary == nullptr) return false;
  if (it_.from_[0] != 0 && !IndexCore(Lookup::index(*dictionary)).set_prefix(it_.from_)) {
    if (!given) DicClose(dictionary);
    return false;
  }
  it_.dictionary_ = it_.dictionary_copy_ = dictionary;
  set_range(to != nullptr);
  it_.counter_ = 0;
  it_.state_ = kOpened;
  it_.record_ = DicFind(dictionary, nullptr, DIC_SEARCH_EXACT, DIC_LEVEL_FULL);
  return true;
}

// Without a to word the range is one letter; an empty one leaves its end open.
void EntryWalk::set_range(bool has_end) {
  const bool russian = *language() == 'R';
  const auto first_letter = russian ? static_cast<char>(U'а'_1251) : 'a';
  const auto last_letter = russian ? static_cast<char>(U'я'_1251) : 'z';
  it_.start_letter_ = it_.from_[0] != 0 ? it_.from_[0] : first_letter;
  it_.end_letter_ = it_.start_letter_;
  if (has_end) it_.end_letter_ = it_.to_[0] != 0 ? it_.to_[0] : last_letter;
  it_.start_base_ = base_of(it_.start_letter_);
  it_.end_base_ = base_of(it_.end_letter_);
}

void EntryWalk::close(bool borrowed) {
  if (it_.state_ != kClosed && !borrowed) DicClose(it_.dictionary_);
  it_.dictionary_ = it_.dictionary_copy_ = nullptr;
  it_.state_ = kClosed;
  it_.record_ = nullptr;
}

const char* EntryWalk::first(const RecordOutputs& outputs, std::int16_t search_mode) {
  if (it_.dictionary_copy_ == nullptr) return nullptr;
  it_.counter_ = 0;
  if (search_mode == DIC_SEARCH_EXACT) {
    find_start();
  } else {
    const char* const asked = outputs.headword;
    const char letter[] = {it_.start_letter_, 0};
    const bool whole_letter = asked == nullptr || *asked == 0;
    it_.record_ = DicFind(it_.dictionary_, whole_letter ? letter : asked, search_mode, kResolved);
  }
  return keep(outputs);
}

// Walks from the first record of the dictionary to the first one under the range's letter.
void EntryWalk::find_start() {
  it_.state_ = kReading;
  it_.record_ = DicFind(it_.dictionary_, nullptr, DIC_SEARCH_EXACT, DIC_LEVEL_FULL);
  if (it_.start_letter_ == 'a' || it_.start_letter_ == static_cast<char>(U'а'_1251)) return;
  while (it_.record_ != nullptr && base_of(*it_.record_) != it_.start_base_) step();
}

const char* EntryWalk::next(const RecordOutputs& outputs) {
  if (it_.dictionary_copy_ == nullptr) return nullptr;
  step();
  return keep(outputs);
}

const char* EntryWalk::keep(const RecordOutputs& outputs) {
  for (; it_.record_ != nullptr; step()) {
    const Verdict verdict = examine(outputs);
    if (verdict == Verdict::kKeep) return it_.record_;
    if (verdict == Verdict::kEnd) break;
  }
  return nullptr;
}

EntryWalk::Verdict EntryWalk::examine(const RecordOutputs& outputs) {
  const std::string_view record = Lookup::entry(*it_.dictionary_);
  if (record.empty() || is_after_end(record[0])) return Verdict::kEnd;
  const RecordParts parts(record);
  if (!passes_filter(parts.code)) return Verdict::kSkip;
  parts.copy_to(outputs);
  ++it_.counter_;
  return Verdict::kKeep;
}

// True when the records that begin with the letter come after the range. The alphabet of 43 letters
// is not in the order of the code page: é and œ lie after z there. What is no letter of it stands
// before them all.
bool EntryWalk::is_after_end(char letter) const {
  const auto place = [&](char c) {
    if (Lookup::alphabet_size(*it_.dictionary_) != kWesternSize) {
      return int{static_cast<unsigned char>(c)};
    }
    const int slot = lat_abc_index(c);
    return slot == kWesternSize ? -1 : slot;
  };
  return place(base_of(letter)) > place(it_.end_base_);
}

bool EntryWalk::passes_filter(char code) const {
  const std::string_view filter(it_.filter_, static_cast<std::size_t>(it_.filter_.GetLength()));
  if (filter.empty()) return true;
  return (filter.find(code) != std::string_view::npos) == (it_.include_ != 0);
}

}  // namespace kz

using kz::EntryWalk;

CDicEntryIterator::CDicEntryIterator() = default;

CDicEntryIterator::~CDicEntryIterator() { CloseIterator(-1); }

CDicEntryIterator* CDicEntryIterator::OpenIterator(CDic* dictionary, const char* path,
                                                   const char* from, const char* to,
                                                   int16_t /*value*/, const char* filter,
                                                   int16_t include) {
  return EntryWalk(*this).open(dictionary, path, from, to, filter, include) ? this : nullptr;
}

void CDicEntryIterator::CloseIterator(intptr_t borrowed) {
  EntryWalk(*this).close(borrowed != 0 && borrowed != -1);
}

const char* CDicEntryIterator::GetFirstEntry(char* headword, char* code, char* body, char* extra,
                                             int16_t search_mode) {
  return EntryWalk(*this).first({headword, code, body, extra}, search_mode);
}

const char* CDicEntryIterator::GetNextEntry(char* headword, char* code, char* body, char* extra) {
  return EntryWalk(*this).next({headword, code, body, extra});
}

const char* CDicEntryIterator::GetLanguage(char* output) {
  if (GetDicHandler() == nullptr) return nullptr;
  const char* const language = EntryWalk(*this).language();
  if (output != nullptr) std::strcpy(output, language);
  return language;
}

int32_t CDicEntryIterator::GetCounter() { return EntryWalk(*this).counter(); }

CDic* CDicEntryIterator::GetDicHandler() { return EntryWalk(*this).dictionary(); }

CDicEntryIterator* DicIteratorOpen(CDic* dictionary, const char* path, const char* from,
                                   const char* to, int16_t value, const char* filter,
                                   int16_t include) {
  std::unique_ptr<CDicEntryIterator> iterator(new (std::nothrow) CDicEntryIterator);
  const bool open = iterator && iterator->OpenIterator(dictionary, path, from, to, value, filter,
                                                       include) != nullptr;
  return open ? iterator.release() : nullptr;
}

void DicIteratorClose(CDicEntryIterator* iterator) { delete iterator; }

const char* DicIteratorGetFirstEntry(CDicEntryIterator* iterator, char* headword, char* code,
                                     char* body, char* extra, int16_t search_mode) {
  if (iterator == nullptr) return nullptr;
  return iterator->GetFirstEntry(headword, code, body, extra, search_mode);
}

const char* DicIteratorGetNextEntry(CDicEntryIterator* iterator, char* headword, char* code,
                                    char* body, char* extra) {
  return iterator != nullptr ? iterator->GetNextEntry(headword, code, body, extra) : nullptr;
}

const char* DicIteratorGetLanguage(CDicEntryIterator* iterator, char* output) {
  return iterator != nullptr ? iterator->GetLanguage(output) : nullptr;
}

int32_t DicIteratorGetCounter(CDicEntryIterator* iterator) {
  return iterator != nullptr ? iterator->GetCounter() : 0;
}

CDic* DicIteratorGetDicHandler(CDicEntryIterator* iterator) {
  return iterator != nullptr ? iterator->GetDicHandler() : nullptr;
}
