// The seven dynamic arrays of the library.
//
// They differ in their element only: bytes, 16-bit and 32-bit words, unsigned integers, untyped
// pointers, objects (kz/object.h) and strings (kz/string.h). ZCObArray and ZCStringArray can also
// move and swap blocks of elements. Pointers are not owned: removing one never deletes what it
// points to; strings are owned. An array serves one thread at a time. A short example:
//
//   ZCStringArray words;
//   words.Add("table");
//   words.InsertAt(0, "chair", 1);  // chair, table
//   words.Move(2, 0, 1);
//   for (int i = 0; i < words.GetSize(); i++) puts(words.GetAt(i));
//   // Output: table
//   // Output: chair
//
// Growth: the first allocation is exact. Later ones add the array's grow-by elements or, when that
// is 0, an eighth of the size (at least 4, at most 1024), so that repeated Add stays cheap.
//
// Requests that cannot be met never touch memory outside the array: negative sizes, indexes and
// counts, and sizes over 2,147,483,647 elements, change nothing; neither does running out of
// memory. Only the plain element accessors (GetAt, SetAt, ElementAt, operator[]) trust their index.
#ifndef KZ_ARRAY_H
#define KZ_ARRAY_H

#include <cstdint>

#include "kz/export.h"
#include "kz/object.h"
#include "kz/string.h"

namespace kz {
template <class Array>
struct ArrayCore;  // the one implementation behind the seven classes
}  // namespace kz

// Array of bytes. The operations of the other arrays are those of this one.
class KZ_API ZCByteArray {
 public:
  // An empty array; nothing is allocated, grow-by is 0.
  ZCByteArray();
  ZCByteArray(const ZCByteArray&) = delete;
  ZCByteArray& operator=(const ZCByteArray&) = delete;
  // Frees the elements' block.
  ~ZCByteArray();

  // Number of elements in use.
  int GetSize() const;
  // Index of the last element, -1 for an empty array.
  int GetUpperBound() const;
  // Makes the array newSize elements long. New elements are zero (empty strings); a block that is
  // large enough is kept, size 0 frees it. A growBy other than -1 becomes the growth step, 0
  // stands for the step computed from the size. A negative newSize changes nothing.
  void SetSize(int newSize, int growBy = -1);
  // Gives back the memory beyond the elements in use.
  void FreeExtra();
  // Removes all elements and frees their block; the growth step is kept.
  void RemoveAll();

  // Element i; 0 <= i < GetSize() is the caller's care here and in the next five.
  std::uint8_t GetAt(int i) const;
  // Stores element i.
  void SetAt(int i, std::uint8_t element);
  // Reference to element i, valid until the array grows, shrinks or goes.
  std::uint8_t& ElementAt(int i);
  // Element i.
  std::uint8_t operator[](int i) const;
  // Reference to element i, as ElementAt.
  std::uint8_t& operator[](int i);
  // The first element, null when nothing is allocated; valid until the array grows or goes.
  const std::uint8_t* GetData() const;
  std::uint8_t* GetData();

  // Stores element i; an array shorter than that is first made i + 1 elements long.
  void SetAtGrow(int i, std::uint8_t element);
  // Stores the element after the last one; its index, -1 when the array cannot grow.
  int Add(std::uint8_t element);
  // Copies other's elements after the last one; the index of the first of them, -1 when the array
  // cannot grow. An array appended to itself repeats its former elements once.
  int Append(const ZCByteArray& other);
  // Makes this array's elements the same as other's.
  void Copy(const ZCByteArray& other);
  // Opens count slots at i and stores element in each; after the end the array grows to i + count
  // elements, the skipped ones zero (empty strings).
  void InsertAt(int i, std::uint8_t element, int count);
  // Inserts other's elements at i. Null or empty: no effect. An array inserted into itself inserts
  // its former elements.
  void InsertAt(int i, ZCByteArray* other);
  // Removes count elements from i; those after move down, the block keeps its room. No effect
  // unless the elements i to i + count - 1 exist.
  void RemoveAt(int i, int count = 1);

 private:
  friend struct kz::ArrayCore<ZCByteArray>;
  std::uint8_t* data_ = nullptr;
  std::int32_t size_ = 0;
  std::int32_t allocated_ = 0;
  std::int32_t growBy_ = 0;
};

