// Arrays of descriptors: filling, loading, saving, parameter strings, chains.
#include "kz/dic_array.h"

#include <filesystem>
#include <fstream>

#include "tests/common/dicset/set_fixture.h"

namespace kz::test {
namespace {

TEST_F(SetTest, DescriptorsAreAppendedReplacedOrPutBehindTheEnd) {
  const ZCObArray& array = *DicArraySelect(set_, nullptr);
  EXPECT_EQ(DicArraySet(set_, -1, "a.dic", 1, 0), -1);
  EXPECT_EQ(DicArraySet(set_, -1, "/x/b.dic", 2, 1), -1);
  EXPECT_EQ(DicArraySet(set_, 0, "c.dic", 0x1FF, 1), 0);
  EXPECT_EQ(DicArraySet(set_, 3, "d.dic", 0, 0), 3);
  EXPECT_EQ(descriptors(array), (Names{"c.dic:255", "/x/b.dic:2", "-", directory_ + "d.dic:0"}));
  EXPECT_EQ(static_cast<const CDicArray*>(array[0])->loaded, 1);

  const std::string room(259 - directory_.size(), 'a'), full(259, 'a');
  EXPECT_EQ(DicArraySet(set_, 1, room.c_str(), 0, 0), 1);
  EXPECT_EQ(DicArraySet(set_, 2, full.c_str(), 0, 1), 2);
  const auto before = descriptors(array);
  EXPECT_EQ(DicArraySet(set_, 1, (room + "a").c_str(), 0, 0), -1);
  EXPECT_EQ(DicArraySet(set_, 1, (full + "a").c_str(), 0, 1), -1);
  EXPECT_EQ(DicArraySet(set_, 1, nullptr, 0, 1), -1);
  EXPECT_EQ(descriptors(array), before);

  DicArrayRemoveAll(set_, DicArraySelect(set_, nullptr));
  EXPECT_EQ(array.GetSize(), 0);
  DicSysSetLanguage(set_, "RU");
  EXPECT_EQ(DicArraySet(set_, 0, "a.dic", 0, 0), -1);
  EXPECT_EQ(DicArraySet(nullptr, 0, "a.dic", 0, 0), -1);
}

TEST_F(SetTest, DictionariesAreLookedForInThreePlaces) {
  write("a.dic");
  write("b.dic");
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::create_directory(dir_.file("work"));
  std::filesystem::current_path(dir_.file("work"));
  std::filesystem::rename(dir_.file("b.dic"), "b.dic");
  std::ofstream(dir_.file("bad.dic")) << "no dictionary";

  ZCObArray* const array = DicArraySelect(set_, nullptr);
  DicArraySet(set_, -1, "/no/such/a.dic", 0, 1);  // in the directory of the set
  DicArraySet(set_, 3, "/no/such/b.dic", 0, 1);   // in the current directory
  EXPECT_EQ(DicArrayLoad(set_, array, 1), 0);
  EXPECT_EQ(loaded(), (Names{"a.dic", "b.dic"}));
  for (const char* missing : {"missing.dic", "bad.dic", ""}) {
    DicArraySet(set_, 1, missing, 0, 1);
    EXPECT_EQ(DicArrayLoad(set_, array, 1), 1) << missing;
    EXPECT_EQ(DicArrayLoad(set_, array, 0), 0) << missing;
    EXPECT_EQ(loaded(), (Names{"a.dic", "b.dic"}));
  }
  EXPECT_EQ(DicArrayLoad(set_, nullptr, 1), -1);
  EXPECT_EQ(DicArrayLoad(nullptr, array, 1), -1);

  DicArrayUnLoad(set_, nullptr);
  DicArrayUnLoad(nullptr, array);
  EXPECT_EQ(loaded(), (Names{"a.dic", "b.dic"}));
  DicArrayUnLoad(set_, array);
  EXPECT_EQ(loaded(), Names{});
  EXPECT_EQ(array->GetSize(), 0);

  // A path with either separator is taken as it is, a mere name lies in the directory of the set.
  const std::string named = write("c.dic");
  std::filesystem::create_directory("sub");
  for (const char* here : {"c.dic", "sub/d.dic", "back\\e.dic"}) {
    std::filesystem::copy_file(named, here);
    DicArraySet(set_, -1, here, 0, 1);
  }
  EXPECT_EQ(DicArrayLoad(set_, array, 1), 0);
  DicArrayUpdate(set_);
  EXPECT_EQ(descriptors(*array), (Names{named + ":0", "sub/d.dic:0", "back\\e.dic:0"}));
  std::filesystem::current_path(before);
}

TEST_F(SetTest, PathsTooLongForAPlaceAreReportedLikeMissingOnes) {
  // The files are there, "a.dic" at a path of 259 characters.
  const std::string deep = std::string(253 - directory_.size(), 'd') + '/';
  std::filesystem::create_directory(directory_ + deep);
  for (const char* name : {"a.dic", "ab.dic"}) write(deep + name);
  CDicSys* const far = DicSysOpen(0, "ENRU", (directory_ + deep).c_str());
  ZCObArray* const array = DicArraySelect(far, nullptr);
  EXPECT_EQ(DicArraySet(far, -1, "ab.dic", 0, 0), -1);
  EXPECT_EQ(array->GetSize(), 0);
  // Completed when they are loaded.
  const std::pair<const char*, int> cases[] = {
      {"a.dic", 0}, {"ab.dic", 1}, {"/no/a.dic", 0}, {"/no/ab.dic", 1}};
  for (const auto& [name, missing] : cases) {
    EXPECT_EQ(DicArraySet(far, 0, name, 0, 1), 0);
    EXPECT_EQ(DicArrayLoad(far, array, 1), missing) << name;
  }
  DicSysLoadCommon(far);
  for (const ZCObArray& direction : far->directions) EXPECT_EQ(direction.GetSize(), 0);
  DicSysClose(far);
}

TEST_F(SetTest, BaseDictionariesOfAllDirectionsAreListedAndThoseOfOneLoaded) {
  write("basederu.dic", "DERU");
  write("baseru.dig", "RU", 'G');
  write("basefrru.dic", "FRRU");
  open("DERU");
  DicArraySet(set_, -1, "old.dic", 1, 0);
  DicSysLoadCommon(set_);
  const char* const general[] = {"ru", "en", "ru", "fr", "ru", "de"};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(descriptors(set_->directions[i]),
              (Names{directory_ + "base" + lower_case(kDirections[i]) + ".dic:0",
                     directory_ + "base" + general[i] + ".dig:0"}));
  }
  EXPECT_EQ(loaded(), (Names{"basederu.dic", "baseru.dig"}));
  EXPECT_EQ(loaded(1), (Names{"basederu.dic"}));
  EXPECT_EQ(loaded(2), (Names{"baseru.dig"}));
  EXPECT_EQ(parameters(), "start\n-CDERU " + directory_ + "basederu.dic:0;" + directory_ +
                              "baseru.dig:0\n-CRUDE " + directory_ + "baserude.dic:0;" +
                              directory_ + "basede.dig:0");
  EXPECT_STREQ(set_->language, "DERU");
  DicArrayFree(set_);
  EXPECT_EQ(parameters(), "start");
}

TEST_F(SetTest, PathListsAreTokensWithAModeBehindTheLastColon) {
  struct Case {
    std::string list;
    Names expected;
  };
  const std::string path(259, 'p');
  const Case cases[] = {
      {"C:\\DIC\\a.dic:1;C:\\DIC\\b.dic:2", {"C:\\DIC\\a.dic:1", "C:\\DIC\\b.dic:2"}},
      {" a.dic:1 ,;\tb.dic) c.dic:300;", {"a.dic:1", "b.dic:0", "c.dic:44"}},
      {"C:\\DIC\\a.dic", {"C:0"}},  // the colon of the drive is the last one
      {"a:b:3,a::4", {"a:b:3", "a::4"}},
      {"a:x b: c:1x d:99999", {"a:0", "b:0", "c:0", "d:0"}},
      {path + ":2 " + path + "p:2 " + path + ":0000002 " + path + ":00000002",
       {path + ":2", path + ":2"}},
      {" ;,)\t", {}},
      {"", {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.list);
    EXPECT_EQ(DicArrayAddPath(set_, -1, "deruMORE", c.list.c_str()),
              static_cast<int>(c.expected.size()) - 1);
    EXPECT_EQ(descriptors(set_->directions[4]), c.expected);
    EXPECT_EQ(set_->current_array, &set_->directions[0]);
  }
  EXPECT_EQ(DicArrayAddPath(set_, 2, "RUEN", "a:1;b:2"), 2);  // each at the position given
  EXPECT_EQ(descriptors(set_->directions[1]), (Names{"-", "-", "b:2"}));
  EXPECT_EQ(DicArrayAddPath(set_, -1, "RU", "a:1"), -1);
  EXPECT_EQ(DicArrayAddPath(set_, -1, nullptr, "a:1"), -1);
  EXPECT_EQ(DicArrayAddPath(set_, -1, "RUEN", nullptr), 0);
  EXPECT_EQ(DicArrayAddPath(nullptr, -1, "RUEN", "a:1"), 0);
  EXPECT_EQ(descriptors(set_->directions[1]), (Names{"-", "-", "b:2"}));
}

TEST_F(SetTest, AnArrayThatIsFilledAnewUnloadsItsDictionaries) {
  const std::string a = write("a.dic"), b = write("b.dic");
  DicArrayAddPath(set_, -1, "ENRU", (a + ":0").c_str());
  DicArrayLoad(set_, DicArraySelect(set_, nullptr), 1);
  CDic* const other = DicQueLoad(set_, -1, b.c_str(), 0);
  DicArrayAddPath(set_, -1, "ENRU", (b + ":0").c_str());
  EXPECT_EQ(loaded(), (Names{"b.dic"}));
  // The list may be the path of a dictionary or a descriptor that goes.
  ZCObArray& array = *DicArraySelect(set_, nullptr);
  EXPECT_EQ(DicArrayAddPath(set_, -1, "ENRU", DicGetPath(other)), 0);
  EXPECT_EQ(loaded(), Names{});
  EXPECT_EQ(descriptors(array), (Names{b + ":0"}));
  EXPECT_EQ(DicArrayAddPath(set_, -1, "ENRU", static_cast<const CDicArray*>(array[0])->path), 0);
  EXPECT_EQ(descriptors(array), (Names{b + ":0"}));
}

TEST_F(SetTest, ParameterStringsHoldTheArraysOfADirectionAndItsInverse) {
  DicArrayAddPath(set_, -1, "RUEN", "C:/c.dic:7");
  EXPECT_EQ(parameters(), "start\n-CRUEN C:/c.dic:7");
  DicArraySet(set_, 1, "C:/a.dic", 0, 1);  // an empty slot before it
  DicArraySet(set_, -1, "", 3, 1);         // no path
  DicArraySet(set_, -1, "b.dic", 255, 1);
  EXPECT_EQ(parameters(), "start\n-CENRU C:/a.dic:0;b.dic:255\n-CRUEN C:/c.dic:7");
  EXPECT_STREQ(set_->language, "ENRU");
  DicSysSetLanguage(set_, "RUEN");
  EXPECT_EQ(parameters(), "start\n-CRUEN C:/c.dic:7\n-CENRU C:/a.dic:0;b.dic:255");
  DicSysSetLanguage(set_, "RU");
  EXPECT_EQ(parameters(), "start");
  DicArrayParmStr(set_, nullptr);
  DicArrayParmStr(nullptr, nullptr);
}

TEST_F(SetTest, UpdatingWritesTheQueueDownAndClearsTheModeFlag) {
  const std::string enru = write("a.dic"), ruen = write("b.dic", "RUEN"),
                    de = write("c.dic", "DERU");
  struct Case {
    const char* language;
    Names expected;
  };
  const Case cases[] = {{"ENRU", {enru + ":2", ruen + ":128"}},
                        {"RUEN", {ruen + ":0", enru + ":2", de + ":4"}},
                        {"DERU", {de + ":4", ruen + ":0"}}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.language);
    open(c.language);
    CDic* const first = DicQueLoad(set_, -1, enru.c_str(), 2);
    DicSetMode(set_, first, 128);
    CDic* const second = DicQueLoad(set_, -1, ruen.c_str(), 0);
    // The flag alone is a mode of its own, which stays.
    if (c.language[0] == 'E') DicSetMode(set_, second, 128);
    DicQueLoad(set_, -1, de.c_str(), 4);
    DicArraySet(set_, -1, "old.dic", 1, 1);
    EXPECT_EQ(DicArrayUpdate(set_), 0);
    EXPECT_EQ(descriptors(*set_->current_array), c.expected);
    EXPECT_EQ(DicGetMode(first), c.language[0] == 'D' ? 130 : 2);
    DicSetOperationCode(set_, 1);
    EXPECT_EQ(DicArrayUpdate(set_), 0);
    EXPECT_EQ(set_->current_array->GetSize(), 0);
  }
  DicSysSetLanguage(set_, "RU");
  EXPECT_EQ(DicArrayUpdate(set_), 0);
  EXPECT_EQ(DicArrayUpdate(nullptr), -1);
}

TEST_F(SetTest, AChainSavesLists5And4AndLoadsThemAgain) {
  const std::string ru = write("ru.dis", "RU", 'S'), en = write("en.dis", "EN", 'S');
  const auto join = [&](int list, const std::string& path) {
    CDic* const dictionary = DicQueLoad(set_, -1, path.c_str(), 0);
    set_->queue.lists[list].Add(reinterpret_cast<ZCObject*>(dictionary));
  };
  join(4, ru);
  join(5, en);
  DicQueLoad(set_, -1, write("other.dic").c_str(), 0);
  // What a chain held before is not kept.
  for (int time = 0; time < 2; ++time) EXPECT_EQ(DicQueUpdateSpellDicChain(set_), -1);
  EXPECT_EQ(descriptors(set_->spell_chain[0]), (Names{en + ":0"}));
  EXPECT_EQ(descriptors(set_->spell_chain[1]), (Names{ru + ":0"}));
  set_->queue.lists[4].RemoveAll();
  EXPECT_EQ(DicQueUpdateThesaurusDicChain(set_), -1);
  EXPECT_EQ(descriptors(set_->thesaurus_chain[0]), (Names{en + ":0"}));
  EXPECT_EQ(set_->thesaurus_chain[1].GetSize(), 0);

  join(4, write("more.dis", "RU", 'S'));  // a dictionary of the other chain goes
  EXPECT_EQ(DicQueLoadSpellDicChain(set_), 0);
  EXPECT_EQ(loaded(), (Names{"other.dic", "en.dis", "ru.dis"}));
  EXPECT_EQ(DicQueGetSize(set_, 4) + DicQueGetSize(set_, 5), 0);
  std::filesystem::remove(en);
  EXPECT_EQ(DicQueLoadSpellDicChain(set_), 1);
  EXPECT_EQ(DicQueLoadThesaurusDicChain(set_), 1);

  // A dictionary that is not the queue's leaves the list and stays open.
  CDic* const own = DicQueOpen(set_, ru.c_str(), 0);
  set_->queue.lists[5].Add(reinterpret_cast<ZCObject*>(own));
  DicQueUnLoad(set_, ru.c_str(), 0);
  DicQueClearSpellDicChain(set_);
  EXPECT_EQ(DicQueGetSize(set_, 5), 0);
  EXPECT_STREQ(DicFind(own, nullptr, 0, 2), "cat*Nru.dis");
  DicClose(own);

  for (const auto function : {DicQueLoadSpellDicChain, DicQueLoadThesaurusDicChain,
                              DicQueUpdateSpellDicChain, DicQueUpdateThesaurusDicChain}) {
    EXPECT_EQ(function(nullptr), 0);
  }
}

}  // namespace
}  // namespace kz::test
