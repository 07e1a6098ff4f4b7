// The queue of a set: random sequences of calls against a model, and the rules that it leaves out.
#include "kz/dic_queue.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "kz/codepage.h"
#include "kz/dic_array.h"
#include "kz/dic_set.h"
#include "kz/dictionary.h"
#include "tests/common/dicset/queue_model.h"
#include "tests/common/dictionary/dictionary_file.h"
#include "tests/support/temp_dir.h"
#include "text/literal.h"

namespace kz::test {
namespace {

using kz::operator""_1251;

ZCObject* element(CDic* dictionary) { return reinterpret_cast<ZCObject*>(dictionary); }

void set_time(const std::string& path, int seconds) {
  std::filesystem::last_write_time(
      path, std::filesystem::file_time_type::clock::now() + std::chrono::seconds(seconds));
}

class QueueTest : public testing::Test {
 protected:
  // Writes a dictionary whose entries tell the file that they are from.
  void write(const std::string& path, const std::string& language, char type,
             const std::set<std::string>& words) {
    DictionaryFile file;
    file.language = language;
    file.type = type;
    file.alphabet_size = language[0] == 'R' ? 32 : 26;
    for (const std::string& word : words) file.records.push_back({word, "N" + path});
    file.write(path);
  }
  std::string simple(const std::string& name, const std::string& language = "ENRU",
                     char type = 'C') {
    const std::string path = dir_.file(name);
    write(path, language, type, {language[0] == 'R' ? std::string(U"дом"_1251) : "cat"});
    return path;
  }

  TempDir dir_;
  CDicSys* const set_ = DicSysOpen(0, "ENRU", nullptr);
  ~QueueTest() override { DicSysClose(set_); }
};

// Drives the library and the model side by side.
class Drive : public QueueTest {
 protected:
  static constexpr int kFiles = 9;

  void make_files() {
    const std::string languages[] = {"ENRU", "ENRU", "RUEN", "RU", "EN", "DERU", "ENRU", "RUDE"};
    for (int i = 0; i < kFiles; ++i) {
      const std::string language = languages[i % 8];
      ModelFile file{dir_.file("d" + std::to_string(i) + ".dic"), language};
      if (language.size() != 4 || i == 6) file.type = 'G';
      if (i == kFiles - 1) {  // the same file name in another directory
        std::filesystem::create_directory(dir_.file("sub"));
        file.path = dir_.file("sub/D0.dic");
      }
      for (const std::string& word : words_) {
        const bool russian = static_cast<unsigned char>(word[0]) > 'z';
        if (russian == (language[0] == 'R') && below(2) != 0) file.words.insert(word);
      }
      write(file.path, language, file.type, file.words);
      files_.push_back(file);
    }
    for (ModelFile& file : files_) touch(file);
  }

  void touch(ModelFile& file) {
    file.time = ++clock_;
    set_time(file.path, file.time);
  }

  int below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  int list() { return below(6); }
  ModelFile& file() { return files_[static_cast<std::size_t>(below(kFiles))]; }
  int mode() { return "\0\2\4\1"[below(4)]; }

  // A dictionary just opened against the model's, which learns its handle.
  void same(CDic* handle, const QueueModel::Entry& entry) {
    ASSERT_EQ(handle != nullptr, entry != nullptr);
    if (entry) handles_[entry.get()] = handle;
  }
  CDic* handle(const QueueModel::Entry& entry) {
    return entry ? handles_.at(entry.get()) : nullptr;
  }

  void load() {
    const int position = below(4) - 1, how = mode();
    ModelFile& which = file();
    same(DicQueLoad(set_, static_cast<int16_t>(position), which.path.c_str(),
                    static_cast<int16_t>(how)),
         model_.load(position, which, how));
  }