// Array of 16-bit words; operations as in ZCByteArray.
class KZ_API ZCWordArray {
 public:
  ZCWordArray();
  ZCWordArray(const ZCWordArray&) = delete;
  ZCWordArray& operator=(const ZCWordArray&) = delete;
  ~ZCWordArray();

  int GetSize() const;
  int GetUpperBound() const;
  void SetSize(int newSize, int growBy = -1);
  void FreeExtra();
  void RemoveAll();

  std::uint16_t GetAt(int i) const;
  void SetAt(int i, std::uint16_t element);
  std::uint16_t& ElementAt(int i);
  std::uint16_t operator[](int i) const;
  std::uint16_t& operator[](int i);
  const std::uint16_t* GetData() const;
  std::uint16_t* GetData();

  void SetAtGrow(int i, std::uint16_t element);
  int Add(std::uint16_t element);
  int Append(const ZCWordArray& other);
  void Copy(const ZCWordArray& other);
  void InsertAt(int i, std::uint16_t element, int count);
  void InsertAt(int i, ZCWordArray* other);
  void RemoveAt(int i, int count = 1);

 private:
  friend struct kz::ArrayCore<ZCWordArray>;
  std::uint16_t* data_ = nullptr;
  std::int32_t size_ = 0;
  std::int32_t allocated_ = 0;
  std::int32_t growBy_ = 0;
};

// Array of 32-bit words; operations as in ZCByteArray.
class KZ_API ZCDWordArray {
 public:
  ZCDWordArray();
  ZCDWordArray(const ZCDWordArray&) = delete;
  ZCDWordArray& operator=(const ZCDWordArray&) = delete;
  ~ZCDWordArray();

  int GetSize() const;
  int GetUpperBound() const;
  void SetSize(int newSize, int growBy = -1);
  void FreeExtra();
  void RemoveAll();

  std::uint32_t GetAt(int i) const;
  void SetAt(int i, std::uint32_t element);
  std::uint32_t& ElementAt(int i);
  std::uint32_t operator[](int i) const;
  std::uint32_t& operator[](int i);
  const std::uint32_t* GetData() const;
  std::uint32_t* GetData();

  void SetAtGrow(int i, std::uint32_t element);
  int Add(std::uint32_t element);
  int Append(const ZCDWordArray& other);
  void Copy(const ZCDWordArray& other);
  void InsertAt(int i, std::uint32_t element, int count);
  void InsertAt(int i, ZCDWordArray* other);
  void RemoveAt(int i, int count = 1);

 private:
  friend struct kz::ArrayCore<ZCDWordArray>;
  std::uint32_t* data_ = nullptr;
  std::int32_t size_ = 0;
  std::int32_t allocated_ = 0;
  std::int32_t growBy_ = 0;
};

// Array of unsigned integers; operations as in ZCByteArray.
class KZ_API ZCUIntArray {
 public:
  ZCUIntArray();
  ZCUIntArray(const ZCUIntArray&) = delete;
  ZCUIntArray& operator=(const ZCUIntArray&) = delete;
  ~ZCUIntArray();

  int GetSize() const;
  int GetUpperBound() const;
  void SetSize(int newSize, int growBy = -1);
  void FreeExtra();
  void RemoveAll();

  unsigned int GetAt(int i) const;
  void SetAt(int i, unsigned int element);
  unsigned int& ElementAt(int i);
  unsigned int operator[](int i) const;
  unsigned int& operator[](int i);
  const unsigned int* GetData() const;
  unsigned int* GetData();

  void SetAtGrow(int i, unsigned int element);
  int Add(unsigned int element);
  int Append(const ZCUIntArray& other);
  void Copy(const ZCUIntArray& other);
  void InsertAt(int i, unsigned int element, int count);
  void InsertAt(int i, ZCUIntArray* other);
  void RemoveAt(int i, int count = 1);

 private:
  friend struct kz::ArrayCore<ZCUIntArray>;
  unsigned int* data_ = nullptr;
  std::int32_t size_ = 0;
  std::int32_t allocated_ = 0;
  std::int32_t growBy_ = 0;
};

// Array of untyped pointers, not owned; operations as in ZCByteArray.
class KZ_API ZCPtrArray {
 public:
  ZCPtrArray();
  ZCPtrArray(const ZCPtrArray&) = delete;
  ZCPtrArray& operator=(const ZCPtrArray&) = delete;
  ~ZCPtrArray();

