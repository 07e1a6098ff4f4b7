// Grammar in words: tag strings taken apart into named fields, and back.
//
// A tag string such as "MS@" is the short form in which dictionaries keep the grammar of a word;
// what a tag means depends on the part of speech. A field has a name and a value:
// "gender=masculine", "paradigm=12". Bits to which the library gives no meaning are flags, named by
// their tag ("flag=x"), or by word and bit where the part of speech has no tag for them
// ("flag=4/0").
//
//     using namespace kz::lexicon;
//     for (const Field& field : decode_tags("N", "MS@").fields)
//       std::cout << to_string(field) << ' ';
//     std::cout << encode_fields("N", {"masculine", "animate"}) << '\n';
//     // Output: gender=masculine number=singular animacy=animate M@
#ifndef KZLEXICON_GRAMMAR_H
#define KZLEXICON_GRAMMAR_H

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "kzlexicon/export.h"

namespace kz::lexicon {

// A piece of grammar.
struct Field {
  enum class Kind {
    kWord,    // "gender=masculine": the value alone names it
    kNumber,  // "paradigm=12"
    kText,    // "paradigm-letter=a"
    kFlag,    // "flag=x"
  };

  std::string name;   // "gender"
  std::string value;  // "masculine"
  Kind kind = Kind::kText;
  int word = -1;  // of a flag: its place in the grammatical record
  int bit = -1;
};

// Whether all members are equal.
KZL_API bool operator==(const Field& a, const Field& b);

// "gender=masculine"
KZL_API std::string to_string(const Field& field);
// "masculine, animate, person 1, flag x"
KZL_API std::string summary(const std::vector<Field>& fields);

// A tag string and everything that it says.
struct Decoded {
  std::string code;       // the part of speech, as given
  std::string tags;       // as given
  std::string canonical;  // the tag string that the library writes for the same grammar
  std::vector<Field> fields;
  std::vector<Field> left_out;  // fields that reading the canonical string does not give back
  std::string ignored;          // characters of the tag string that set nothing
  std::string unread;           // what follows its end
  std::array<std::uint32_t, 7> words{};  // the record, GRAMINFO
  std::uint32_t semantics = 0;           // SEMANTICS
};

// Reads a tag string, without brackets, of a part of speech ("N"). Throws Error: kArgument for a
// code that is not one character and for a tag string of absurd length, kCodePage for characters
// that Windows-1251 lacks, kData for what is not UTF-8. Characters that are no tags are no error:
// `ignored` and `unread` have them.
KZL_API Decoded decode_tags(std::string_view code, std::string_view tags);

// A tag string that says all the fields ("masculine", "case=genitive,dative"): the canonical one,
// with the tags that it leaves out before paradigm and semantics. Throws Error (kArgument) for
// unknown fields and for those that no tag string of the part of speech carries.
KZL_API std::string encode_fields(std::string_view code, const std::vector<std::string>& fields);

// The group whose tags the code uses: "noun", "adjective", "verb", "I" or "pronoun", static text;
// empty when it has only those that all codes have.
KZL_API std::string_view tag_group_of(std::string_view code);

// Names of compact attributes, as inflection tables use them. Kind 0 names classes ("NMa"), kind 1
// additions, kind 2 stem changes.
struct AttributeName {
  int kind = 0;
  int index = 0;              // in the list of the kind, as compiled tables store it
  std::string name;           // "NMa"
  std::string code;           // the part of speech that a class stands for; empty for none
  std::vector<Field> fields;  // what the name says
};

// By name, or by index written in digits. `index` is -1 for a name that is none. Throws Error
// (kArgument) for a kind other than 0 to 2 and for an index that the kind does not have.
KZL_API AttributeName find_attribute(int kind, std::string_view name_or_index);

}  // namespace kz::lexicon

#endif  // KZLEXICON_GRAMMAR_H
