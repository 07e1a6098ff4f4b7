// Exact search, search for beginnings, and the records that follow.
#include "kzlexicon/dictionary.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

#include "lexicon/entry/record_view.h"
#include "lexicon/search/dictionary_impl.h"
#include "lexicon/search/inflect_table.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/source/index_headword.h"
#include "lexicon/text/code_page.h"
#include "lexicon/text/plain_letters.h"

namespace kz::lexicon {
namespace {

std::string_view headword_of(std::string_view record) { return record.substr(0, record.find('*')); }

// The headword as it is written.
std::string spelling_of(std::string_view record) {
  const EntryLayout at = layout_of(record);
  if (at.source_word == record.size()) return std::string(record.substr(0, at.head_end));
  return std::string(record.substr(at.source_word + 2));
}

}  // namespace

Entry::Entry(std::string record, std::string language)
    : record_(std::move(record)), language_(std::move(language)) {}

std::string Entry::text() const { return decode_entry(record_, language_); }

std::string Entry::headword() const {
  return decode_utf8(headword_of(record_), source_page(language_));
}

EntryView Entry::view() const { return view_record(record_, language_); }

std::string describe_step(const Answer& answer) {
  switch (answer.step) {
    case Step::kTyped: return "as typed";
    case Step::kLowerCase: return "in lower case";
    case Step::kFolded: return "with е for ё";
    case Step::kPlain: return "in plain characters";
    case Step::kInflected:
      return answer.ending.empty() ? "as a form without ending" : "by its ending " + answer.ending;
    case Step::kNone: break;
  }
  return {};
}

Dictionary::Impl::Impl(const std::string& file, const std::string& name,
                       std::shared_ptr<const platform::MemoryFile> memory_file)
    : memory(std::move(memory_file)),
      own(open_dictionary(file, DIC_MODE_PLAIN)),
      handle(own.get()),
      path(file),
      shown(name),
      header(read_file_header(file)),
      order(header.stated.language.empty() ? "EN" : header.stated.language, header.stated.depth) {}

Dictionary::Impl::Impl(CDic* dictionary)
    : handle(dictionary),
      path(DicGetPath(dictionary)),
      shown(path),
      header(read_file_header(path)),
      order(header.stated.language.empty() ? "EN" : header.stated.language, header.stated.depth) {}

std::optional<Dictionary::Impl::Forms> Dictionary::Impl::forms(std::u32string_view word) const {
  const std::string& language = header.stated.language;
  const CodePage page = source_page(language);
  const auto plain = in_plain_letters(word, page);
  // '*' ends headwords and the line feed ends records: neither is in a word.
  if (!plain || plain->find_first_of(std::u32string_view(U"*\n\0", 3)) != std::string::npos) {
    return std::nullopt;
  }
  Forms forms;
  forms.typed = encode(*plain, page);
  forms.lower = lower_case(forms.typed, language);
  forms.folded = language.starts_with("RU") ? fold_yo(forms.lower) : forms.lower;
  forms.plain = *plain != word;
  return forms;
}

std::vector<Entry> Dictionary::Impl::exact(const std::string& word, std::size_t next) {
  std::vector<Entry> entries;
  const char* entry = DicFind(handle, word.c_str(), DIC_SEARCH_EXACT, DIC_LEVEL_FULL);
  if (entry == nullptr) return entries;
  // The exact headword comes first among those that begin with it; searched this way, what follows
  // does not end with the block.
  if (next > 0) entry = DicFind(handle, word.c_str(), DIC_SEARCH_REST, DIC_LEVEL_FULL);
  const auto keep = [&] {
    entries.emplace_back(entry, header.stated.language);
    entry = DicFindNext(handle, DIC_LEVEL_FULL);
  };
  while (entry != nullptr && headword_of(entry) == word) keep();
  for (; entry != nullptr && next > 0; --next) keep();
  return entries;
}

std::vector<Entry> Dictionary::Impl::beginning_with(const std::string& prefix) {
  std::vector<Entry> entries;
  if (prefix.empty()) return entries;
  // The key list of depth 5 does not find beginnings of fewer than five characters, nor keep the
  // words of one beginning together: all records are looked at.
  const bool keys = header.stated.depth == 5;
  const char* entry =
      DicFind(handle, keys ? nullptr : prefix.c_str(), DIC_SEARCH_REST, DIC_LEVEL_FULL);
  for (; entry != nullptr; entry = DicFindNext(handle, DIC_LEVEL_FULL)) {
    const std::string_view headword = headword_of(entry);
    if (!keys && !order.same_beginning(prefix, headword)) break;
    if (headword.starts_with(prefix)) entries.emplace_back(entry, header.stated.language);
  }
  return entries;
}

// A word that the index cannot hold at its beginning: the entries of its headword that are spelled
// so.
Answer Dictionary::Impl::find_spelled(const Query& query, const Forms& forms) {
  if (!order.refusal(forms.lower)) return {};
  const auto headword = index_headword(forms.lower, order, ForeignLetters::kTransliterated);
  if (!headword) return {};
  std::vector<Entry> entries =
      query.prefix ? beginning_with(*headword) : exact(*headword, query.next);
  Answer answer;
  answer.step = Step::kLowerCase;
  for (Entry& entry : entries) {
    const std::string spelling = spelling_of(entry.record());
    const std::string lower = lower_case(spelling, header.stated.language);
    const bool after =
        !query.prefix && !answer.entries.empty() && headword_of(entry.record()) != *headword;
    if (!after && (query.prefix ? !lower.starts_with(forms.lower) : lower != forms.lower)) continue;
    if (spelling.starts_with(forms.typed)) answer.step = Step::kTyped;
    answer.entries.push_back(std::move(entry));
  }
  return answer.entries.empty() ? Answer{} : answer;
}

Answer Dictionary::Impl::find_form(const Query& query, const Forms& forms) {
  Answer answer;
  const std::string* before = nullptr;
  for (const auto& [step, word] : {std::pair(Step::kTyped, &forms.typed),
                                   {Step::kLowerCase, &forms.lower},
                                   {Step::kFolded, &forms.folded}}) {
    if (before != nullptr && *word == *before) continue;
    before = word;
    answer = {step, query.prefix ? beginning_with(*word) : exact(*word, query.next), {}};
    if (!answer.entries.empty()) break;
  }
  if (answer.entries.empty()) answer = find_spelled(query, forms);
  if (answer.entries.empty()) return {};
  if (forms.plain) answer.step = Step::kPlain;
  return answer;
}

Answer Dictionary::Impl::find(const Query& query) {
  if (query.word.size() > kTooLong) {
    count_characters(query.word);
    return {};
  }
  const std::u32string word = from_utf8(query.word);
  Answer answer;
  if (const std::optional<Forms> written = forms(word)) answer = find_form(query, *written);
  const std::u32string plain = plain_punctuation(word);
  if (answer.step != Step::kNone || plain == word) return answer;
  if (const std::optional<Forms> other = forms(plain)) answer = find_form(query, *other);
  if (answer.step != Step::kNone) answer.step = Step::kPlain;
  return answer;
}

Dictionary::Dictionary(const std::string& path)
    : impl_(std::make_unique<Impl>(path, path, nullptr)) {}

Dictionary::Dictionary(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}

Dictionary Dictionary::from_memory(std::string_view bytes, const std::string& name) {
  const auto memory = std::make_shared<platform::MemoryFile>();
  if (!memory->write(bytes)) {
    throw Error(ErrorCode::kFile, std::string("cannot keep in memory: ") + std::strerror(errno),
                {name});
  }
  try {
    return Dictionary(std::make_unique<Impl>(memory->path(), name, memory));
  } catch (const Error& error) {
    Place place = error.place();
    place.file = name;
    throw Error(error.code(), error.message(), place);
  }
}

Dictionary::~Dictionary() = default;
Dictionary::Dictionary(Dictionary&& other) noexcept = default;
Dictionary& Dictionary::operator=(Dictionary&& other) noexcept = default;

const std::string& Dictionary::path() const { return impl_->shown; }
const std::string& Dictionary::language() const { return impl_->header.stated.language; }
const Header& Dictionary::header() const { return impl_->header.stated; }

Answer Dictionary::find(std::string_view word, std::size_t next) {
  return impl_->find({word, false, next});
}

Answer Dictionary::find_prefix(std::string_view word) { return impl_->find({word, true, 0}); }

}  // namespace kz::lexicon
