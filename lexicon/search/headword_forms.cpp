// Endings off, stem changes undone, headword endings on.
#include "lexicon/search/headword_forms.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "kz/gram_attr.h"
#include "kz/gram_codec.h"
#include "kz/gram_record.h"
#include "lexicon/search/inflect_table.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

using Stems = std::vector<std::u32string>;

bool is_one_of(std::u32string_view letters, char32_t letter) {
  return letters.find(letter) != std::u32string_view::npos;
}

bool is_consonant(char32_t letter) { return is_one_of(U"бвгджзклмнпрстфхцчшщ", letter); }
bool is_vowel(char32_t letter) { return is_one_of(U"аеёиоуыэюя", letter); }

// Consonants of a stem in some forms of a verb or in a comparative, and those that its headword has
// instead.
constexpr std::pair<std::u32string_view, std::u32string_view> kAlternations[] = {
    {U"бл", U"б"}, {U"пл", U"п"}, {U"мл", U"м"}, {U"вл", U"в"}, {U"фл", U"ф"},
    {U"жд", U"д"}, {U"ж", U"д"},  {U"ж", U"з"},  {U"ж", U"г"},  {U"ш", U"с"},
    {U"ш", U"х"},  {U"ч", U"т"},  {U"ч", U"к"},  {U"щ", U"ст"}, {U"щ", U"ск"},
    {U"щ", U"т"},  {U"ж", U"зк"}, {U"ж", U"дк"}, {U"ч", U"тк"},
};

// Consonants that do change where consonants change at all: пишем is a form of писать, писем is
// none.
constexpr std::u32string_view kAlternating = U"гзкстх";

// What a record says of a form.
struct FormClass {
  std::vector<WordGroup> groups;
  bool reflexive = false;
  std::int16_t number = 0;
  std::optional<std::size_t> taken;  // letters taken off, if not the whole ending
  bool alternates = false;           // the last consonants may be others in the headword
  std::string name;
};

// The stem changes "C", "D1" to "D8" and "D1_C": so many letters are deleted, consonants change.
void read_stem_change(const char* name, FormClass& form) {
  if (name == nullptr) return;
  std::string_view change(name);
  if (change.size() > 1 && change[0] == 'D' && change[1] >= '1' && change[1] <= '8') {
    if (change.size() > 2 && change.substr(2) != "_C") return;
    form.taken = static_cast<std::size_t>(change[1] - '0');
    change.remove_prefix(2);
  }
  form.alternates = change == "C" || change == "_C";
}

std::vector<WordGroup> noun_groups(std::uint32_t flags) {
  if ((flags & GRAM_NO_SINGULAR) != 0) return {WordGroup::kPlural};
  std::vector<WordGroup> groups;
  if ((flags & GRAM_MASCULINE) != 0) groups.push_back(WordGroup::kMasculine);
  if ((flags & GRAM_FEMININE) != 0) groups.push_back(WordGroup::kFeminine);
  if (groups.empty()) groups.push_back(WordGroup::kNeuter);
  return groups;
}

// Nothing for a class that does not inflect.
std::optional<FormClass> class_of(const std::uint32_t (&record)[2]) {
  GRAMINFO gram{};
  SetGrSrcAttr(&gram, record);
  const std::uint32_t flags = gram.word[1];
  const char code = static_cast<char>(gram.word[2] >> GRAM_CODE_SHIFT);
  FormClass form;
  if (code == 'N' || code == 'n') {
    form.groups = noun_groups(flags);
  } else if (code == 'A' || code == 'a' || code == 'd') {
    form.groups = {WordGroup::kAdjective};
  } else if (code != 0 && ("VvGE" + encode(U"д", CodePage::kRussian)).find(code) < 5) {
    form.groups = {WordGroup::kVerb};
    form.reflexive = (flags & GRAM_REFLEXIVE) != 0;
  } else {
    return std::nullopt;
  }
  form.number = static_cast<std::int16_t>(record[1]);
  read_stem_change(GetAttrNameStr(2, static_cast<std::int16_t>(record[0] >> 16 & 0xFF)), form);
  form.name = GetAttrNameStr(0, static_cast<std::int16_t>(record[0] & 0xFF));
  if (form.number != 0) form.name += ' ' + std::to_string(form.number);
  return form;
}

