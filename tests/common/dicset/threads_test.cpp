// Sets in several threads, on the same dictionary files.
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "kz/dic_error.h"
#include "kz/dic_iterator.h"
#include "tests/common/dicset/set_fixture.h"

namespace kz::test {
namespace {

// What an engine does all day, with every answer written down.
std::vector<std::string> run_engine(const std::string& directory, std::int16_t mode) {
  std::vector<std::string> answers;
  const auto note = [&](const char* text) { answers.emplace_back(text != nullptr ? text : "-"); };
  CDicSys* const set = DicSysOpen(1, "ENRU", directory.c_str());
  for (int round = 0; round < 20; ++round) {
    DicSysLoadCommon(set);
    DicQueLoad(set, 0, (directory + "my.dic").c_str(), mode);
    mode = mode == 4 ? 0 : 4;
    for (const char* word : {"cat", "dog", "catalogue", "zebra", "cow"}) {
      for (std::int16_t list = 0; list < 4; ++list) {
        DicQueFirst(set, list, 0);
        note(DicQueFind(set, list, word, 0, 2));
        if (DicQueNext(set, list) != nullptr) note(DicQueFindRest(set, list, word, -1, 2));
      }
    }
    CDicSysEntryIterator* const all =
        DicSysIteratorOpen(set, (directory + "baseenru.dic").c_str(), nullptr, "", 0, nullptr, 0);
    const char* record = DicIteratorGetFirstEntry(all, nullptr, nullptr, nullptr, nullptr, 0);
    for (; record != nullptr;
         record = DicIteratorGetNextEntry(all, nullptr, nullptr, nullptr, nullptr)) {
      note(record);
    }
    DicSysIteratorClose(all);
    char text[1024] = "";
    DicArrayUpdate(set);
    DicArrayParmStr(set, text);
    note(text);
    DicSysSetLanguage(set, round % 2 == 0 ? "RUEN" : "ENRU");
    if (DicQueLoad(set, -1, (directory + "missing.dic").c_str(), 0) == nullptr) note("missing");
    // Another thread may have overwritten the code, but only by one that was left somewhere.
    const int code = kz_dict_dic_errno();
    if (code != DIC_OK && code != DIC_ERR_FILE) note("another code");
    DicQueClear(set);
  }
  DicSysClose(set);
  return answers;
}

class ThreadsTest : public SetTest {};

TEST_F(ThreadsTest, SetsOfTheirOwnAnswerAsAlone) {
  for (const int packing : {0, 1}) {
    DictionaryFile file;
    file.packing = packing;
    file.records = {{"cat", "Nxyz"}, {"catalogue", "Nlist"}, {"cow", "Nmilk"}, {"dog", "Vbark"}};
    file.write(directory_ + "baseenru.dic");
    file.records = {{"cat", "Nmine"}, {"dog", "Nmine"}};
    file.write(directory_ + "my.dic");
    write("baseru.dig", "RU", 'G');
    write("baseruen.dic", "RUEN");
    std::vector<std::string> answers[2];
    std::thread first([&] { answers[0] = run_engine(directory_, 0); });
    std::thread second([&] { answers[1] = run_engine(directory_, 4); });
    first.join();
    second.join();
    EXPECT_EQ(answers[0], run_engine(directory_, 0));
    EXPECT_EQ(answers[1], run_engine(directory_, 4));
  }
}

}  // namespace
}  // namespace kz::test
