// The seven arrays against a model: a vector and the documented growth rule.
#include "kz/array.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
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

struct Model {
  std::vector<int> elements;
  int allocated = 0;
  int grow_by = 0;

  int size() const { return static_cast<int>(elements.size()); }

  void set_size(int size) {
    if (size == 0) {
      allocated = 0;
    } else if (allocated == 0) {
      allocated = size;
    } else if (size > allocated) {
      const int step = grow_by != 0 ? grow_by : std::min(std::max(this->size() / 8, 4), 1024);
      allocated = std::max(size, allocated + step);
    }
    elements.resize(static_cast<std::size_t>(size));
  }

  void free_extra() { allocated = size(); }

  void insert(int i, const std::vector<int>& inserted) {
    const std::vector<int> tail(elements.begin() + std::min(i, size()), elements.end());
    const int count = static_cast<int>(inserted.size());
    set_size(i < size() ? size() + count : i + count);
    std::copy(inserted.begin(), inserted.end(), elements.begin() + i);
    std::copy(tail.begin(), tail.end(), elements.begin() + i + count);
  }
};

template <class Array>
void expect_same(const Array& array, const Model& model) {
  const Record record = record_of(array);
  ASSERT_EQ(array.GetSize(), model.size());
  ASSERT_EQ(array.GetUpperBound(), model.size() - 1);
  ASSERT_EQ(record.size, model.size());
  ASSERT_EQ(record.allocated, model.allocated);
  ASSERT_EQ(record.grow_by, model.grow_by);
  ASSERT_EQ(record.data, array.GetData());
  ASSERT_EQ(record.data == nullptr, model.allocated == 0);
  for (int i = 0; i < model.size(); ++i) {
    ASSERT_TRUE(Element<Array>::is(array, i, model.elements[static_cast<std::size_t>(i)])) << i;
  }
}

template <class Array>
class AnyArray : public testing::Test {};
using Arrays = testing::Types<ZCByteArray, ZCWordArray, ZCDWordArray, ZCUIntArray, ZCPtrArray,
                              ZCObArray, ZCStringArray>;
TYPED_TEST_SUITE(AnyArray, Arrays);

// One random operation on an array and on its model.
template <class Array>
void operate(Array& array, Model& model, Array& other, const Model& other_model,
             std::mt19937& random) {
  const auto pick = [&](int limit) {
    return static_cast<int>(random() % static_cast<unsigned>(limit));
  };
  const int value = pick(250);
  const int size = model.size();
  const int i = pick(size + 4) * (pick(9) != 0 ? 1 : 0);
  const int count = pick(5);
  const auto element = Element<Array>::argument(value);
  const std::vector<int> own = size < 60 ? model.elements : std::vector<int>();
  switch (pick(13)) {
    case 0:
      if (count > 3) model.grow_by = value;
      array.SetSize(i, count > 3 ? value : -1);
      return model.set_size(i);
    case 1: array.FreeExtra(); return model.free_extra();
    case 2:
      if (value > 20) return;
      array.RemoveAll();
      return model.set_size(0);
    case 3:
      if (i < size && count > 2) {
        array.SetAt(i, element);
      } else {
        array.SetAtGrow(i, element);
      }
      EXPECT_EQ(&array.ElementAt(i), array.GetData() + i);
      EXPECT_EQ(&array[i], array.GetData() + i);
      if (i >= size) model.set_size(i + 1);
      model.elements[static_cast<std::size_t>(i)] = value;
      return;
    case 4:
    case 5: EXPECT_EQ(array.Add(element), size); return model.insert(size, {value});
    case 6: EXPECT_EQ(array.Append(other), size); return model.insert(size, other_model.elements);
    case 7:
      if (own.empty()) return;
      EXPECT_EQ(array.Append(array), size);
      return model.insert(size, own);
    case 8:
      array.Copy(array);
      model.set_size(size);
      expect_same(array, model);
      array.Copy(other);
      model.set_size(other_model.size());
      model.elements = other_model.elements;
      return;
    case 9:
      array.InsertAt(i, element, count);
      if (count == 0 && i < size) return;
      return model.insert(i, std::vector<int>(static_cast<std::size_t>(count), value));
    case 10:
      array.InsertAt(i, &other);
      if (!other_model.elements.empty()) model.insert(i, other_model.elements);
      return;
    case 11:
      if (own.empty()) return;
      array.InsertAt(i, &array);
      return model.insert(i, own);
    default:
      array.RemoveAt(i, count);
      if (i + count > size) return;
      model.elements.erase(model.elements.begin() + i, model.elements.begin() + i + count);
  }
}

