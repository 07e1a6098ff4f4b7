// CDicEntryMeaning: one meaning and its synonyms.
#include <algorithm>

#include "entry/language_field.h"
#include "entry/string_view.h"
#include "entry/synonym.h"
#include "kz/entry.h"

using kz::entry::view;

namespace {

kz::entry::CodeLetterTest code_test(const char* language) {
  return kz::entry::target_code_test(kz::entry::LanguagePair(language));
}

using Form = std::string_view (*)(std::string_view, const kz::entry::CodeLetterTest&,
                                  kz::SynonymRoom&);

// Makes `work` the synonym in that form.
void store(Form form, std::string_view synonym, const char* language, ZCString& work) {
  kz::SynonymRoom room;
  kz::entry::assign(work, form(synonym, code_test(language), room));
}

}  // namespace

// NOLINTBEGIN(performance-unnecessary-value-param): the interface promises parameters by value.
CDicEntryMeaning::CDicEntryMeaning(ZCString tag, ZCString mark, ZCString definition, ZCString text,
                                   const char* language, char kind)
    : Kind(kind), Tag(tag), Mark(mark), Definition(definition), Text(text) {
  kz::entry::set_language(Language, language);
  SplitSynonyms();
}
// NOLINTEND(performance-unnecessary-value-param)

CDicEntryMeaning::~CDicEntryMeaning() = default;

std::int16_t CDicEntryMeaning::IsTargetCode(int character) const {
  const char c = static_cast<char>(character);
  return code_test(Language).holds(c, '\0') ? static_cast<unsigned char>(c) : std::int16_t{0};
}

// Cuts at every ';', inside groups too. An empty text has one empty synonym.
void CDicEntryMeaning::SplitSynonyms() {
  std::string_view rest = view(Text);
  const auto count = static_cast<int>(std::count(rest.begin(), rest.end(), ';')) + 1;
  Synonyms.SetSize(count);
  for (int i = 0; i < count; ++i) {
    const std::string_view synonym = rest.substr(0, rest.find(';'));
    rest.remove_prefix(std::min(synonym.size() + 1, rest.size()));
    switch (Kind) {
      case 'C': ReduceSynonym(synonym.data(), static_cast<int>(synonym.size())); break;
      case 'c': SpaceSynonym(synonym.data(), static_cast<int>(synonym.size())); break;
      default: kz::entry::assign(Work, synonym);
    }
    Synonyms.SetAt(i, Work);
  }
}

void CDicEntryMeaning::ReduceSynonym(const char* synonym, int size) {
  store(kz::reduce_synonym, {synonym, static_cast<std::size_t>(size)}, Language, Work);
}

void CDicEntryMeaning::SpaceSynonym(const char* synonym, int size) {
  store(kz::space_synonym, {synonym, static_cast<std::size_t>(size)}, Language, Work);
}