// куск: кусок. A soft sign or й in its place goes: льв, лев; бойц, боец.
Stems with_vowel(std::u32string_view stem) {
  if (stem.size() < 2 || !is_consonant(stem.back())) return {};
  const char32_t before = stem[stem.size() - 2];
  const bool replaced = before == U'ь' || before == U'й';
  if (!replaced && !is_consonant(before)) return {};
  const std::u32string head(stem.substr(0, stem.size() - (replaced ? 2 : 1)));
  Stems stems;
  for (const char32_t vowel : std::u32string_view(U"оеё"))
    stems.push_back(head + vowel + stem.back());
  return stems;
}

// окон: окн. The vowel may stand for a soft sign or й: писем, письм; копеек, копейк.
Stems without_vowel(std::u32string_view stem) {
  if (stem.size() < 3 || !is_consonant(stem.back())) return {};
  const char32_t vowel = stem[stem.size() - 2];
  const std::u32string head(stem.substr(0, stem.size() - 2));
  if (is_vowel(head.back())) {
    if (!is_one_of(U"еи", vowel)) return {};
    return {head + U'й' + stem.back()};
  }
  if (!is_one_of(U"оеё", vowel)) return {};
  Stems stems = {head + stem.back()};
  if (vowel != U'о') stems.push_back(head + U'ь' + stem.back());
  return stems;
}

Stems with_other_consonants(std::u32string_view stem) {
  Stems stems;
  for (const auto& [form, headword] : kAlternations) {
    if (stem.size() <= form.size() || !stem.ends_with(form)) continue;
    stems.emplace_back(stem.substr(0, stem.size() - form.size())).append(headword);
  }
  return stems;
}

std::u32string fold_e(std::u32string text) {
  std::replace(text.begin(), text.end(), U'ё', U'е');
  return text;
}

// сёстр: сестр; еж: ёж.
Stems with_other_e(const std::u32string& stem) {
  Stems stems;
  std::u32string folded = fold_e(stem);
  if (folded != stem) stems.push_back(std::move(folded));
  const std::size_t last = stem.rfind(U'е');
  if (last != std::u32string::npos) stems.emplace_back(stem)[last] = U'ё';
  return stems;
}

bool allows(std::u32string_view letters, std::u32string_view text, std::size_t at) {
  return letters.empty() || (at < text.size() && is_one_of(letters, text[at]));
}

// Verbs of the types 4 and 5 have stems of two letters or more: жены is a form of жена, not of
// жить.
bool stands_behind(const HeadwordEnding& ending, std::u32string_view stem) {
  const bool longer =
      ending.group == WordGroup::kVerb && (ending.number == 4 || ending.number == 5);
  if (longer && stem.size() < 2) return false;
  return allows(ending.after, stem, stem.size() - 1);
}

void append(Stems& stems, Stems more) {
  std::move(more.begin(), more.end(), std::back_inserter(stems));
}

class Candidates {
 public:
  explicit Candidates(const std::string& word) : word_(decode(word, CodePage::kRussian)) {}

  void add_by_ending(const CGrSrcWordObj& entry) {
    for (int i = 0; i < entry.count; ++i) {
      if (const auto form = class_of(entry.attributes[i])) add_record(entry.ending, *form);
    }
  }

