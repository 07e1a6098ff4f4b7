// Endings of Russian headwords by type of declension and conjugation.
#include "lexicon/search/headword_endings.h"

#include <array>

namespace kz::lexicon {
namespace {

using enum WordGroup;

constexpr std::u32string_view kVowels = U"аеёиоуыэюя";
constexpr std::u32string_view kHushingAndTs = U"жшчщц";
constexpr std::u32string_view kNotBeforeY = U"гкхжшчщ";  // и is written after these, never ы

// The types are those of Zaliznyak's grammatical dictionary. An ending that the types 1, 3, 4 and 5
// share is under 1 in a table, one that 2, 6 and 7 share under 2: so these rows cover both.
// Verbs from 17 on have a number of their own.
constexpr auto kEndings = std::to_array<HeadwordEnding>({
    {kMasculine, 1, U""},
    {kMasculine, 2, U"ь"},
    {kMasculine, 2, U"й", kVowels},
    {kMasculine, 3, U""},
    {kMasculine, 4, U""},
    {kMasculine, 5, U""},
    {kMasculine, 6, U"й", kVowels},
    {kMasculine, 6, U"ей"},  // ручей, воробей
    {kMasculine, 7, U"ий"},
    {kMasculine, 8, U"ь"},

    {kFeminine, 1, U"а"},
    {kFeminine, 2, U"я"},
    {kFeminine, 3, U"а"},
    {kFeminine, 4, U"а"},
    {kFeminine, 5, U"а"},
    {kFeminine, 6, U"ья"},
    {kFeminine, 6, U"я", kVowels},
    {kFeminine, 7, U"ия"},
    {kFeminine, 8, U"ь"},

    {kNeuter, 1, U"о"},
    {kNeuter, 1, U"е", kHushingAndTs},
    {kNeuter, 2, U"е"},
    {kNeuter, 3, U"о"},
    {kNeuter, 4, U"е"},
    {kNeuter, 4, U"о"},
    {kNeuter, 5, U"е"},
    {kNeuter, 5, U"о"},
    {kNeuter, 6, U"ье"},
    {kNeuter, 6, U"ьё"},
    {kNeuter, 7, U"ие"},
    {kNeuter, 8, U"я"},

    {kPlural, 1, U"ы"},
    {kPlural, 1, U"и", kNotBeforeY},
    {kPlural, 1, U"а"},
    {kPlural, 2, U"и"},

    {kAdjective, 1, U"ый"},
    {kAdjective, 1, U"ий", kNotBeforeY},
    {kAdjective, 1, U"ой"},
    {kAdjective, 2, U"ий"},
    {kAdjective, 2, U"ой", kNotBeforeY},
    {kAdjective, 3, U"ий"},
    {kAdjective, 3, U"ой"},
    {kAdjective, 4, U"ий"},
    {kAdjective, 4, U"ой"},
    {kAdjective, 5, U"ый"},
    {kAdjective, 6, U"ий"},

    {kVerb, 1, U"~ть", {}, kVowels},  // -аю: -ать, -ею: -еть
    {kVerb, 2, U"овать"},
    {kVerb, 2, U"евать"},
    {kVerb, 3, U"нуть"},
    {kVerb, 4, U"ить"},
    {kVerb, 5, U"еть"},
    {kVerb, 5, U"ать", U"жшчщп"},
    {kVerb, 5, U"ять", U"о"},
    {kVerb, 6, U"ать"},
    {kVerb, 6, U"ять", kVowels},
    {kVerb, 7, U"сти", {}, U"дтб"},
    {kVerb, 7, U"сть", {}, U"дтб"},
    {kVerb, 7, U"~ти", {}, U"сз"},
    {kVerb, 7, U"~ть", {}, U"сз"},
    {kVerb, 7, U"~сти", {}, kVowels},  // -ел, -ала
    {kVerb, 7, U"~сть", {}, kVowels},
    {kVerb, 8, U"чь", {}, U"гкжч"},
    {kVerb, 8, U"~чь", {}, kVowels},  // -ог: -очь
    {kVerb, 9, U"ереть"},
    {kVerb, 10, U"олоть"},
    {kVerb, 10, U"ороть"},
    {kVerb, 11, U"ить"},
    {kVerb, 12, U"ыть", {}, U"ыо"},
    {kVerb, 12, U"еть", {}, U"о"},  // пою
    {kVerb, 12, U"~ть", {}, U"у"},
    {kVerb, 13, U"авать"},
    {kVerb, 14, U"ать", U"жч"},
    {kVerb, 14, U"ять", U"мнп"},
    {kVerb, 14, U"нять"},
    {kVerb, 15, U"ть", kVowels},
    {kVerb, 16, U"ть", kVowels},
    {kVerb, 17, U"быть"},
    {kVerb, 18, U"дать"},
    {kVerb, 19, U"есть"},
    {kVerb, 20, U"ехать"},
    {kVerb, 21, U"идти"},
    {kVerb, 21, U"йти"},
    {kVerb, 22, U"бежать"},
    {kVerb, 23, U"хотеть"},
    {kVerb, 24, U"взять"},
    {kVerb, 25, U"брать"},
    {kVerb, 25, U"обрать"},  // разберу
    {kVerb, 26, U"звать"},
    {kVerb, 26, U"озвать"},
});

}  // namespace

std::vector<HeadwordEnding> headword_endings(WordGroup group, std::int16_t number) {
  std::vector<HeadwordEnding> all;
  std::vector<HeadwordEnding> exact;
  for (const HeadwordEnding& ending : kEndings) {
    if (ending.group != group) continue;
    all.push_back(ending);
    if (ending.number == number) exact.push_back(ending);
  }
  return exact.empty() ? all : exact;
}

}  // namespace kz::lexicon
