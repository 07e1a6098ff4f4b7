// Exact search, search for beginnings, and the records that follow.
#include "lexicon/search/search.h"

#include <array>
#include <set>
#include <utility>

#include "kz/gram_codec.h"
#include "kz/gram_record.h"
#include "lexicon/search/headword_forms.h"
#include "lexicon/search/inflect_table.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/source/index_headword.h"
#include "lexicon/text/code_page.h"
#include "lexicon/text/plain_letters.h"

namespace kz::lexicon {
namespace {

constexpr std::int16_t kExact = 0;
constexpr std::int16_t kToTheEnd = -1;  // beginnings, to the end of the records
constexpr std::int16_t kResolve = 2;

std::string_view headword_of(std::string_view entry) { return entry.substr(0, entry.find('*')); }

// The headword as it is written.
std::string spelling_of(std::string_view entry) {
  const EntryLayout at = layout_of(entry);
  if (at.source_word == entry.size()) return std::string(entry.substr(0, at.head_end));
  return std::string(entry.substr(at.source_word + 2));
}

// Gender and number of a noun's entry, as bits of a GRAMINFO; 0 when it does not tell.
std::uint32_t noun_grammar(std::string_view entry, const EntryLayout& at) {
  const std::size_t block = entry.find('[', at.part);
  if (block >= at.body) return 0;
  GRAMINFO gram{};
  SEMANTICS semantics{};
  char code = 0;
  std::array<char, 2> area{};
  const std::string tags(entry.substr(block + 1, at.body - block - 1));
  StrToGram(tags.c_str(), &code, &gram, &semantics, 'N', area.data());
  return gram.word[1] & (GRAM_MASCULINE | GRAM_FEMININE | GRAM_NEUTER | GRAM_NO_SINGULAR);
}

// Whether a noun of this grammar may be declined as one of the group. Masculine nouns in а and я
// (папа) are declined as feminine ones.
bool is_declined(std::uint32_t grammar, WordGroup group, std::string_view headword) {
  static const std::string kFeminineEnds = encode(U"ая", CodePage::kRussian);
  if (grammar == 0) return true;
  if ((grammar & GRAM_NO_SINGULAR) != 0) return group == WordGroup::kPlural;
  switch (group) {
    case WordGroup::kMasculine: return (grammar & GRAM_MASCULINE) != 0;
    case WordGroup::kFeminine:
      return (grammar & GRAM_FEMININE) != 0 ||
             ((grammar & GRAM_MASCULINE) != 0 &&
              kFeminineEnds.find(headword.back()) != std::string::npos);
    case WordGroup::kNeuter: return (grammar & GRAM_NEUTER) != 0;
    default: return false;
  }
}

// Whether the form may be one of this entry's word. A reference has no part of speech of its own;
// nouns such as рабочий are declined like adjectives.
bool belongs_to(const HeadwordForm& form, std::string_view entry) {
  const EntryLayout at = layout_of(entry);
  if (at.part >= entry.size()) return false;
  const char part = entry[at.part];
  const bool noun = part == 'N' || part == 'n';
  if (form.group == WordGroup::kVerb) {
    return std::string_view("VvXY").find(part) != std::string_view::npos;
  }
  if (form.group == WordGroup::kAdjective) return noun || part == 'A' || part == 'a';
  if (part == '=') return true;
  return noun && is_declined(noun_grammar(entry, at), form.group, form.headword);
}

std::string describe(const HeadwordForm& form) {
  if (form.ending.empty()) return {};
  return to_utf8(decode("-" + form.ending, CodePage::kRussian)) + " (" + form.word_class + ")";
}

}  // namespace

Searcher::Searcher(const std::string& path) : Searcher(open_dictionary(path, 0)) {}

Searcher::Searcher(Dictionary dictionary) : Searcher(dictionary.get()) {
  own_ = std::move(dictionary);
}

Searcher::Searcher(CDic* dictionary)
    : path_(DicGetPath(dictionary)),
      dictionary_(dictionary),
      header_(read_file_header(path_)),
      order_(header_.language.empty() ? "EN" : header_.language, header_.depth) {}

// The query in the dictionary's code page: none when it has characters that cannot be written in
// it.
std::optional<Searcher::Forms> Searcher::forms(std::u32string_view word) const {
  const CodePage page = source_page(header_.language);
  const auto plain = in_plain_letters(word, page);
  // '*' ends headwords and the line feed ends records: neither is in a word.
  if (!plain || plain->find_first_of(std::u32string_view(U"*\n\0", 3)) != std::string::npos) {
    return std::nullopt;
  }
  Forms forms;
  forms.typed = encode(*plain, page);
  forms.lower = lower_case(forms.typed, header_.language);
  forms.folded = header_.language.starts_with("RU") ? fold_yo(forms.lower) : forms.lower;
  forms.plain = *plain != word;
  return forms;
}

std::vector<std::string> Searcher::exact(const std::string& word, std::size_t next) {
  std::vector<std::string> entries;
  CDic* const dictionary = dictionary_;
  const char* entry = DicFind(dictionary, word.c_str(), kExact, kResolve);
  if (entry == nullptr) return entries;
  // The exact headword stands first among those that begin with it; searched this way, what
  // follows does not end with the block.
  if (next > 0) entry = DicFind(dictionary, word.c_str(), kToTheEnd, kResolve);
  for (; entry != nullptr && headword_of(entry) == word;
       entry = DicFindNext(dictionary, kResolve)) {
    entries.emplace_back(entry);
  }
  for (; entry != nullptr && next > 0; --next, entry = DicFindNext(dictionary, kResolve)) {
    entries.emplace_back(entry);
  }
  return entries;
}

std::vector<std::string> Searcher::beginning_with(const std::string& prefix) {
  std::vector<std::string> entries;
  if (prefix.empty()) return entries;
  CDic* const dictionary = dictionary_;
  // The key list of depth 5 does not find beginnings of fewer than five characters, nor keep the
  // words of one beginning together: all records are looked at.
  const bool keys = header_.depth == 5;
  const char* entry = DicFind(dictionary, keys ? nullptr : prefix.c_str(), kToTheEnd, kResolve);
  for (; entry != nullptr; entry = DicFindNext(dictionary, kResolve)) {
    const std::string_view headword = headword_of(entry);
    if (!keys && !order_.same_beginning(prefix, headword)) break;
    if (headword.starts_with(prefix)) entries.emplace_back(entry);
  }
  return entries;
}

// A word that the index cannot hold at its beginning: the entries of its headword that are spelled
// so.
Answer Searcher::find_spelled(const Query& query, const Forms& forms) {
  if (!order_.refusal(forms.lower)) return {};
  const auto headword = index_headword(forms.lower, order_, ForeignLetters::kTransliterated);
  if (!headword) return {};
  std::vector<std::string> entries =
      query.prefix ? beginning_with(*headword) : exact(*headword, query.next);
  Answer answer;
  answer.step = Step::kLowerCase;
  for (std::string& entry : entries) {
    const std::string spelling = spelling_of(entry);
    const std::string lower = lower_case(spelling, header_.language);
    const bool behind = !query.prefix && !answer.entries.empty() && headword_of(entry) != *headword;
    if (!behind && (query.prefix ? !lower.starts_with(forms.lower) : lower != forms.lower))
      continue;
    if (spelling.starts_with(forms.typed)) answer.step = Step::kTyped;
    answer.entries.push_back(std::move(entry));
  }
  return answer.entries.empty() ? Answer{} : answer;
}

Answer Searcher::find_form(const Query& query, const Forms& forms) {
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

Answer Searcher::find(const Query& query) {
  const std::u32string word = from_utf8(query.word);
  Answer answer;
  if (const std::optional<Forms> written = forms(word)) answer = find_form(query, *written);
  const std::u32string plain = plain_punctuation(word);
  if (answer.step != Step::kNone || plain == word) return answer;
  if (const std::optional<Forms> other = forms(plain)) answer = find_form(query, *other);
  if (answer.step != Step::kNone) answer.step = Step::kPlain;
  return answer;
}

std::vector<Answer> Searcher::find_inflected(const std::string& word, CGrSrcWordFlex& table) {
  std::vector<Answer> answers;
  const std::optional<Forms> forms = this->forms(from_utf8(word));
  if (!forms || forms->plain || !header_.language.starts_with("RU")) return answers;
  std::set<std::string> answered;
  for (const HeadwordForm& form : headword_forms(forms->lower, table)) {
    if (answered.contains(form.headword)) continue;
    std::vector<std::string> entries = exact(form.headword, 0);
    std::erase_if(entries, [&](const std::string& e) { return !belongs_to(form, e); });
    if (entries.empty()) continue;
    answered.insert(form.headword);
    answers.push_back({Step::kInflected, std::move(entries), describe(form)});
  }
  return answers;
}

}  // namespace kz::lexicon