  void add_without_ending() {
    if (word_.size() < 2) return;
    const char32_t last = word_.back();
    if (is_consonant(last)) {
      Stems stems = without_vowel(word_);
      stems.push_back(word_);
      append(stems, with_other_e(word_));
      for (const std::u32string& stem : stems) add_bare(stem);
    } else if (last == U'ь' || last == U'й') {
      const std::u32string stem = word_.substr(0, word_.size() - 1);
      add(stem, WordGroup::kFeminine, U"я", {}, {});
      for (const std::u32string& shorter : without_vowel(stem)) {
        add(shorter, WordGroup::kFeminine, U"я", {}, {});
      }
    }
  }

  std::vector<HeadwordCandidate> take() { return std::move(forms_); }

 private:
  void add_record(const std::string& ending, const FormClass& form) {
    const std::size_t taken = std::min(form.taken.value_or(ending.size()), word_.size());
    if (taken == 0) return;
    const std::u32string stem = word_.substr(0, word_.size() - taken);
    Stems stems;
    if (!form.alternates || stem.empty() || !is_one_of(kAlternating, stem.back())) {
      stems.push_back(stem);
      append(stems, with_other_e(stem));
    }
    if (form.alternates) {
      for (const std::u32string& changed : with_other_consonants(stem)) {
        stems.push_back(changed);
        if (form.groups.front() == WordGroup::kAdjective) append(stems, with_other_e(changed));
      }
    }
    const std::u32string off = fold_e(word_.substr(stem.size()));
    for (const WordGroup group : form.groups) {
      for (const HeadwordEnding& row : headword_endings(group, form.number)) {
        if (!allows(row.from, off, 0)) continue;
        const std::u32string text = headword_ending(row, form.reflexive, off.front());
        Stems all = stems;
        const bool verb = group == WordGroup::kVerb;
        if (!verb && (row.text.empty() || row.text == U"ь")) append(all, with_vowel(stem));
        for (const std::u32string& changed : all) {
          if (stands_behind(row, changed)) add(changed, group, text, ending, form.name);
        }
      }
    }
  }

  // `first` of the letters that were taken off.
  static std::u32string headword_ending(const HeadwordEnding& row, bool reflexive, char32_t first) {
    std::u32string text(row.text);
    if (text.starts_with(U'~')) text[0] = first;
    if (reflexive) text += text.ends_with(U'ь') ? U"ся" : U"сь";
    return text;
  }

  // The headwords of a stem that stands alone in some form: книг, ворот, нов.
  void add_bare(const std::u32string& stem) {
    const auto add_group = [&](WordGroup group, std::int16_t number) {
      for (const HeadwordEnding& row : headword_endings(group, number)) {
        if (stands_behind(row, stem)) add(stem, group, row.text, {}, {});
      }
    };
    add_group(WordGroup::kFeminine, 1);
    if (stem.back() == U'н') add_group(WordGroup::kFeminine, 2);  // песен: песня
    add_group(WordGroup::kNeuter, 1);
    add_group(WordGroup::kPlural, 1);
    add_group(WordGroup::kAdjective, 1);
  }

  void add(const std::u32string& stem, WordGroup group, std::u32string_view headword_end,
           const std::string& ending, const std::string& word_class) {
    std::u32string headword = stem;
    headword += headword_end;
    if (headword == word_ || !seen_.emplace(headword, group).second) return;
    forms_.push_back({encode(headword, CodePage::kRussian), group, ending, word_class});
  }

  std::u32string word_;
  std::vector<HeadwordCandidate> forms_;
  std::set<std::pair<std::u32string, WordGroup>> seen_;
};

}  // namespace

std::vector<HeadwordCandidate> headword_forms(const std::string& word, CGrSrcWordFlex& table) {
  // Bytes without a character would not come back.
  if (decode(word, CodePage::kRussian).find(U'\uFFFD') != std::u32string::npos) return {};
  Candidates candidates(word);
  for (const CGrSrcWordObj* entry : known_endings(table, word)) candidates.add_by_ending(*entry);
  candidates.add_without_ending();
  return candidates.take();
}

}  // namespace kz::lexicon