TYPED_TEST(AnyArray, BehavesAsAVectorWithTheGrowthRule) {
  std::mt19937 random(1);
  for (int round = 0; round < 200; ++round) {
    TypeParam array, other;
    Model model, other_model;
    for (int n = round % 8; n > 0; --n) {
      other.Add(Element<TypeParam>::argument(n));
      other_model.insert(other_model.size(), {n});
    }
    for (int step = 0; step < 60 && !this->HasFatalFailure(); ++step) {
      operate(array, model, other, other_model, random);
      expect_same(array, model);
    }
    expect_same(other, other_model);
  }
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
  const Model model{{3, 3}, 5, 0};
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
  expect_same(array, model);
}

// Moving one element at a time: copies are inserted before the destination, the originals removed.
void slow_move(std::vector<int>& elements, int to, int from, int count) {
  const int size = static_cast<int>(elements.size());
  if (to < 0 || from < 0 || to > size || from + count > size) return;
  if (from <= to && from + count < to) {
    for (int k = 0; k < count; ++k) {
      elements.insert(elements.begin() + to + k, int{elements[static_cast<std::size_t>(from + k)]});
    }
    elements.erase(elements.begin() + from, elements.begin() + from + count);
  } else if (from > to && from >= to + count) {
    for (int k = 0; k < count; ++k) {
      const int element = elements[static_cast<std::size_t>(from + k)];
      elements.erase(elements.begin() + from + k);
      elements.insert(elements.begin() + to + k, element);
    }
  }
}

void slow_change(std::vector<int>& elements, int a, int b, int count) {
  const int low = std::min(a, b), high = std::max(a, b);
  if (low < 0 || high < low + count || high + count > static_cast<int>(elements.size())) return;
  for (int k = 0; k < count; ++k) {
    std::swap(elements[static_cast<std::size_t>(a + k)], elements[static_cast<std::size_t>(b + k)]);
  }
}

template <class Array>
class BlockArray : public testing::Test {};
using BlockArrays = testing::Types<ZCObArray, ZCStringArray>;
TYPED_TEST_SUITE(BlockArray, BlockArrays);

TYPED_TEST(BlockArray, MoveAndChangeMoveEveryBlockToItsPlace) {
  for (int size = 0; size <= 7; ++size) {
    for (int a = -1; a <= size + 1; ++a) {
      for (int b = -1; b <= size + 1; ++b) {
        for (int count = 0; count <= 4; ++count) {
          TypeParam moved, changed;
          Model model{{}, size, 0};
          for (int n = 1; n <= size; ++n) model.elements.push_back(n);
          for (TypeParam* array : {&moved, &changed}) {
            array->SetSize(size);
            for (int n = 1; n <= size; ++n) array->SetAt(n - 1, Element<TypeParam>::argument(n));
          }
          SCOPED_TRACE(testing::Message() << size << ": " << a << ", " << b << ", " << count);
          Model changed_model = model;
          moved.Move(a, b, count);
          slow_move(model.elements, a, b, count);
          expect_same(moved, model);
          changed.Change(a, b, count);
          slow_change(changed_model.elements, a, b, count);
          expect_same(changed, changed_model);
          if (this->HasFatalFailure()) return;
        }
      }
    }
  }
  TypeParam array;
  array.SetSize(3);
  array.Move(0, 1, -1);
  array.Move(3, INT_MAX, INT_MAX);
  array.Change(0, INT_MAX, INT_MAX);
  array.Change(0, 2, INT_MIN);
  expect_same(array, Model{{0, 0, 0}, 3, 0});
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
