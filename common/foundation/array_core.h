// The one implementation behind the seven array classes.
//
// Elements are moved as bytes, by realloc and memmove. That holds for ZCString too: it is one
// pointer to a buffer that does not point back.
#ifndef KZ_FOUNDATION_ARRAY_CORE_H
#define KZ_FOUNDATION_ARRAY_CORE_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <type_traits>

#include "kz/array.h"

namespace kz {

// Sizes and indexes are 64 bits wide in here, so that sums of them cannot overflow before they are
// checked.
template <class Array>
struct ArrayCore {
  using Element = std::remove_pointer_t<decltype(Array::data_)>;

  // Pointers are elements, too.
  static constexpr std::size_t kElementSize =
      sizeof(Element);  // NOLINT(bugprone-sizeof-expression)

  static_assert(std::is_trivially_copyable_v<Element> || kElementSize == sizeof(void*));

  static void release(Array& array) {
    std::destroy_n(array.data_, array.size_);
    std::free(bytes(array.data_));
    array.data_ = nullptr;
    array.size_ = array.allocated_ = 0;
  }

  static bool set_size(Array& array, std::int64_t size, int grow_by = -1) {
    if (size < 0 || size > kMaxSize) return false;
    if (grow_by != -1) array.growBy_ = grow_by;
    if (size == 0) {
      release(array);
      return true;
    }
    if (!reserve(array, size)) return false;
    if (size > array.size_) {
      std::uninitialized_value_construct_n(array.data_ + array.size_, size - array.size_);
    } else {
      std::destroy_n(array.data_ + size, array.size_ - size);
    }
    array.size_ = static_cast<std::int32_t>(size);
    return true;
  }

  static void free_extra(Array& array) {
    if (array.size_ == 0) {
      release(array);
    } else if (array.allocated_ != array.size_) {
      reallocate(array, array.size_);
    }
  }

  template <class Argument>
  static bool set_at_grow(Array& array, std::int64_t i, Argument element) {
    if (i < 0 || (i >= array.size_ && !set_size(array, i + 1))) return false;
    array.data_[i] = element;
    return true;
  }

  static int append(Array& array, const Array& other) {
    const std::int32_t start = array.size_;
    const std::int32_t count = other.size_;
    if (!set_size(array, std::int64_t{start} + count)) return -1;
    std::copy_n(other.data_, count, array.data_ + start);
    return start;
  }

  static void copy(Array& array, const Array& other) {
    if (!set_size(array, other.size_) || &array == &other) return;
    std::copy_n(other.data_, other.size_, array.data_);
  }

  template <class Argument>
  static void insert(Array& array, std::int64_t i, Argument element, std::int64_t count) {
    if (!open_slots(array, i, count)) return;
    for (std::int64_t k = 0; k < count; ++k) array.data_[i + k] = element;
  }

  static void insert(Array& array, std::int64_t i, const Array* other) {
    if (other == nullptr || other->size_ == 0) return;
    const std::int32_t count = other->size_;
    if (!open_slots(array, i, count)) return;
    for (std::int64_t k = 0; k < count; ++k) {
      // Opening the slots has moved the upper part of an array that is inserted into itself.
      const std::int64_t source = other == &array && k >= i ? k + count : k;
      array.data_[i + k] = other->data_[source];
    }
  }

  static void remove(Array& array, std::int64_t i, std::int64_t count) {
    if (i < 0 || count <= 0 || i + count > array.size_) return;
    std::destroy_n(array.data_ + i, count);
    move_elements(array, i, i + count, array.size_ - i - count);
    array.size_ -= static_cast<std::int32_t>(count);
  }

  static void move(Array& array, std::int64_t to, std::int64_t from, std::int64_t count) {
    if (to < 0 || from < 0 || count <= 0 || to > array.size_ || from + count > array.size_) return;
    if (from <= to) {
      if (from + count < to) rotate(array, from, from + count, to);
    } else if (from >= to + count) {
      rotate(array, to, from, from + count);
    }
  }

  // Two moves: the first brings the upper block down, the second the lower one up after what stood
  // between them. Neighbours are swapped by the first alone.
  static void change(Array& array, std::int64_t a, std::int64_t b, std::int64_t count) {
    const auto [low, high] = std::minmax(a, b);
    if (low < 0) return;
    move(array, low, high, count);
    move(array, high + count, low + count, count);
  }

 private:
  static constexpr std::int64_t kMaxSize = std::numeric_limits<std::int32_t>::max();

  static std::byte* bytes(Element* element) { return reinterpret_cast<std::byte*>(element); }

  static bool reallocate(Array& array, std::int64_t count) {
    const std::uint64_t room = static_cast<std::uint64_t>(count) * kElementSize;
    if (room > static_cast<std::uint64_t>(std::numeric_limits<std::ptrdiff_t>::max())) return false;
    void* block = std::realloc(bytes(array.data_), static_cast<std::size_t>(room));
    if (block == nullptr) return false;
    array.data_ = static_cast<Element*>(block);
    array.allocated_ = static_cast<std::int32_t>(count);
    return true;
  }

  // Makes room for size elements; what lies beyond the elements in use stays uninitialised.
  static bool reserve(Array& array, std::int64_t size) {
    if (size <= array.allocated_) return true;
    if (size > kMaxSize) return false;
    std::int64_t room = size;
    if (array.data_ != nullptr) {
      const std::int64_t step =
          array.growBy_ != 0 ? array.growBy_ : std::clamp(array.size_ / 8, 4, 1024);
      room = std::clamp(array.allocated_ + step, size, kMaxSize);
    }
    return reallocate(array, room);
  }

  static void move_elements(Array& array, std::int64_t to, std::int64_t from, std::int64_t count) {
    std::memmove(bytes(array.data_ + to), bytes(array.data_ + from),
                 static_cast<std::size_t>(count) * kElementSize);
  }

  static bool open_slots(Array& array, std::int64_t i, std::int64_t count) {
    if (i < 0 || count < 0) return false;
    if (i >= array.size_) return set_size(array, i + count);
    if (!reserve(array, array.size_ + count)) return false;
    move_elements(array, i + count, i, array.size_ - i);
    std::uninitialized_value_construct_n(array.data_ + i, count);
    array.size_ += static_cast<std::int32_t>(count);
    return true;
  }

  static void rotate(Array& array, std::int64_t first, std::int64_t middle, std::int64_t last) {
    std::rotate(bytes(array.data_ + first), bytes(array.data_ + middle), bytes(array.data_ + last));
  }
};

}  // namespace kz

#endif  // KZ_FOUNDATION_ARRAY_CORE_H
