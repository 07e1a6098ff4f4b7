// The fields of the records that are data classes in Python, family by family.
#ifndef PYTHON_VALUE_FIELDS_H
#define PYTHON_VALUE_FIELDS_H

#include "kzlexicon/lexicon.h"
#include "python/values.h"

namespace kz::python {

using py::detail::const_name;

template <>
struct Value<lexicon::ErrorCode> {
  static constexpr auto kName = const_name("ErrorCode");
  static constexpr std::array kMembers{
      std::pair("ARGUMENT", lexicon::ErrorCode::kArgument),
      std::pair("FILE", lexicon::ErrorCode::kFile),
      std::pair("DATA", lexicon::ErrorCode::kData),
      std::pair("CODE_PAGE", lexicon::ErrorCode::kCodePage),
  };
};

template <>
struct Value<lexicon::Place> {
  using T = lexicon::Place;
  static constexpr auto kName = const_name("Place");
  static constexpr std::tuple kFields{field("file", &T::file), field("line", &T::line),
                                      field("column", &T::column), field("offset", &T::offset)};
};

// code_page.h

template <>
struct Value<lexicon::CodePage> {
  using T = lexicon::CodePage;
  static constexpr auto kName = const_name("CodePage");
  static constexpr std::array kMembers{std::pair("RUSSIAN", T::kRussian),
                                       std::pair("WESTERN", T::kWestern),
                                       std::pair("CP866", T::kCp866),
                                       std::pair("CP850", T::kCp850),
                                       std::pair("KOI8_R", T::kKoi8R),
                                       std::pair("ISO_8859_5", T::kIso8859_5),
                                       std::pair("MAC_CYRILLIC", T::kMacCyrillic),
                                       std::pair("MIXED", T::kMixed)};
};

// grammar.h

template <>
struct Value<lexicon::Field::Kind> {
  using T = lexicon::Field::Kind;
  static constexpr auto kName = const_name("FieldKind");
  static constexpr std::array kMembers{std::pair("WORD", T::kWord), std::pair("NUMBER", T::kNumber),
                                       std::pair("TEXT", T::kText), std::pair("FLAG", T::kFlag)};
};

template <>
struct Value<lexicon::Field> {
  using T = lexicon::Field;
  static constexpr auto kName = const_name("Field");
  static constexpr std::tuple kFields{field("name", &T::name), field("value", &T::value),
                                      field("kind", &T::kind), field("word", &T::word),
                                      field("bit", &T::bit)};
};

template <>
struct Value<lexicon::Decoded> {
  using T = lexicon::Decoded;
  static constexpr auto kName = const_name("Decoded");
  static constexpr std::tuple kFields{
      field("code", &T::code),           field("tags", &T::tags),
      field("canonical", &T::canonical), field("fields", &T::fields),
      field("left_out", &T::left_out),   field("ignored", &T::ignored),
      field("unread", &T::unread),       field("words", &T::words),
      field("semantics", &T::semantics)};
};

template <>
struct Value<lexicon::AttributeName> {
  using T = lexicon::AttributeName;
  static constexpr auto kName = const_name("AttributeName");
  static constexpr std::tuple kFields{field("kind", &T::kind), field("index", &T::index),
                                      field("name", &T::name), field("code", &T::code),
                                      field("fields", &T::fields)};
};

// entry.h

template <>
struct Value<lexicon::SynonymBlock> {
  using T = lexicon::SynonymBlock;
  static constexpr auto kName = const_name("SynonymBlock");
  static constexpr std::tuple kFields{field("synonym", &T::synonym),
                                      field("part_code", &T::part_code), field("tags", &T::tags)};
};

template <>
struct Value<lexicon::MeaningView> {
  using T = lexicon::MeaningView;
  static constexpr auto kName = const_name("MeaningView");
  static constexpr std::tuple kFields{field("number", &T::number),
                                      field("part_of_speech", &T::part_of_speech),
                                      field("part_code", &T::part_code),
                                      field("definition", &T::definition),
                                      field("synonyms", &T::synonyms),
                                      field("block", &T::block),
                                      field("synonym_blocks", &T::synonym_blocks)};
};

template <>
struct Value<lexicon::EntryView> {
  using T = lexicon::EntryView;
  static constexpr auto kName = const_name("EntryView");
  static constexpr std::tuple kFields{
      field("headword", &T::headword),   field("spelling", &T::spelling),
      field("part_code", &T::part_code), field("part_of_speech", &T::part_of_speech),
      field("attribute", &T::attribute), field("reference", &T::reference),
      field("meanings", &T::meanings),   field("text", &T::text),
      field("language", &T::language)};
};

template <>
struct Value<lexicon::WordGrammar::Side> {
  using T = lexicon::WordGrammar::Side;
  static constexpr auto kName = const_name("Side");
  static constexpr std::array kMembers{std::pair("SOURCE", T::kSource),
                                       std::pair("TARGET", T::kTarget),
                                       std::pair("SYNONYM", T::kSynonym)};
};

template <>
struct Value<lexicon::WordGrammar> {
  using T = lexicon::WordGrammar;
  static constexpr auto kName = const_name("WordGrammar");
  static constexpr std::tuple kFields{field("side", &T::side), field("synonym", &T::synonym),
                                      field("grammar", &T::grammar)};
};

// dictionary.h and dictionary_set.h

template <>
struct Value<lexicon::Header> {
  using T = lexicon::Header;
  static constexpr auto kName = const_name("Header");
  static constexpr std::tuple kFields{field("generation", &T::generation),
                                      field("language", &T::language),
                                      field("type", &T::type),
                                      field("title", &T::title),
                                      field("label", &T::label),
                                      field("has_password", &T::has_password),
                                      field("checksum_agrees", &T::checksum_agrees),
                                      field("property", &T::property),
                                      field("version", &T::version),
                                      field("time_stamp", &T::time_stamp),
                                      field("packed", &T::packed),
                                      field("shared", &T::shared),
                                      field("depth", &T::depth),
                                      field("alphabet", &T::alphabet),
                                      field("file_size", &T::file_size),
                                      field("record_bytes", &T::record_bytes),
                                      field("index_bytes", &T::index_bytes),
                                      field("shared_bytes", &T::shared_bytes)};
};

template <>
struct Value<lexicon::Statistics> {
  using T = lexicon::Statistics;
  static constexpr auto kName = const_name("Statistics");
  static constexpr std::tuple kFields{field("blocks", &T::blocks),
                                      field("largest_block", &T::largest_block),
                                      field("records", &T::records),
                                      field("headwords", &T::headwords),
                                      field("references", &T::references),
                                      field("longest_headword", &T::longest_headword),
                                      field("longest_record", &T::longest_record)};
};

template <>
struct Value<lexicon::Step> {
  using T = lexicon::Step;
  static constexpr auto kName = const_name("Step");
  static constexpr std::array kMembers{std::pair("NONE", T::kNone),
                                       std::pair("TYPED", T::kTyped),
                                       std::pair("LOWER_CASE", T::kLowerCase),
                                       std::pair("FOLDED", T::kFolded),
                                       std::pair("PLAIN", T::kPlain),
                                       std::pair("INFLECTED", T::kInflected)};
};

template <>
struct Value<lexicon::Answer> {
  using T = lexicon::Answer;
  static constexpr auto kName = const_name("Answer");
  static constexpr std::tuple kFields{field("step", &T::step), field("entries", &T::entries),
                                      field("ending", &T::ending),
                                      field("description", &lexicon::describe_step)};
};

template <>
struct Value<lexicon::MissingDictionary> {
  using T = lexicon::MissingDictionary;
  static constexpr auto kName = const_name("MissingDictionary");
  static constexpr std::tuple kFields{field("path", &T::path), field("loaded", &T::loaded)};
};

// inflector.h

template <>
struct Value<lexicon::InflectionReading> {
  using T = lexicon::InflectionReading;
  static constexpr auto kName = const_name("InflectionReading");
  static constexpr std::tuple kFields{
      field("word_class", &T::word_class),   field("addition", &T::addition),
      field("paradigm", &T::paradigm),       field("letter", &T::letter),
      field("stem_change", &T::stem_change), field("grammar", &T::grammar)};
};

template <>
struct Value<lexicon::Ending> {
  using T = lexicon::Ending;
  static constexpr auto kName = const_name("Ending");
  static constexpr std::tuple kFields{field("ending", &T::ending), field("rest", &T::rest),
                                      field("attributes", &T::attributes),
                                      field("readings", &T::readings)};
};

template <>
struct Value<lexicon::WordGroup> {
  using T = lexicon::WordGroup;
  static constexpr auto kName = const_name("WordGroup");
  static constexpr std::array kMembers{
      std::pair("MASCULINE", T::kMasculine), std::pair("FEMININE", T::kFeminine),
      std::pair("NEUTER", T::kNeuter),       std::pair("PLURAL", T::kPlural),
      std::pair("ADJECTIVE", T::kAdjective), std::pair("VERB", T::kVerb)};
};

template <>
struct Value<lexicon::HeadwordForm> {
  using T = lexicon::HeadwordForm;
  static constexpr auto kName = const_name("HeadwordForm");
  static constexpr std::tuple kFields{field("headword", &T::headword), field("group", &T::group),
                                      field("ending", &T::ending),
                                      field("word_class", &T::word_class)};
};

// source.h

template <>
struct Value<lexicon::SourceLine> {
  using T = lexicon::SourceLine;
  static constexpr auto kName = const_name("SourceLine");
  static constexpr std::tuple kFields{field("file", &T::file), field("line", &T::line),
                                      field("text", &T::text)};
};

template <>
struct Value<lexicon::Property> {
  using T = lexicon::Property;
  static constexpr auto kName = const_name("Property");
  static constexpr std::tuple kFields{field("value", &T::value), field("place", &T::place)};
};

template <>
struct Value<lexicon::Properties> {
  using T = lexicon::Properties;
  static constexpr auto kName = const_name("Properties");
  static constexpr std::tuple kFields{field("language", &T::language), field("type", &T::type),
                                      field("title", &T::title), field("label", &T::label)};
};

template <>
struct Value<lexicon::PlainMeaning> {
  using T = lexicon::PlainMeaning;
  static constexpr auto kName = const_name("PlainMeaning");
  static constexpr std::tuple kFields{field("synonyms", &T::synonyms),
                                      field("definition", &T::definition),
                                      field("number", &T::number)};
};

template <>
struct Value<lexicon::PlainEntry> {
  using T = lexicon::PlainEntry;
  static constexpr auto kName = const_name("PlainEntry");
  static constexpr std::tuple kFields{
      field("headword", &T::headword), field("meanings", &T::meanings),
      field("part_code", &T::part_code), field("attribute", &T::attribute),
      field("spelling", &T::spelling)};
};

template <>
struct Value<lexicon::Losses> {
  using T = lexicon::Losses;
  static constexpr auto kName = const_name("Losses");
  static constexpr std::tuple kFields{
      field("characters", &T::characters), field("definitions", &T::definitions),
      field("synonyms", &T::synonyms), field("meanings", &T::meanings)};
};

template <>
struct Value<lexicon::SourceFormatter::Line> {
  using T = lexicon::SourceFormatter::Line;
  static constexpr auto kName = const_name("FormattedLine");
  static constexpr std::tuple kFields{field("text", &T::text), field("exact", &T::exact)};
};

// builder.h and importers.h

template <>
struct Value<lexicon::Diagnostic::Severity> {
  using T = lexicon::Diagnostic::Severity;
  static constexpr auto kName = const_name("Severity");
  static constexpr std::array kMembers{std::pair("NOTE", T::kNote),
                                       std::pair("WARNING", T::kWarning),
                                       std::pair("ERROR", T::kError)};
};

template <>
struct Value<lexicon::Diagnostic> {
  using T = lexicon::Diagnostic;
  static constexpr auto kName = const_name("Diagnostic");
  static constexpr std::tuple kFields{field("severity", &T::severity), field("code", &T::code),
                                      field("place", &T::place), field("message", &T::message)};
};

template <>
struct Value<lexicon::BuildSummary> {
  using T = lexicon::BuildSummary;
  static constexpr auto kName = const_name("BuildSummary");
  static constexpr std::tuple kFields{field("depth", &T::depth),
                                      field("headwords", &T::headwords),
                                      field("records", &T::records),
                                      field("blocks", &T::blocks),
                                      field("file_bytes", &T::file_bytes),
                                      field("record_bytes", &T::record_bytes),
                                      field("index_bytes", &T::index_bytes),
                                      field("shared_bytes", &T::shared_bytes),
                                      field("shared_texts", &T::shared_texts),
                                      field("referring_records", &T::referring_records),
                                      field("left_out", &T::left_out)};
};

template <>
struct Value<lexicon::ImportSummary> {
  using T = lexicon::ImportSummary;
  static constexpr auto kName = const_name("ImportSummary");
  static constexpr std::tuple kFields{field("name", &T::name),
                                      field("language", &T::language),
                                      field("articles", &T::articles),
                                      field("entries", &T::entries),
                                      field("plain_headwords", &T::plain_headwords),
                                      field("bad_characters", &T::bad_characters),
                                      field("unindexed", &T::unindexed),
                                      field("empty", &T::empty),
                                      field("losses", &T::losses)};
};

// text.h

template <>
struct Value<lexicon::Alphabet> {
  using T = lexicon::Alphabet;
  static constexpr auto kName = const_name("Alphabet");
  static constexpr std::array kMembers{std::pair("LATIN", T::kLatin),
                                       std::pair("RUSSIAN", T::kRussian)};
};

}  // namespace kz::python

#endif  // PYTHON_VALUE_FIELDS_H
