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
#include <vector>

namespace {

// The fields of an array as they lie in memory, behind the virtual table of ZCObArray.
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

// Elements are numbered from 0, the zero element (the empty string).
std::array<ZCObject, 256> objects;

template <class Array>
struct Element {
  static auto argument(int n) {
    using T = std::remove_cvref_t<decltype(*std::declval<Array&>().GetData())>;
    if constexpr (std::is_pointer_v<T>) {
      return n == 0 ? T{} : static_cast<T>(&objects[static_cast<std::size_t>(n)]);
    } else {
      return static_cast<T>(n);
    }
  }
  static bool is(const Array& array, int i, int n) {
    return array.GetAt(i) == argument(n) && array[i] == argument(n);
  }
};

template <>
struct Element<ZCStringArray> {
  static const char* argument(int n) {
    static std::array<std::string, 256> texts;
    std::string& text = texts[static_cast<std::size_t>(n)];
    if (n != 0) text = "text " + std::to_string(n);
    return text.c_str();
  }
  static bool is(const ZCStringArray& array, int i, int n) {
    return array.GetAt(i) == argument(n) && array[i] == argument(n);
  }
};

template <class Array>
void expect_is(const Array& array, const std::vector<int>& elements, int allocated) {
  const Record record = record_of(array);
  const int size = static_cast<int>(elements.size());
  ASSERT_EQ(array.GetSize(), size);
  ASSERT_EQ(array.GetUpperBound(), size - 1);
  ASSERT_EQ(record.size, size);
  ASSERT_EQ(record.allocated, allocated);
  ASSERT_EQ(record.data, array.GetData());
  ASSERT_EQ(record.data == nullptr, allocated == 0);
  for (int i = 0; i < size; ++i) {
    ASSERT_TRUE(Element<Array>::is(array, i, elements[static_cast<std::size_t>(i)])) << i;
  }
}

template <class Array>
class AnyArray : public testing::Test {};
using Arrays = testing::Types<ZCByteArray, ZCWordArray, ZCDWordArray, ZCUIntArray, ZCPtrArray,
                              ZCObArray, ZCStringArray>;
TYPED_TEST_SUITE(AnyArray, Arrays);

TYPED_TEST(AnyArray, OperationsLeaveTheirElementsAndTheRoom) {
  const auto element = [](int n) { return Element<TypeParam>::argument(n); };
  TypeParam array;
  array.SetSize(2);
  array.SetAt(0, element(1));
  array.ElementAt(1) = element(9);
  array[1] = element(2);
  expect_is(array, {1, 2}, 2);
  array.SetSize(5);
  expect_is(array, {1, 2, 0, 0, 0}, 6);
  array.SetSize(1);
  expect_is(array, {1}, 6);
  array.SetSize(3);
  expect_is(array, {1, 0, 0}, 6);
  array.FreeExtra();
  expect_is(array, {1, 0, 0}, 3);
  array.SetSize(4, 10);
  EXPECT_EQ(array.Add(element(4)), 4);
  expect_is(array, {1, 0, 0, 0, 4}, 13);
  array.SetAtGrow(6, element(6));
  array.SetAtGrow(1, element(7));
  expect_is(array, {1, 7, 0, 0, 4, 0, 6}, 13);
  array.RemoveAt(2, 3);
  expect_is(array, {1, 7, 0, 6}, 13);
  array.InsertAt(1, element(5), 2);
  expect_is(array, {1, 5, 5, 7, 0, 6}, 13);
  array.InsertAt(1, element(3), 0);
  array.InsertAt(8, element(8), 2);
  expect_is(array, {1, 5, 5, 7, 0, 6, 0, 0, 8, 8}, 13);
  array.InsertAt(9, element(2), 9);
  expect_is(array, {1, 5, 5, 7, 0, 6, 0, 0, 8, 2, 2, 2, 2, 2, 2, 2, 2, 2, 8}, 23);
  array.RemoveAt(3, 16);

  TypeParam other;
  EXPECT_EQ(other.Append(array), 0);
  expect_is(other, {1, 5, 5}, 3);
  EXPECT_EQ(other.Append(other), 3);
  expect_is(other, {1, 5, 5, 1, 5, 5}, 7);
  other.RemoveAt(1, 4);
  other.InsertAt(1, &other);
  expect_is(other, {1, 1, 5, 5}, 7);
  other.InsertAt(4, &array);
  expect_is(other, {1, 1, 5, 5, 1, 5, 5}, 7);
  other.Copy(array);
  other.Copy(other);
  expect_is(other, {1, 5, 5}, 7);
  other.RemoveAt(0, 3);
  array.InsertAt(1, &other);
  expect_is(array, {1, 5, 5}, 23);
  other.Copy(other);
  expect_is(other, {}, 0);
  array.Copy(other);
  expect_is(array, {}, 0);
  array.Add(element(1));
  array.RemoveAll();
  expect_is(array, {}, 0);
  EXPECT_EQ(record_of(array).grow_by, 10) << "the step stays";
}

TYPED_TEST(AnyArray, GrowsByAnEighthButNeitherByFewNorByMany) {
  const auto allocated_after_adding_one_to = [](int size) {
    TypeParam array;
    array.SetSize(size);
    array.Add(Element<TypeParam>::argument(1));
    return record_of(array).allocated;
  };
  EXPECT_EQ(allocated_after_adding_one_to(0), 1);
  EXPECT_EQ(allocated_after_adding_one_to(1), 5);
  EXPECT_EQ(allocated_after_adding_one_to(39), 43);
  EXPECT_EQ(allocated_after_adding_one_to(40), 45);
  EXPECT_EQ(allocated_after_adding_one_to(100), 112);
  EXPECT_EQ(allocated_after_adding_one_to(10000), 11024);
}

TYPED_TEST(AnyArray, ImpossibleRequestsChangeNothing) {
  const auto element = Element<TypeParam>::argument(3);
  TypeParam array;
  array.Add(element);
  array.Add(element);
  array.SetSize(-1, 7);
  array.SetSize(INT_MIN);
  array.SetAtGrow(-1, element);
  array.SetAtGrow(INT_MAX, element);
  array.InsertAt(-1, element, 2);
  array.InsertAt(1, element, -1);
  array.InsertAt(1, element, INT_MAX);
  array.InsertAt(INT_MAX, element, INT_MAX);
  array.InsertAt(-1, &array);
  array.InsertAt(0, static_cast<TypeParam*>(nullptr));
  array.RemoveAt(-1, 2);
  array.RemoveAt(1, 2);
  array.RemoveAt(2, INT_MAX);
  array.RemoveAt(1, -1);
  expect_is(array, {3, 3}, 5);
  EXPECT_EQ(record_of(array).grow_by, 0);
}

template <class Array>
class BlockArray : public testing::Test {};
using BlockArrays = testing::Types<ZCObArray, ZCStringArray>;
TYPED_TEST_SUITE(BlockArray, BlockArrays);

TYPED_TEST(BlockArray, MoveAndChangeMoveBlocksThatDoNotOverlap) {
  const struct {
    char operation;  // Move or Change
    int a, b, count;
    const char* elements;
  } cases[] = {
      {'M', 0, 3, 2, "45123"},
      {'M', 5, 0, 2, "34512"},
      {'M', 1, 4, 1, "15234"},
      {'M', 4, 1, 2, "14235"},
      {'M', 1, 3, 2, "14523"},
      {'M', 1, 0, 2, "12345"},
      {'M', 2, 0, 2, "12345"},
      {'M', 0, 1, 2, "12345"},
      {'M', 6, 0, 1, "12345"},
      {'M', 0, 4, 2, "12345"},
      {'M', -1, 1, 1, "12345"},
      {'M', 3, -1, 1, "12345"},
      {'M', 0, 1, -1, "12345"},
      {'M', 3, INT_MAX, 7, "12345"},
      {'C', 0, 3, 2, "45312"},
      {'C', 3, 0, 2, "45312"},
      {'C', 0, 2, 2, "34125"},
      {'C', 1, 3, 1, "14325"},
      {'C', 0, 1, 2, "12345"},
      {'C', 0, 4, 2, "12345"},
      {'C', -1, 3, 1, "12345"},
      {'C', 0, 2, INT_MIN, "12345"},
      {'C', 0, INT_MAX, INT_MAX, "12345"},
  };
  for (const auto& c : cases) {
    TypeParam array;
    array.SetSize(5);
    for (int n = 1; n <= 5; ++n) array.SetAt(n - 1, Element<TypeParam>::argument(n));
    (array.*(c.operation == 'M' ? &TypeParam::Move : &TypeParam::Change))(c.a, c.b, c.count);
    std::vector<int> elements;
    for (const char digit : std::string(c.elements)) elements.push_back(digit - '0');
    SCOPED_TRACE(testing::Message() << c.operation << c.a << ' ' << c.b << ' ' << c.count);
    expect_is(array, elements, 5);
  }
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
  EXPECT_EQ(array.GetAt(0), "two");
  EXPECT_EQ(array.GetAt(2), "two");
  EXPECT_EQ(array.GetAt(3), "wo");
  EXPECT_EQ(array.GetAt(24), "two");
  EXPECT_EQ(array.GetAt(99), "");
  EXPECT_EQ(array.GetAt(100), "two");
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
