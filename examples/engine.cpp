// A small translation engine: how a client uses a set of dictionaries.
//
//   engine DIRECTORY/      (the base dictionaries; output is Windows-1251, as all Russian text)
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "kz/dic_array.h"
#include "kz/dic_queue.h"
#include "kz/dic_set.h"
#include "kz/dictionary.h"
#include "kz/entry.h"

namespace {

struct CloseSet {
  void operator()(CDicSys* set) const { DicSysClose(set); }
};
using Set = std::unique_ptr<CDicSys, CloseSet>;

struct CloseEntry {
  void operator()(CDicEntry* entry) const { DicEntryClose(entry); }
};
using Entry = std::unique_ptr<CDicEntry, CloseEntry>;

[[noreturn]] void fail(const char* what) {
  std::fprintf(stderr, "engine: %s\n", what);
  std::exit(1);
}

Set open_set(const char* direction, const char* directory) {
  Set set(DicSysOpen(1, direction, directory));  // the directory ends in '/'
  if (!set) fail("out of memory");
  return set;
}

std::string file_name(CDic* dictionary) {
  const std::string path = DicGetPath(dictionary);
  return path.substr(path.find_last_of('/') + 1);
}

// Shows the meanings of an entry with their synonyms, each without its labels and attribute block.
// Returns the first synonym.
std::string show_synonyms(const char* text, const char* direction) {
  const Entry entry(
      DicEntryOpen(text, DIC_PART_IN_TEXT, nullptr, nullptr, direction, DIC_KIND_REDUCED));
  if (!entry) fail("out of memory");
  std::string first;
  for (std::int16_t i = 0; i < DicEntryGetMeaningsSize(entry.get()); ++i) {
    const char* const about = DicEntryGetMeaningDefinition(entry.get(), i, nullptr);
    std::printf("   ");
    if (about != nullptr) std::printf(" {%s}", about);
    for (std::int16_t j = 0; j < DicEntryGetSynonymsSize(entry.get(), i); ++j) {
      char synonym[DIC_ENTRY_ROOM], labels[DIC_ENTRY_ROOM], numbers[DIC_ENTRY_ROOM];
      if (DicEntryGetSynonym(entry.get(), i, j, synonym) == nullptr) continue;
      DicEntryGetSynonymValues(entry.get(), synonym, labels, numbers);
      std::printf("%s %s", j == 0 ? "" : ";", synonym);
      if (first.empty()) first = synonym;
    }
    std::printf("\n");
  }
  return first;
}

// Shows all answers to a word, from the first dictionary of the direction to the last. Returns the
// first translation of the last one.
std::string translate(CDicSys* set, const char* direction, const char* word) {
  DicQueFirst(set, DIC_LIST_TRANSLATION, 0);
  const char* entry = DicQueFind(set, DIC_LIST_TRANSLATION, word, DIC_SEARCH_EXACT, DIC_LEVEL_FULL);
  if (entry == nullptr) fail("a word of the sample dictionaries is not found");
  std::string translation;
  while (entry != nullptr) {
    CDic* const answered = DicGetCurrentHandler(set, DIC_LIST_TRANSLATION);
    std::printf("  %s, in %s\n", word, file_name(answered).c_str());
    translation = show_synonyms(entry, direction);
    if (DicQueNext(set, DIC_LIST_TRANSLATION) == nullptr) break;
    entry = DicQueFindRest(set, DIC_LIST_TRANSLATION, word, DIC_SEARCH_EXACT, DIC_LEVEL_FULL);
  }
  return translation;
}

// Closes what is open and opens the dictionaries that the set knows for the direction.
void change_direction(CDicSys* set, const char* direction) {
  ZCObArray* const dictionaries = DicArraySelect(set, direction);
  DicQueClear(set);
  if (DicArrayLoad(set, dictionaries, 1) != 0) fail("a dictionary is missing");
}

// The dictionaries of both directions of the pair, as the text that a configuration file keeps.
std::string save(CDicSys* set) {
  char text[8192] = "";
  DicArrayUpdate(set);  // what is open now belongs to the direction
  DicArrayParmStr(set, text);
  return text;
}

// Each line is "-C", a direction, a blank and the dictionaries of the direction.
void restore(CDicSys* set, std::string_view text) {
  while (!text.empty()) {
    const std::string line(text.substr(0, text.find('\n')));
    text.remove_prefix(line.size() < text.size() ? line.size() + 1 : line.size());
    if (!line.starts_with("-C")) continue;
    DicArrayAddPath(set, DIC_APPEND, line.substr(2, 4).c_str(), line.substr(7).c_str());
  }
}

void run(const char* directory) {
  Set set = open_set("ENRU", directory);
  DicSysLoadCommon(set.get());
  std::printf("From English, %d dictionaries:\n", DicQueGetSize(set.get(), DIC_LIST_ALL));
  translate(set.get(), "ENRU", "table");

  // A dictionary of the user's own comes before the others.
  const std::string own = std::string(directory) + "my.dic";
  if (DicQueLoad(set.get(), 0, own.c_str(), DIC_MODE_CACHE) == nullptr) fail("no my.dic");
  std::printf("With a dictionary of one's own:\n");
  const std::string russian = translate(set.get(), "ENRU", "table");
  const std::string configuration = save(set.get());

  std::printf("From Russian:\n");
  change_direction(set.get(), "RUEN");
  translate(set.get(), "RUEN", russian.c_str());

  set = open_set("ENRU", directory);
  restore(set.get(), configuration);
  change_direction(set.get(), "ENRU");
  std::printf("The next day, configured by:%s\n", configuration.c_str());
  translate(set.get(), "ENRU", "bread");
  translate(set.get(), "ENRU", "table");
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) fail("usage: engine DIRECTORY/");
  run(arguments[1]);
}
