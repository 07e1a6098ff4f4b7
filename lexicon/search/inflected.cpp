// Headwords of inflected forms.
#include <array>
#include <set>
#include <utility>

#include "kz/gram_codec.h"
#include "kz/gram_record.h"
#include "lexicon/search/dictionary_impl.h"
#include "lexicon/search/headword_forms.h"
#include "lexicon/search/inflector_table.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

// Gender and number of a noun's entry, as bits of a GRAMINFO; 0 when it names none.
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

// True when a noun of this grammar may be declined as one of the group. Masculine nouns in а and я
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

// True when the form may be one of this entry's word. A reference has no part of speech of its own;
// nouns such as рабочий are declined like adjectives.
bool belongs_to(const HeadwordCandidate& form, std::string_view entry) {
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

std::string describe(const HeadwordCandidate& form) {
  if (form.ending.empty()) return {};
  return to_utf8(decode("-" + form.ending, CodePage::kRussian)) + " (" + form.word_class + ")";
}

}  // namespace

std::vector<Answer> Dictionary::find_inflected(std::string_view word, const Inflector& inflector) {
  std::vector<Answer> answers;
  const std::optional<Impl::Forms> forms = impl_->forms(from_utf8(word));
  if (!forms || forms->plain || !language().starts_with("RU")) return answers;
  std::set<std::string> answered;
  for (const HeadwordCandidate& form : inflector.table_->candidates(forms->lower)) {
    if (answered.contains(form.headword)) continue;
    std::vector<Entry> entries = impl_->exact(form.headword, 0);
    std::erase_if(entries, [&](const Entry& entry) { return !belongs_to(form, entry.record()); });
    if (entries.empty()) continue;
    answered.insert(form.headword);
    answers.push_back({Step::kInflected, std::move(entries), describe(form)});
  }
  return answers;
}

}  // namespace kz::lexicon
