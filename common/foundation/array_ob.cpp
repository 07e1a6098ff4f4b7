// ZCObArray: the array of objects.
#include "foundation/array_core.h"

ZCObArray::ZCObArray() = default;
ZCObArray::~ZCObArray() { kz::ArrayCore<ZCObArray>::release(*this); }

using Array = ZCObArray;
using Argument = ZCObject*;
#include "foundation/array_members.inc"

void Array::Move(int to, int from, int count) { Core::move(*this, to, from, count); }
void Array::Change(int a, int b, int count) { Core::change(*this, a, b, count); }
