// Walks over the entries of a dictionary.
#include <memory>
#include <utility>

#include "kz/dic_error.h"
#include "kz/dic_index.h"
#include "kz/dic_iterator.h"
#include "kz/special.h"
#include "lexicon/search/dictionary_impl.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

struct CloseIterator {
  void operator()(CDicEntryIterator* iterator) const { DicIteratorClose(iterator); }
};
using IteratorHandle = std::unique_ptr<CDicEntryIterator, CloseIterator>;

std::string argument(const char* name, const std::string& utf8, CodePage page) {
  try {
    return encode_utf8(utf8, page);
  } catch (const Unmappable& error) {
    throw Error(ErrorCode::kCodePage, std::string(name) + ": " + error.what());
  } catch (const BadUtf8&) {
    throw Error(ErrorCode::kData, std::string(name) + " is not UTF-8");
  }
}

// The range of first letters, in the order of the dictionary. Letters that differ in their accent
// only have one place.
class LetterRange {
 public:
  LetterRange(const Header& header, const std::string& first, const std::string& last)
      : language_(header.language),
        alphabet_(static_cast<std::int16_t>(header.alphabet)),
        first_(first.empty() ? kNoLetter : place_of_word(first)),
        last_(last.empty() ? header.alphabet : place_of_word(last)) {}

  bool is_before(char letter) const { return place(letter) < first_; }
  bool is_after(char letter) const { return place(letter) > last_; }

 private:
  // The place of what is no letter: those words come before all others.
  static constexpr int kNoLetter = -1;

  int place(char letter) const {
    const char* const language = language_.c_str();
    const int slot = Index1(kz_codr_base_member(letter, language), language, alphabet_);
    return slot < 0 || slot >= alphabet_ ? kNoLetter : slot;
  }

  int place_of_word(const std::string& utf8) const {
    const std::string bytes = argument("the letter", utf8, source_page(language_));
    const int found = place(lower_case(bytes, language_)[0]);
    if (found != kNoLetter) return found;
    throw Error(ErrorCode::kArgument, utf8 + ": begins with no letter of the dictionary");
  }

  std::string language_;
  std::int16_t alphabet_;
  int first_;
  int last_;
};

}  // namespace

struct Dictionary::Walk::Impl {
  Impl(const Dictionary::Impl& dictionary, const WalkRange& range)
      : path(dictionary.path),
        shown(dictionary.shown),
        header(dictionary.header),
        letters(dictionary.header.stated, range.first, range.last),
        memory(dictionary.memory),
        entry({}, dictionary.header.stated.language) {
    const std::string codes = argument("part codes", range.part_codes, CodePage::kRussian);
    DictionaryHandle own = open_dictionary(dictionary.path, DIC_MODE_PLAIN);
    iterator.reset(DicIteratorOpen(own.get(), nullptr, nullptr, "", 0, codes.c_str(),
                                   range.other_codes ? 0 : 1));
    if (!iterator) throw Error(ErrorCode::kFile, "not enough memory", {shown});
    static_cast<void>(own.release());  // the iterator closes it
  }

  const char* next_record() {
    if (std::exchange(started, true)) {
      return DicIteratorGetNextEntry(iterator.get(), nullptr, nullptr, nullptr, nullptr);
    }
    return DicIteratorGetFirstEntry(iterator.get(), nullptr, nullptr, nullptr, nullptr, 0);
  }

  // False when the file cannot give the records that its header states.
  bool is_readable() const {
    const auto size = static_cast<std::size_t>(header.stated.record_bytes);
    return read_bytes(path, header.data_offset, size).size() == size;
  }

  std::string path;
  std::string shown;
  FileHeader header;
  LetterRange letters;
  std::shared_ptr<const platform::MemoryFile> memory;
  IteratorHandle iterator;
  bool started = false;
  Entry entry;
};

Dictionary::Walk::Walk(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Dictionary::Walk::~Walk() = default;
Dictionary::Walk::Walk(Walk&& other) noexcept = default;
Dictionary::Walk& Dictionary::Walk::operator=(Walk&& other) noexcept = default;

bool Dictionary::Walk::next() {
  const char* record = impl_->next_record();
  while (record != nullptr && impl_->letters.is_before(record[0])) record = impl_->next_record();
  if (record != nullptr && !impl_->letters.is_after(record[0])) {
    impl_->entry = Entry(record, impl_->entry.language());
    return true;
  }
  // The error variable is one for the process: another thread may have set it.
  if (record == nullptr && kz_dict_dic_errno() == DIC_ERR_FILE && !impl_->is_readable()) {
    throw Error(ErrorCode::kFile, "cannot read", {impl_->shown});
  }
  return false;
}

const Entry& Dictionary::Walk::current() const { return impl_->entry; }

Dictionary::Walk Dictionary::entries(const WalkRange& range) const {
  return Walk(std::make_unique<Walk::Impl>(*impl_, range));
}

}  // namespace kz::lexicon