  int GetSize() const;
  int GetUpperBound() const;
  void SetSize(int newSize, int growBy = -1);
  void FreeExtra();
  void RemoveAll();

  void* GetAt(int i) const;
  void SetAt(int i, void* element);
  void*& ElementAt(int i);
  void* operator[](int i) const;
  void*& operator[](int i);
  void* const* GetData() const;
  void** GetData();

  void SetAtGrow(int i, void* element);
  int Add(void* element);
  int Append(const ZCPtrArray& other);
  void Copy(const ZCPtrArray& other);
  void InsertAt(int i, void* element, int count);
  void InsertAt(int i, ZCPtrArray* other);
  void RemoveAt(int i, int count = 1);

 private:
  friend struct kz::ArrayCore<ZCPtrArray>;
  void** data_ = nullptr;
  std::int32_t size_ = 0;
  std::int32_t allocated_ = 0;
  std::int32_t growBy_ = 0;
};

// Array of objects, not owned; operations as in ZCByteArray, and blocks can move.
class KZ_API ZCObArray : public ZCObject {
 public:
  ZCObArray();
  ZCObArray(const ZCObArray&) = delete;
  ZCObArray& operator=(const ZCObArray&) = delete;
  ~ZCObArray() override;

  int GetSize() const;
  int GetUpperBound() const;
  void SetSize(int newSize, int growBy = -1);
  void FreeExtra();
  void RemoveAll();

  ZCObject* GetAt(int i) const;
  void SetAt(int i, ZCObject* element);
  ZCObject*& ElementAt(int i);
  ZCObject* operator[](int i) const;
  ZCObject*& operator[](int i);
  ZCObject* const* GetData() const;
  ZCObject** GetData();

  void SetAtGrow(int i, ZCObject* element);
  int Add(ZCObject* element);
  int Append(const ZCObArray& other);
  void Copy(const ZCObArray& other);
  void InsertAt(int i, ZCObject* element, int count);
  void InsertAt(int i, ZCObArray* other);
  void RemoveAt(int i, int count = 1);

  // Moves the count elements from index from so that they end up just before the element that
  // stood at index to (at the end when to is the size). No effect when a place lies outside the
  // array, or when the destination lies inside the block or less than count elements before it.
  void Move(int to, int from, int count);
  // Swaps the two blocks of count elements that start at a and b. No effect when they overlap or
  // one lies outside the array.
  void Change(int a, int b, int count);

 private:
  friend struct kz::ArrayCore<ZCObArray>;
  ZCObject** data_ = nullptr;
  std::int32_t size_ = 0;
  std::int32_t allocated_ = 0;
  std::int32_t growBy_ = 0;
};

// Array of strings; operations as in ZCByteArray, and blocks can move.
//
// The array owns its strings. They are given as zero-terminated text (null counts as empty, and
// the text may lie in a string of this array) and returned as copies. Append, Copy and the
// insertion of an array share the strings' buffers and so keep their language.
class KZ_API ZCStringArray {
 public:
  ZCStringArray();
  ZCStringArray(const ZCStringArray&) = delete;
  ZCStringArray& operator=(const ZCStringArray&) = delete;
  ~ZCStringArray();

  int GetSize() const;
  int GetUpperBound() const;
  void SetSize(int newSize, int growBy = -1);
  void FreeExtra();
  void RemoveAll();

  ZCString GetAt(int i) const;
  void SetAt(int i, const char* text);
  ZCString& ElementAt(int i);
  ZCString operator[](int i) const;
  ZCString& operator[](int i);
  const ZCString* GetData() const;
  ZCString* GetData();

  void SetAtGrow(int i, const char* text);
  int Add(const char* text);
  int Append(const ZCStringArray& other);
  void Copy(const ZCStringArray& other);
  void InsertAt(int i, const char* text, int count);
  void InsertAt(int i, ZCStringArray* other);
  void RemoveAt(int i, int count = 1);

  // Moves a block of strings, as ZCObArray::Move.
  void Move(int to, int from, int count);
  // Swaps two blocks of strings, as ZCObArray::Change.
  void Change(int a, int b, int count);

 private:
  friend struct kz::ArrayCore<ZCStringArray>;
  ZCString* data_ = nullptr;
  std::int32_t size_ = 0;
  std::int32_t allocated_ = 0;
  std::int32_t growBy_ = 0;
};

#endif  // KZ_ARRAY_H
