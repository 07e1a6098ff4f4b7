// ZCStringArray: the array of strings.
#include "foundation/array_core.h"

ZCStringArray::ZCStringArray() = default;
ZCStringArray::~ZCStringArray() { kz::ArrayCore<ZCStringArray>::release(*this); }

using Array = ZCStringArray;
using Argument = const char*;
#include "foundation/array_members.inc"

void Array::Move(int to, int from, int count) { Core::move(*this, to, from, count); }
void Array::Change(int a, int b, int count) { Core::change(*this, a, b, count); }
