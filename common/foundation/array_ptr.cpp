// ZCPtrArray: the array of untyped pointers.
#include "foundation/array_core.h"

ZCPtrArray::ZCPtrArray() = default;
ZCPtrArray::~ZCPtrArray() { kz::ArrayCore<ZCPtrArray>::release(*this); }

using Array = ZCPtrArray;
using Argument = void*;
#include "foundation/array_members.inc"