  void reopen() {
    const auto entry = model_.at(0, below(8));
    if (!entry) return;
    const int wanted = below(5) == 0 ? 5 : mode();
    CDic* const reopened = DicSetMode(set_, handle(entry), static_cast<int16_t>(wanted));
    if (wanted == entry->mode) {
      ASSERT_EQ(reopened, handle(entry));
      return;
    }
    const int how = wanted == 5 ? entry->mode : wanted;
    model_.unload(*entry->file, 0);
    same(reopened, model_.load(entry->id, *entry->file, how));
  }

  void find() {
    const int where = list();
    const bool rest = below(2) != 0;
    const std::string& what = words_[below(5)];
    const char* const found =
        (rest ? DicQueFindRest : DicQueFind)(set_, static_cast<int16_t>(where), what.c_str(), 0, 2);
    const auto entry = model_.find(where, what, rest);
    ASSERT_EQ(found != nullptr, entry != nullptr);
    ASSERT_EQ(found != nullptr ? found : "", entry ? what + "*N" + entry->file->path : "");
  }

  void chain() {
    const int where = 4 + below(2);
    const auto entry = model_.at(0, below(8));
    if (!entry || model_.lists[where].size() > 3) return;
    set_->queue.lists[where].Add(element(handle(entry)));
    model_.lists[where].push_back(entry);
  }

  void step() {
    const auto l = static_cast<int16_t>(list());
    const auto i = static_cast<int16_t>(below(6) - 1);
    const int choice = below(22);
    if (choice < 5) return load();
    if (choice < 8) return find();
    switch (choice) {
      case 8: {
        const int how = below(3) == 0 ? 6 : mode();
        const ModelFile& which = file();
        ASSERT_EQ(DicQueUnLoad(set_, which.path.c_str(), static_cast<int16_t>(how)) != 0,
                  model_.unload(which, how));
        return;
      }
      case 9: ASSERT_EQ(DicQueFirst(set_, l, i), handle(model_.first(l, i))); return;
      case 10: ASSERT_EQ(DicQueNext(set_, l), handle(model_.next(l))); return;
      case 11: ASSERT_EQ(DicQueNext(set_, -1), handle(model_.next(-1))); return;
      case 12: ASSERT_EQ(DicSetCurrent(set_, l, i), model_.set(l, i)); return;
      case 13: ASSERT_EQ(DicGetCurrent(set_, l), model_.get(l)); return;
      case 14: {
        const auto entry = model_.at(list(), below(3));
        DicSetCurrentHandler(set_, l, handle(entry));
        return model_.set_handler(l, entry);
      }
      case 15: return touch(file());
      case 16: return reopen();
      case 17: return chain();
      case 18: DicQueEnumerate(set_); return model_.enumerate();
      case 19:
        if (below(3) != 0) return;
        DicQueClearSpellDicChain(set_);
        return model_.clear_chains();
      case 20: {
        const std::string language = below(2) != 0 ? "ENRU" : "RUEN";
        ASSERT_EQ(DicQueClearIfChanged(set_, language.c_str()) != 0,
                  model_.clear_if_changed(language));
        return;
      }
      default:
        if (below(4) == 0) {
          DicQueClear(set_);
          return model_.clear();
        }
        const char* const languages[] = {"ENRU", "RUEN", "DERU"};
        model_.language = languages[below(3)];
        DicSysSetLanguage(set_, model_.language.c_str());
    }
  }

  void compare() {
    const QueueState& queue = set_->queue;
    for (int16_t l = 0; l < 6; ++l) {
      ASSERT_EQ(DicQueGetSize(set_, l), static_cast<int>(model_.lists[l].size()));
      for (int i = 0; i < queue.lists[l].GetSize(); ++i) {
        const auto entry = model_.at(l, i);
        ASSERT_EQ(queue.lists[l][i], element(handle(entry)));
        ASSERT_EQ(DicGetId(handle(entry)), entry->id);
        ASSERT_EQ(DicGetMode(handle(entry)), entry->mode);
        ASSERT_EQ(ChkDicInList(set_, entry->file->path.c_str()), handle(entry));
      }
      ASSERT_EQ(queue.list_index[l], model_.index[l]) << l;
      ASSERT_EQ(DicGetCurrentHandler(set_, l), handle(model_.current[l])) << l;
    }
    ASSERT_EQ(queue.current_list, model_.set_list);
    ASSERT_EQ(queue.current_index, model_.set_index);
    ASSERT_EQ(queue.current_dictionary, handle(model_.set_current));
    ASSERT_EQ(queue.current_array, queue.list_table[queue.current_list]);
  }

