// ZCObject: the root class of the library's objects.
//
// Object arrays and maps (kz/array.h, kz/map.h) hold pointers to it. They never own what they
// point to; the virtual destructor lets an owner delete an object through such a pointer.
//
//   struct Word : ZCObject {
//     ~Word() override { puts("deleted"); }  // Output: deleted
//   };
//   ZCObArray words;
//   words.Add(new Word);
//   delete words.GetAt(0);
#ifndef KZ_OBJECT_H
#define KZ_OBJECT_H

#include "kz/export.h"

class KZ_API ZCObject {
 public:
  ZCObject() = default;
  ZCObject(const ZCObject&) = default;
  ZCObject& operator=(const ZCObject&) = default;
  virtual ~ZCObject();
};

#endif  // KZ_OBJECT_H
