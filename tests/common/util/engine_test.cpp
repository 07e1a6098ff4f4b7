// Registry of engines and pools of ids.
#include "kz/engine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <vector>

namespace {

using Ids = std::vector<int>;
using Engines = std::vector<void*>;

// The registry is one for the process: each test begins and ends with all handles free.
class EngineRegistry : public testing::Test {
 protected:
  EngineRegistry() { reset(); }
  ~EngineRegistry() override { reset(); }

  static void reset() {
    for (int id = 0; id < 256; ++id) FreeHandler(255, static_cast<std::int16_t>(id));
    kz_data_free();
  }

  int first_ = 1, second_ = 2;
};

TEST_F(EngineRegistry, HoldsTwoEngines) {
  EXPECT_EQ(KZEngine(0), nullptr) << "no table";
  EXPECT_EQ((Ids{SetKZEngine(nullptr, 1), SetKZEngine(&first_, 0), SetKZEngine(&second_, 1)}),
            (Ids{-1, 0, 1}));
  EXPECT_EQ(SetKZEngine(&first_, 1), 2) << "an id, but no place";
  EXPECT_EQ((Engines{KZEngine(0), KZEngine(1), KZEngine(2), KZEngine(65535)}),
            (Engines{&first_, &second_, nullptr, nullptr}));
  EXPECT_EQ((Engines{KZDTBEngine(0), KZDTBEngine(1)}), (Engines{nullptr, &second_}));

  FreeEngineHandler(2);
  FreeEngineHandler(0);
  EXPECT_EQ(KZEngine(0), nullptr);
  EXPECT_EQ(SetKZEngine(&second_, 2), 0) << "the handle is free again";
  EXPECT_EQ(KZEngine(0), &second_);
  EXPECT_EQ(KZDTBEngine(0), nullptr) << "the flag is 1 or nothing";
  EXPECT_EQ(GetNewEngineHandler(), 3) << "id 2 was not freed";
}

TEST_F(EngineRegistry, KeepsIdsWithoutATable) {
  for (const int entries : {-1, 0, 1, 2, 32767}) {
    EXPECT_EQ(kz_data_init(static_cast<std::int16_t>(entries)), 1);
    EXPECT_EQ((Ids{SetKZEngine(&first_, 1), SetKZEngine(&second_, 1)}), (Ids{0, 1}));
    EXPECT_EQ(kz_data_init(2), 1) << "the table stays";
    EXPECT_EQ(KZEngine(1), &second_);
    kz_data_free();
    EXPECT_EQ(KZEngine(1), nullptr);
    FreeEngineHandler(1);
    EXPECT_EQ(GetNewEngineHandler(), 2) << "ids 0 and 1 are taken";
    EXPECT_EQ(KZEngine(1), nullptr) << "the new table is empty";
    reset();
  }
}

TEST_F(EngineRegistry, FailsWhenAllIdsAreTaken) {
  for (int i = 0; i < 256; ++i) EXPECT_EQ(GetNewEngineHandler(), i);
  EXPECT_EQ(GetNewEngineHandler(), -1);
  EXPECT_EQ(SetKZEngine(&first_, 0), -1);
  EXPECT_EQ(GetNewHandler(2), 0) << "another pool";
  EXPECT_EQ(kz_comm_init_kernel(nullptr), 0);
  EXPECT_EQ(kz_comm_init_kernel(&first_), 1);
  kz_comm_free_kernel();
  FreeHandler(1, 1);
  EXPECT_EQ(SetKZEngine(&first_, 0), 1);
  EXPECT_EQ(KZEngine(0), nullptr) << "taken, but not registered";
}

TEST(GenId, IsEightIndependentPools) {
  CGenId ids;
  EXPECT_EQ((Ids{ids.GetId(1), ids.GetId(1), ids.GetId(2)}), (Ids{0, 1, 0}));
  EXPECT_EQ((Ids{ids.GetId(0x81), ids.GetId(0x80)}), (Ids{2, 0})) << "free in both pools";
  ids.DelId(1, 2);
  EXPECT_EQ((Ids{ids.GetId(0x81), ids.GetId(1)}), (Ids{3, 2})) << "taken in one of them";
  ids.DelId(0xFF, 0);
  EXPECT_EQ(ids.GetId(0xFF), 0);
  for (int id = 1; id < 256; ++id) EXPECT_EQ(ids.GetId(4), id);
  EXPECT_EQ((Ids{ids.GetId(4), ids.GetId(6)}), (Ids{-1, -1}));
  ids.DelId(4, 255);
  EXPECT_EQ(ids.GetId(6), 255);
  EXPECT_EQ(CGenId().GetId(0), 0);

  // An id that there is not leaves the memory around the pools alone.
  std::vector<std::uint8_t> memory(32768 + sizeof ids + 32768, 0xFF);
  auto* const inside = new (&memory[32768]) CGenId;
  for (const int id : {-32768, -1, 256, 257, 32767}) {
    inside->DelId(255, static_cast<std::int16_t>(id));
  }
  EXPECT_EQ(std::count(memory.begin(), memory.end(), 0xFF), 2 * 32768);
}

}  // namespace