  const std::string words_[5] = {"cat", "dog", "house", std::string(U"дом"_1251),
                                 std::string(U"кот"_1251)};
  std::mt19937 random_;
  int clock_ = 0;
  std::vector<ModelFile> files_;
  QueueModel model_;
  std::map<const Loaded*, CDic*> handles_;
};

TEST_F(Drive, BehavesAsTheModelOnRandomCalls) {
  random_.seed(7);
  files_.reserve(kFiles);
  make_files();
  model_.language = "ENRU";
  for (int i = 0; i < 12000; ++i) {
    step();
    if (HasFatalFailure()) FAIL() << "call " << i;
    compare();
    if (HasFatalFailure()) FAIL() << "after call " << i;
  }
}

TEST_F(QueueTest, NothingIsDoneWithoutASetOrOutsideTheLists) {
  EXPECT_EQ(DicQueOpen(nullptr, "x", 0), nullptr);
  EXPECT_EQ(DicQueLoad(nullptr, -1, "x", 0), nullptr);
  EXPECT_EQ(DicQueUnLoad(nullptr, "x", 0) + DicQueClearIfChanged(nullptr, "ENRU"), 0);
  EXPECT_EQ(ChkDicInList(nullptr, "x"), nullptr);
  EXPECT_EQ(DicSetMode(nullptr, nullptr, 0), nullptr);
  DicQueClear(nullptr);

  CDic* const loaded = DicQueLoad(set_, -1, simple("a.dic").c_str(), 0);
  DicQueFirst(set_, 1, 0);
  const std::pair<CDicSys*, int16_t> nothing[] = {{nullptr, 1}, {set_, -2}, {set_, 6}};
  for (const auto& [set, list] : nothing) {
    EXPECT_EQ(DicQueGetSize(set, list), 0);
    EXPECT_EQ(DicQueFirst(set, list, 0), nullptr);
    EXPECT_EQ(DicQueNext(set, list), nullptr);
    EXPECT_EQ(DicQueFind(set, list, "cat", 0, 2), nullptr);
    EXPECT_EQ(DicQueFindRest(set, list, "cat", 0, 2), nullptr);
    EXPECT_EQ(DicSetCurrent(set, list, 1), set != nullptr ? 0 : -1);
    EXPECT_EQ(DicGetCurrent(set, list), -1);
    EXPECT_EQ(DicGetCurrentHandler(set, list), nullptr);
    DicSetCurrentHandler(set, list, loaded);
  }
  EXPECT_EQ(DicGetCurrentHandler(set_, 1), loaded);

  // A failed load leaves the others.
  const std::string bad = dir_.write("bad.dic", "no dictionary");
  for (const char* path : {bad.c_str(), "/no/such.dic", "", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(DicQueLoad(set_, 0, path, 0), nullptr);
    EXPECT_EQ(DicQueGetSize(set_, 0), 1);
  }
  EXPECT_EQ(DicQueUnLoad(set_, nullptr, 0), 1);
  EXPECT_EQ(DicQueFirst(set_, 1, 0), loaded);
  EXPECT_STREQ(DicQueFind(set_, 1, "cat", 0, 2), ("cat*N" + dir_.file("a.dic")).c_str());
}

TEST_F(QueueTest, ADictionaryWithoutItsFileHasChanged) {
  const std::string path = simple("a.dic");
  DicClose(DicQueOpen(set_, path.c_str(), 4));  // joins no list
  EXPECT_EQ(DicQueGetSize(set_, 0), 0);
  DicQueLoad(set_, -1, path.c_str(), 2);
  EXPECT_EQ(DicQueUnLoad(set_, path.c_str(), 2), 0);
  EXPECT_EQ(DicQueClearIfChanged(set_, "enru"), 0);
  EXPECT_EQ(DicQueClearIfChanged(set_, nullptr), 1);
  // The path of a loaded dictionary may be given back.
  CDic* const loaded = DicQueLoad(set_, -1, path.c_str(), 2);
  CDic* const again = DicQueLoad(set_, -1, DicGetPath(loaded), 4);
  ASSERT_NE(again, nullptr);
  EXPECT_EQ(DicGetPath(again), path);
  std::filesystem::remove(path);
  EXPECT_EQ(DicQueUnLoad(set_, DicGetPath(again), 4), 1);
  EXPECT_EQ(DicQueGetSize(set_, 0), 0);
}

TEST_F(QueueTest, PathsAreComparedAsOemTextInAnyCase) {
  std::string path = dir_.file(std::string(U"Словарь ёж Q"_1251) + ".dic"), oem = path;
  strruansitooem(path.c_str(), oem.data());
  write(oem, "ENRU", 'C', {"cat"});
  CDic* const loaded = DicQueLoad(set_, -1, oem.c_str(), 0);
  std::string capitals = dir_.file(std::string(U"СЛОВАРЬ ЁЖ q"_1251) + ".DIC");
  EXPECT_EQ(ChkDicInList(set_, path.c_str()), loaded);
  EXPECT_EQ(ChkDicInList(set_, capitals.c_str()), loaded);
  EXPECT_EQ(ChkOemDicInList(set_, oem.c_str()), loaded);
  EXPECT_EQ(ChkOemDicInList(set_, path.c_str()), nullptr);
  EXPECT_EQ(ChkOemDicInList(set_, (oem + "x").c_str()), nullptr);
  EXPECT_EQ(ChkOemDicInList(set_, oem.substr(oem.rfind('/') + 1).c_str()), nullptr);
  EXPECT_EQ(ChkDicInList(set_, nullptr), nullptr);
}

TEST_F(QueueTest, TheModeFlagReopensNothing) {
  const std::string path = simple("a.dic");
  CDic* const loaded = DicQueLoad(set_, -1, path.c_str(), 2);
  // 2 and 130 are one open mode.
  const int16_t steps[][2] = {{2, 2}, {128, 130}, {2, 130}, {130, 130}};
  for (const auto& [mode, result] : steps) {
    EXPECT_EQ(DicSetMode(set_, loaded, mode), loaded);
    EXPECT_EQ(DicGetMode(loaded), result);
  }
  DicQueFirst(set_, 1, 0);
  EXPECT_NE(DicQueFind(set_, 1, "cat", 0, 2), nullptr);
  for (const int16_t mode : {int16_t{2}, int16_t{130}, int16_t{6}}) {
    EXPECT_EQ(DicQueLoad(set_, -1, path.c_str(), mode), nullptr);
    EXPECT_EQ(DicQueUnLoad(set_, path.c_str(), mode), 0);
  }
  CDic* reopened = DicSetMode(set_, loaded, 5);
  ASSERT_NE(reopened, nullptr);
  EXPECT_EQ(DicGetMode(reopened), 130);
  reopened = DicSetMode(set_, reopened, 4);
  ASSERT_NE(reopened, nullptr);
  EXPECT_EQ(DicGetMode(reopened), 4);
  std::filesystem::remove(dir_.file("a.dic"));
  EXPECT_EQ(DicSetMode(set_, reopened, 0), nullptr);
  EXPECT_EQ(DicQueGetSize(set_, 0), 0);
}

}  // namespace
}  // namespace kz::test
