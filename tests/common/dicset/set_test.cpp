// The dictionary set: buffers, directions, header services, iterators over its dictionaries.
#include "kz/dic_set.h"

#include <algorithm>
#include <cstring>
#include <fstream>

#include "kz/dic_error.h"
#include "kz/dic_header.h"
#include "kz/dic_iterator.h"
#include "tests/common/dicset/set_fixture.h"

namespace kz::test {
namespace {

TEST(Set, BuffersAreZeroedAndOnlyMadeWhenAsked) {
  for (const int16_t flag : {int16_t{1}, int16_t{255}}) {
    CDicSys* const set = DicSysOpen(flag, nullptr, nullptr);
    char* const buffers[] = {DicGetEBuf(set), DicGetGBuf(set)};
    ASSERT_NE(buffers[0], buffers[1]);
    for (char* buffer : buffers) {
      EXPECT_EQ(std::count(buffer, buffer + DIC_SET_BUFFER_SIZE, 0), DIC_SET_BUFFER_SIZE);
    }
    DicSysClose(set);
  }
  CDicSys* const set = DicSysOpen(0, "ENRU", "/tmp/");
  EXPECT_EQ(DicGetEBuf(set), nullptr);
  EXPECT_EQ(DicGetGBuf(set), nullptr);
  DicSysClose(set);
  EXPECT_EQ(DicGetEBuf(nullptr), nullptr);
  EXPECT_EQ(DicGetGBuf(nullptr), nullptr);
  DicSysClose(nullptr);
  EXPECT_EQ(CDicSys().buffer_flag, 1);
}

TEST_F(SetTest, TheDirectionSelectsItsArrayInAnyCase) {
  for (int i = 0; i < 6; ++i) {
    ZCObArray* const array = &set_->directions[i];
    EXPECT_EQ(DicArraySelect(set_, kDirections[i]), array);
    DicSysSetLanguage(set_, nullptr);
    EXPECT_EQ(DicArraySelect(set_, nullptr), nullptr);
    const std::string lower = lower_case(kDirections[i]);
    DicSysSetLanguage(set_, (lower + "more").c_str());
    EXPECT_EQ(set_->language, lower);
    EXPECT_EQ(set_->current_array, array);
    open(kDirections[i]);
    EXPECT_EQ(set_->current_array, &set_->directions[i]);
  }
  for (const char* none : {"RU", "EN", "ENFR", "", "ENR"}) {
    EXPECT_EQ(DicArraySelect(set_, none), nullptr) << none;
    EXPECT_EQ(DicArrayInit(set_), 1);
    EXPECT_EQ(set_->current_array, nullptr);
  }
  DicSysSetLanguage(nullptr, "ENRU");
  DicSetOperationCode(nullptr, 1);
  EXPECT_EQ(DicArraySelect(nullptr, "ENRU"), nullptr);
  EXPECT_EQ(DicArrayInit(nullptr), 0);
}

TEST_F(SetTest, HeadersOfLoadedDictionariesAreNotRewritten) {
  const std::string path = write("a.dic");
  const auto set_properties = [&](const char* file) {
    return DicSysHeaderSetProperties(set_, file, "Title", nullptr, 7, "secret");
  };
  const std::string before = dir_.read("a.dic");
  DicQueLoad(set_, -1, path.c_str(), 0);
  EXPECT_EQ(set_properties((directory_ + "A.DIC").c_str()), DIC_ERR_IN_USE);
  EXPECT_EQ(kz_dict_dic_errno(), DIC_ERR_IN_USE);
  EXPECT_EQ(dir_.read("a.dic"), before);
  EXPECT_EQ(set_properties(nullptr), DIC_ERR_ARGUMENT);
  EXPECT_EQ(DicSysHeaderSetProperties(nullptr, path.c_str(), "", "", 1, ""), -1);
  DicQueClear(set_);
  EXPECT_EQ(set_properties(path.c_str()), DIC_OK);
  EXPECT_EQ(set_properties("/no/such.dic"), DIC_ERR_FILE);

  // The password comes from the file, and from memory when the dictionary is loaded.
  char password[8];
  for (const bool from_memory : {false, true}) {
    std::memset(password, 'x', 8);
    if (from_memory) std::ofstream(path) << "no dictionary any more";
    EXPECT_EQ(DicSysGetDicPassword(set_, path.c_str(), password), password);
    EXPECT_EQ(std::string(password, 8), std::string("secret\0\0", 8));
    if (!from_memory) DicQueLoad(set_, -1, path.c_str(), 0);
  }
  DicQueClear(set_);
  EXPECT_EQ(DicSysGetDicPassword(set_, path.c_str(), password), nullptr);
  EXPECT_EQ(kz_dict_dic_errno(), DIC_ERR_FORMAT);
  EXPECT_EQ(DicSysGetDicPassword(set_, nullptr, password), nullptr);
  EXPECT_EQ(DicSysGetDicPassword(set_, path.c_str(), nullptr), nullptr);
}

TEST_F(SetTest, AnIteratorBorrowsTheLoadedDictionary) {
  const std::string path = write("a.dic"), other = write("b.dic");
  CDic* const loaded = DicQueLoad(set_, -1, path.c_str(), 2);
  char word[80] = "", code[2], body[80];
  for (const std::string& file : {path, other}) {
    CDicSysEntryIterator* const iterator =
        DicSysIteratorOpen(set_, file.c_str(), nullptr, "", 0, nullptr, 0);
    ASSERT_NE(iterator, nullptr);
    EXPECT_EQ(DicIteratorGetDicHandler(iterator) == loaded, file == path);
    EXPECT_NE(DicIteratorGetFirstEntry(iterator, word, code, body, nullptr, 0), nullptr);
    EXPECT_STREQ(word, "cat");
    EXPECT_STREQ(body, file.substr(file.size() - 5).c_str());
    EXPECT_EQ(iterator->GetNextEntry(word, code, body, nullptr), nullptr);
    EXPECT_EQ(iterator->GetCounter(), 1);
    EXPECT_STREQ(iterator->GetLanguage(nullptr), "ENRU");
    // Opening again lets the borrowed dictionary go and finds the other one.
    EXPECT_EQ(iterator->OpenIterator(set_, other.c_str(), nullptr, "", 0, nullptr, 0), iterator);
    EXPECT_NE(iterator->GetFirstEntry(word, code, body, nullptr, 0), nullptr);
    EXPECT_STREQ(body, "b.dic");
    DicSysIteratorClose(iterator);
  }
  // The texts may be those of the dictionary that is let go or closed.
  CDicSysEntryIterator again;
  for (const std::string& file : {other, path, other}) {
    again.OpenIterator(set_, file.c_str(), nullptr, "", 0, nullptr, 0);
    const char* const record = again.GetFirstEntry(word, code, body, nullptr, 0);
    ASSERT_EQ(again.OpenIterator(set_, DicGetPath(again.GetDicHandler()), record, record, 0,
                                 record + 4, 1),
              &again);
    EXPECT_EQ(again.GetDicHandler() == loaded, file == path);
    EXPECT_NE(again.GetFirstEntry(word, code, body, nullptr, 0), nullptr);
    EXPECT_EQ(file.substr(file.size() - 5), body);
  }
  EXPECT_EQ(DicSysIteratorOpen(set_, path.c_str(), "!x", nullptr, 0, nullptr, 0), nullptr);
  EXPECT_STREQ(DicFind(loaded, "cat", 0, 2), "cat*Na.dic");
  EXPECT_EQ(DicSysIteratorOpen(set_, "/no/such.dic", nullptr, "", 0, nullptr, 0), nullptr);
  DicSysIteratorClose(nullptr);

  // Without a set the path is opened.
  CDicSysEntryIterator* const alone =
      DicSysIteratorOpen(nullptr, path.c_str(), nullptr, "", 0, nullptr, 0);
  EXPECT_STREQ(DicIteratorGetFirstEntry(alone, word, code, body, nullptr, 0), "cat*Na.dic");
  EXPECT_NE(DicIteratorGetDicHandler(alone), loaded);
  DicSysIteratorClose(alone);
}

}  // namespace
}  // namespace kz::test
