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
class Engine {
 public:
  Engine(const std::string& directory, int first_mode)
      : directory_(directory), mode_(static_cast<std::int16_t>(first_mode)) {}

  std::vector<std::string> run() {
    CDicSys* const set = DicSysOpen(1, "ENRU", directory_.c_str());
    for (int round = 0; round < 20; ++round) {
      DicSysLoadCommon(set);
      DicQueLoad(set, 0, (directory_ + "my.dic").c_str(), mode_);
      mode_ = mode_ == 4 ? 0 : 4;
      search(set);
      walk(set);
      char text[1024] = "";
      DicArrayUpdate(set);
      DicArrayParmStr(set, text);
      note(text);
      DicSysSetLanguage(set, round % 2 == 0 ? "RUEN" : "ENRU");
      note(DicQueLoad(set, -1, (directory_ + "missing.dic").c_str(), 0) == nullptr ? "missing"
                                                                                   : "");
      // Another thread may have overwritten the code, but only by one that was left somewhere.
      const int code = kz_dict_dic_errno();
      note(code == DIC_OK || code == DIC_ERR_FILE ? "" : std::to_string(code));
      DicQueClear(set);
    }
    DicSysClose(set);
    return answers_;
  }

 private:
  void note(const char* text) { answers_.emplace_back(text != nullptr ? text : "-"); }
  void note(const std::string& text) { answers_.push_back(text); }

  void search(CDicSys* set) {
    for (const char* word : {"cat", "dog", "catalogue", "zebra", "cow"}) {
      for (std::int16_t list = 0; list < 4; ++list) {
        DicQueFirst(set, list, 0);
        note(DicQueFind(set, list, word, 0, 2));
        if (DicQueNext(set, list) != nullptr) note(DicQueFindRest(set, list, word, -1, 2));
      }
    }
  }

  void walk(CDicSys* set) {
    const std::string path = directory_ + "baseenru.dic";
    char word[DIC_ENTRY_ROOM];
    CDicSysEntryIterator* const all =
        DicSysIteratorOpen(set, path.c_str(), nullptr, "", 0, nullptr, 0);
    const char* record = DicIteratorGetFirstEntry(all, word, nullptr, nullptr, nullptr, 0);
    for (; record != nullptr;
         record = DicIteratorGetNextEntry(all, word, nullptr, nullptr, nullptr)) {
      note(std::string(word) + record);
    }
    DicSysIteratorClose(all);
  }

  std::string directory_;
  std::int16_t mode_;
  std::vector<std::string> answers_;
};

class ThreadsTest : public SetTest {
 protected:
  void write_all(bool packed) {
    DictionaryFile file;
    file.packing = packed ? 1 : 0;
    file.records = {{"cat", "Nxyz"}, {"catalogue", "Nlist"}, {"cow", "Nmilk"}, {"dog", "Vbark"}};
    file.write(directory_ + "baseenru.dic");
    file.records = {{"cat", "Nmine"}, {"dog", "Nmine"}};
    file.write(directory_ + "my.dic");
    write("baseru.dig", "RU", 'G');
    write("baseruen.dic", "RUEN");
  }
};

TEST_F(ThreadsTest, SetsOfTheirOwnAnswerAsAlone) {
  for (const bool packed : {false, true}) {
    write_all(packed);
    const std::vector<std::string> expected[] = {Engine(directory_, 0).run(),
                                                 Engine(directory_, 4).run()};
    std::vector<std::string> answers[2];
    std::thread first([&] { answers[0] = Engine(directory_, 0).run(); });
    std::thread second([&] { answers[1] = Engine(directory_, 4).run(); });
    first.join();
    second.join();
    EXPECT_EQ(answers[0], expected[0]);
    EXPECT_EQ(answers[1], expected[1]);
  }
}

}  // namespace
}  // namespace kz::test
