// The seven arrays: elements, room and growth.
#include "kz/array.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <utility>

namespace {

// The fields of an array as they lie in memory, after the virtual table of ZCObArray.
struct Record {
  void* data;
  std::int32_t size, allocated, grow_by;
};

template <class Array>
Record record_of(const Array& array) {
  Record record;
  constexpr std::size_t offset = sizeof array > sizeof(ZCByteArray) ? sizeof(void*) : 0;
  std::memcpy(&record, reinterpret_cast<const char*>(&array) + offset,
              offsetof(Record, grow_by) + 4);
  return record;
}

// Elements are numbered from 0, the zero element (the empty string), to 9.
template <class Array>
auto element(int n) {
  static std::array<ZCObject, 10> objects;
  static const char texts[][2] = {"", "1", "2", "3", "4", "5", "6", "7", "8", "9"};
  using T = std::remove_cvref_t<decltype(*std::declval<Array&>().GetData())>;
  if constexpr (std::is_same_v<T, ZCString>) {
    return static_cast<const char*>(texts[n]);
  } else if constexpr (std::is_pointer_v<T>) {
    return n == 0 ? T{} : static_cast<T>(&objects[static_cast<std::size_t>(n)]);
  } else {
    return static_cast<T>(n);
  }
}

// The numbers of the elements, and the room.
template <class Array>
std::string state(const Array& array) {
  const Record record = record_of(array);
  EXPECT_EQ(array.GetSize(), record.size);
  EXPECT_EQ(array.GetUpperBound(), record.size - 1);
  EXPECT_EQ(array.GetData(), record.data);
  EXPECT_EQ(record.data == nullptr, record.allocated == 0);
  std::string result;
  for (int i = 0; i < record.size; ++i) {
    int n = 0;
    while (n < 10 && !(array.GetAt(i) == element<Array>(n) && array[i] == element<Array>(n))) ++n;
    result += n < 10 ? static_cast<char>('0' + n) : '?';
  }
  return result + ' ' + std::to_string(record.allocated);
}

template <class Array>
class AnyArray : public testing::Test {};
using Arrays = testing::Types<ZCByteArray, ZCWordArray, ZCDWordArray, ZCUIntArray, ZCPtrArray,
                              ZCObArray, ZCStringArray>;
TYPED_TEST_SUITE(AnyArray, Arrays);

TYPED_TEST(AnyArray, OperationsLeaveTheirElementsAndTheRoom) {
  const auto e = element<TypeParam>;
  TypeParam a, b;
  a.SetSize(2);
  a.SetAt(0, e(1));
  a.ElementAt(1) = e(9);
  EXPECT_EQ(state(a), "19 2");
  EXPECT_EQ((a[1] = e(2), state(a)), "12 2");
  EXPECT_EQ((a.SetSize(5), state(a)), "12000 6");
  EXPECT_EQ((a.SetSize(1), state(a)), "1 6");
  EXPECT_EQ((a.SetSize(3), state(a)), "100 6");
  EXPECT_EQ((a.FreeExtra(), state(a)), "100 3");
  a.SetSize(4, 10);
  EXPECT_EQ(a.Add(e(4)), 4);
  EXPECT_EQ(state(a), "10004 13");
  EXPECT_EQ((a.SetAtGrow(6, e(6)), state(a)), "1000406 13");
  EXPECT_EQ((a.SetAtGrow(1, e(7)), state(a)), "1700406 13");
  EXPECT_EQ((a.RemoveAt(2, 3), state(a)), "1706 13");
  EXPECT_EQ((a.InsertAt(1, e(5), 2), state(a)), "155706 13");
  EXPECT_EQ((a.InsertAt(1, e(3), 0), state(a)), "155706 13");
  EXPECT_EQ((a.InsertAt(8, e(8), 2), state(a)), "1557060088 13");
  EXPECT_EQ((a.InsertAt(9, e(2), 9), state(a)), "1557060082222222228 23");
  a.RemoveAt(3, 16);
  EXPECT_EQ(b.Append(a), 0);
  EXPECT_EQ(state(b), "155 3");
  EXPECT_EQ(b.Append(b), 3);
  EXPECT_EQ(state(b), "155155 7");
  EXPECT_EQ((b.RemoveAt(1, 4), b.InsertAt(1, &b), state(b)), "1155 7");
  EXPECT_EQ((b.InsertAt(4, &a), state(b)), "1155155 7");
  EXPECT_EQ((b.Copy(a), b.Copy(b), state(b)), "155 7");
  EXPECT_EQ((b.RemoveAt(0, 3), a.InsertAt(1, &b), state(a)), "155 23");
  EXPECT_EQ((b.Copy(b), state(b)), " 0");
  EXPECT_EQ((a.Copy(b), state(a)), " 0");
  EXPECT_EQ((a.Add(e(1)), a.RemoveAll(), state(a)), " 0");
  EXPECT_EQ(record_of(a).grow_by, 10) << "the step stays";
}

TYPED_TEST(AnyArray, GrowsByAnEighthButNeitherByFewNorByMany) {
  for (const auto& [size, room] :
       {std::pair{0, 1}, {1, 5}, {39, 43}, {40, 45}, {100, 112}, {10000, 11024}}) {
    TypeParam array;
    array.SetSize(size);
    array.Add(element<TypeParam>(1));
    EXPECT_EQ(record_of(array).allocated, room);
  }
}

TYPED_TEST(AnyArray, ImpossibleRequestsChangeNothing) {
  const auto e = element<TypeParam>(3);
  TypeParam a;
  a.Add(e);
  a.Add(e);
  a.SetSize(-1, 7);
  a.SetSize(INT_MIN);
  for (const int index : {-1, INT_MAX}) a.SetAtGrow(index, e);
  for (const auto& [index, count] : {std::pair{-1, 2}, {1, -1}, {1, INT_MAX}, {INT_MAX, INT_MAX}})
    a.InsertAt(index, e, count);
  a.InsertAt(-1, &a);
  a.InsertAt(0, static_cast<TypeParam*>(nullptr));
  for (const auto& [index, count] : {std::pair{-1, 2}, {1, 2}, {2, INT_MAX}, {1, -1}})
    a.RemoveAt(index, count);
  EXPECT_EQ(state(a), "33 5");
  EXPECT_EQ(record_of(a).grow_by, 0);
}

template <class Array>
class BlockArray : public testing::Test {};
using BlockArrays = testing::Types<ZCObArray, ZCStringArray>;
TYPED_TEST_SUITE(BlockArray, BlockArrays);

TYPED_TEST(BlockArray, MoveAndChangeMoveBlocksThatDoNotOverlap) {
  struct Case {
    int a, b, count;
    const char* elements;
  };
  const auto expect = [](auto operation, const Case& c) {
    TypeParam array;
    for (int n = 1; n <= 5; ++n) array.SetAtGrow(n - 1, element<TypeParam>(n));
    array.FreeExtra();
    (array.*operation)(c.a, c.b, c.count);
    EXPECT_EQ(state(array), c.elements + std::string(" 5")) << c.a << ' ' << c.b << ' ' << c.count;
  };
  const char* const same = "12345";
  const Case moves[] = {{0, 3, 2, "45123"}, {5, 0, 2, "34512"},   {1, 4, 1, "15234"},
                        {4, 1, 2, "14235"}, {1, 3, 2, "14523"},   {1, 0, 2, same},
                        {2, 0, 2, same},    {0, 1, 2, same},      {6, 0, 1, same},
                        {0, 4, 2, same},    {-1, 1, 1, same},     {3, -1, 1, same},
                        {0, 1, -1, same},   {3, INT_MAX, 7, same}};
  for (const Case& c : moves) expect(&TypeParam::Move, c);
  const Case changes[] = {{0, 3, 2, "45312"}, {3, 0, 2, "45312"},    {0, 2, 2, "34125"},
                          {1, 3, 1, "14325"}, {0, 1, 2, same},       {0, 4, 2, same},
                          {-1, 3, 1, same},   {0, 2, INT_MIN, same}, {0, INT_MAX, INT_MAX, same}};
  for (const Case& c : changes) expect(&TypeParam::Change, c);
}

TEST(StringArray, TakesTextThatLiesInItself) {
  ZCStringArray array;
  array.Add("one");
  array.Add("two");
  array.SetAt(0, array.ElementAt(0));
  array.SetAt(0, static_cast<const char*>(array.ElementAt(1)) + 1);
  for (int i = 0; i < 20; ++i) array.Add(array.ElementAt(1));
  array.InsertAt(0, array.ElementAt(1), 3);
  array.SetAtGrow(100, array.ElementAt(4));
  for (const auto& [index, text] :
       {std::pair{0, "two"}, {2, "two"}, {3, "wo"}, {24, "two"}, {99, ""}, {100, "two"}})
    EXPECT_EQ(array.GetAt(index), text);
}

TEST(StringArray, CopiesBetweenArraysAndMovesKeepTheLanguage) {
  ZCStringArray array, other;
  array.Add("Haus");
  array.ElementAt(0).SetLanguage(1031);
  other.Copy(array);
  other.Append(array);
  other.InsertAt(0, &array);
  other.Add("house");
  other.Move(4, 0, 1);
  for (const int i : {0, 1, 3}) EXPECT_EQ(other.GetAt(i).GetLanguage(), 1031) << i;
  EXPECT_EQ(other.GetAt(2), "house");
}

}  // namespace
