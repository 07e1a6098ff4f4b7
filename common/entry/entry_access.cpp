// CDicEntry: accessors to pieces, meanings and synonyms.
#include <algorithm>
#include <cstring>
#include <limits>

#include "entry/code_letter.h"
#include "entry/skip.h"
#include "entry/string_view.h"
#include "kz/entry.h"
#include "text/literal.h"

using kz::entry::assign;
using kz::entry::copy_out;
using kz::entry::view;

namespace kz::entry {
// What precedes a cross-reference, in either language of the user.
constexpr std::string_view kSeeEnglish = "See: ";
constexpr std::string_view kSeeRussian = U"См.: "_1251;
}  // namespace kz::entry

namespace {

std::int16_t to_count(int size) {
  return static_cast<std::int16_t>(std::min<int>(size, std::numeric_limits<std::int16_t>::max()));
}

const char* give(const ZCString& text, char* buffer) {
  copy_out(view(text), buffer);
  return text;
}

const char* give_or_null(const ZCString& text, char* buffer) {
  copy_out(view(text), buffer);
  return text.IsEmpty() ? nullptr : static_cast<const char*>(text);
}

bool contains(const ZCString& text, std::string_view part) {
  return view(text).find(part) != std::string_view::npos;
}

// The meaning at index i, null when there is none.
const CDicEntryMeaning* meaning_at(const ZCObArray& meanings, int i) {
  if (i < 0 || i >= meanings.GetSize()) return nullptr;
  return static_cast<const CDicEntryMeaning*>(meanings.GetAt(i));
}

// True when a cross-reference leads to a word of the source language.
bool leads_to_source(std::string_view reference, const char* language) {
  if (reference.size() < 2) return false;
  const bool into_russian = kz::entry::LanguagePair(language).third == 'R';
  return kz::entry::in_set(reference[1], kz::entry::kLatin) == into_russian;
}

}  // namespace

void CDicEntry::SetEntry(const char* entry) { Entry = entry; }

const char* CDicEntry::GetEntry(char* /*buffer*/) const { return Entry; }

void CDicEntry::SetFullEntry(const char* full_entry) { FullEntry = full_entry; }

const char* CDicEntry::GetFullEntry(char* buffer) const { return give(FullEntry, buffer); }

char CDicEntry::GetPart(char* buffer) const {
  copy_out(view(PartText), buffer);
  return Part;
}

const char* CDicEntry::GetInWord(char* buffer) const { return give(InWord, buffer); }

const char* CDicEntry::GetSrcWord(char* buffer) const {
  return give(SrcWord.IsEmpty() ? InWord : SrcWord, buffer);
}

const char* CDicEntry::GetSrcRef(char* buffer) const { return give(SrcRef, buffer); }

const char* CDicEntry::GetAttr(char* buffer) const { return give(Attr, buffer); }

const char* CDicEntry::GetAttrView(char* buffer) const { return give(AttrView, buffer); }

std::int16_t CDicEntry::GetMeaningsSize() const { return to_count(Meanings.GetSize()); }

std::int16_t CDicEntry::GetSynonymsSize(std::int16_t i) const {
  const CDicEntryMeaning* const meaning = meaning_at(Meanings, i);
  return meaning == nullptr ? std::int16_t{0} : to_count(meaning->Synonyms.GetSize());
}

const char* CDicEntry::GetMeaningTag(std::int16_t i, char* buffer) {
  copy_out({}, buffer);
  const CDicEntryMeaning* const meaning = meaning_at(Meanings, i);
  if (meaning == nullptr) return nullptr;
  Result = meaning->Tag;
  return give_or_null(Result, buffer);
}

const char* CDicEntry::GetMeaningDefinition(std::int16_t i, char* buffer) {
  copy_out({}, buffer);
  const CDicEntryMeaning* const meaning = meaning_at(Meanings, i);
  if (meaning == nullptr) return nullptr;
  Result = meaning->Definition;
  return give_or_null(Result, buffer);
}

const char* CDicEntry::GetSynonym(std::int16_t i, std::int16_t j, char* buffer) {
  copy_out({}, buffer);
  const CDicEntryMeaning* const meaning = meaning_at(Meanings, i);
  if (meaning == nullptr || j < 0 || j >= meaning->Synonyms.GetSize()) return nullptr;
  const ZCString& synonym = meaning->Synonyms.GetData()[j];
  if (synonym.IsEmpty()) return nullptr;
  // A lone "=" is no reference.
  const bool reference = Kind != 'c' && synonym.GetAt(0) == '=' && synonym.GetLength() > 1;
  if (!reference)
    Result = synonym;
  else if (leads_to_source(view(synonym), Language))
    Result = kz::entry::kSeeEnglish.data() + synonym.Mid(1);
  else
    Result = synonym.Mid(1);
  return give_or_null(Result, buffer);
}

std::int16_t CDicEntry::GetSynonymValues(ZCString& synonym, ZCString& labels,
                                         ZCString& references) {
  SynLabels.Empty();
  SynRefs.Empty();
  std::int16_t flag = 0;
  if (!synonym.IsEmpty()) {
    flag = contains(synonym, kz::entry::kSeeEnglish) || contains(synonym, kz::entry::kSeeRussian);
    char* const text = synonym.GetBuffer(0);
    const std::string_view whole(text, static_cast<std::size_t>(synonym.GetLength()));
    const kz::LabelledText found = kz::find_labelled_text(whole);
    assign(SynLabels, whole.substr(0, found.begin));
    const std::size_t kept = found.cut - found.begin;
    const std::size_t tail = whole.size() - found.cut_end;
    std::memmove(text, text + found.begin, kept);
    std::memmove(text + kept, text + found.cut_end, tail);

    const std::size_t last = std::string_view(text, kept + tail).find_last_not_of("0123456789, ");
    const std::size_t size = last == std::string_view::npos ? 0 : last + 1;
    assign(SynRefs, {text + size, kept + tail - size});
    synonym.ReleaseBuffer(static_cast<int>(size));
  }
  labels = SynLabels;
  references = SynRefs;
  return flag;
}
