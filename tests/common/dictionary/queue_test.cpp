// Language and type of a dictionary from its file name.
#include "kz/dic_queue.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

TEST(DictionaryName, ExtensionTellsTheTypeAndWhereTheLanguageStands) {
  const struct {
    const char* name;
    int known;
    const char *language, *type;
  } cases[] = {
      {"/dic/general.enru.dic", 1, "ENRU", "C"},
      {"C:\\DIC\\BaseRuEn.Dic", 1, "RUEN", "C"},
      {"general.dic", 1, "", "C"},
      {"general.ru.dic", 1, "", "C"},
      {"RUDE.DERU.DIC", 1, "DERU", "C"},  // the order of the codes decides, not their places
      {"words.ru.dis", 1, "RU", "S"},
      {"wordsen.dis", 1, "EN", "S"},
      {"words.enru.dis", 1, "RU", "S"},
      {"words.frru.dit", 1, "FRRU", "T"},
      {"words.fr.dit", 1, "FR", "T"},
      {"words.dit", 1, "", "T"},
      {"de.dih", 1, "DE", "H"},
      {"basefr.dig", 1, "FR", "G"},
      {"enru.dictionary", 0, "", ""},
      {"enru.di", 0, "", ""},
      {"enru.dic/readme", 0, "", ""},
      {"enru.", 0, "", ""},
      {"enrudic", 0, "", ""},
      {"", 0, "", ""},
      {nullptr, 0, "", ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name != nullptr ? c.name : "null");
    char language[5], type[2];
    std::memset(language, 'x', sizeof language);
    std::memset(type, 'x', sizeof type);
    EXPECT_EQ(DicDefineLangType(c.name, language, type), c.known);
    EXPECT_STREQ(language, c.language);
    EXPECT_STREQ(type, c.type);
    EXPECT_EQ(DicDefineLangType(c.name, nullptr, nullptr), c.known);
  }
}

TEST(DictionaryName, CodesAloneAreCapitalsAndLeaveTheOutputWithoutOne) {
  char language[5] = "x";
  DicDefineLang("general.enru.dic", language);
  DicDefineSpLang("general.enru.dic", language);
  DicDefineLang("ENRU", language);
  DicDefineLang(nullptr, language);
  EXPECT_STREQ(language, "x");
  DicDefineLang("FRRU.d/RUEN.x", language);
  EXPECT_STREQ(language, "RUEN");
  DicDefineSpLang("FREN.DERU.", language);
  EXPECT_STREQ(language, "RU");
}

}  // namespace
