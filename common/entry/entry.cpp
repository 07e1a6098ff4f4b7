// CDicEntry: building, splitting and joining of an entry.
#include "kz/entry.h"

#include <new>

#include "entry/language_field.h"
#include "entry/meaning_parse.h"
#include "entry/pack.h"
#include "entry/split.h"
#include "entry/string_view.h"
#include "foundation/string_data.h"

using kz::entry::assign;
using kz::entry::view;

namespace {

void delete_all(ZCObArray& objects) {
  for (int i = 0; i < objects.GetSize(); ++i) delete objects.GetAt(i);
  objects.RemoveAll();
}

}  // namespace

CDicEntry::CDicEntry(const char* language, char kind) : Decoding(0), Kind(kind), Part(0) {
  kz::entry::set_language(Language, language);
}

CDicEntry::~CDicEntry() { delete_all(Meanings); }

void CDicEntry::Build(const char* text, char part, const char* entry, const char* srcRef) {
  if (part == 0) {
    FullEntry = text;
    Split();
  } else {
    // The copies let the arguments be texts of this object.
    const ZCString word(text);
    const ZCString body(entry);
    const ZCString reference(srcRef);
    InWord = word;
    SrcWord = word;
    Part = part;
    assign(PartText, {&part, 1});
    Entry = body;
    SrcRef = reference;
    Attr.Empty();
    AttrView.Empty();
    HeadAttrView.Empty();
  }
  delete_all(Meanings);
  ParseMeanings();
}

void CDicEntry::Split() {
  const kz::EntryParts parts = kz::split_entry(view(FullEntry));
  assign(InWord, parts.head_word);
  Part = parts.part;
  assign(PartText, parts.part_text);
  assign(AttrView, parts.attr_view);
  assign(HeadAttrView, parts.attr_view);
  assign(Entry, parts.body);
  assign(SrcRef, parts.src_ref);
  assign(SrcWord, parts.src_word);
  MakeAttr();
}

// A meaning's own attribute block stays in the body, so that the head is joined with its own.
void CDicEntry::Merge() {
  const kz::EntryParts parts{view(InWord), Part,         view(PartText), view(HeadAttrView),
                             view(Entry),  view(SrcRef), view(SrcWord)};
  const std::size_t size = kz::joined_size(parts);
  if (size == 0) {
    FullEntry.Empty();
    return;
  }
  const int length = kz::to_length(size);
  kz::join_entry(parts, FullEntry.GetBuffer(length));
  FullEntry.ReleaseBuffer(length);
}

void CDicEntry::MakeAttr() { assign(Attr, kz::without_brackets(view(AttrView))); }

void CDicEntry::MakeAttrView() {
  AttrView = Attr;
  if (Attr.IsEmpty()) return;
  if (!view(Attr).starts_with('[')) AttrView = "[" + AttrView;
  if (!view(Attr).ends_with(']')) AttrView += ']';
}

void CDicEntry::ParseMeanings() {
  kz::MeaningParser parser(view(Entry), {view(Language), view(PartText), Part, Kind});
  kz::MeaningParts meaning;
  while (parser.next(meaning)) {
    assign(Tag, meaning.tag);
    Mark = Part == '=' ? "=" : "";
    assign(Definition, meaning.definition);
    assign(Text, meaning.text);
    auto* const object =
        new (std::nothrow) CDicEntryMeaning(Tag, Mark, Definition, Text, Language, Kind);
    if (object == nullptr) break;
    Meanings.Add(object);
  }
  if (!parser.attr().empty()) {
    assign(Attr, parser.attr());
    MakeAttrView();
  }
  Tag.Empty();
  Mark.Empty();
  Definition.Empty();
  Text.Empty();
}

std::int16_t CDicEntry::IsSynPartCode(const char* position) const {
  const kz::entry::CodeLetterTest test =
      kz::synonym_part_test({view(Language), view(PartText), Part, Kind});
  if (position == nullptr || *position == 0) return 0;
  return test.holds(position[0], position[1]) ? static_cast<unsigned char>(*position)
                                              : std::int16_t{0};
}

char* CDicEntry::PackEntry(char* buffer) const {
  if (buffer == nullptr) return nullptr;
  *kz::pack_entry(view(Entry), kz::entry::target_letter(Language), buffer) = '\0';
  return buffer;
}
