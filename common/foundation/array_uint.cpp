// ZCUIntArray: the array of unsigned integers.
#include "foundation/array_core.h"

ZCUIntArray::ZCUIntArray() = default;
ZCUIntArray::~ZCUIntArray() { kz::ArrayCore<ZCUIntArray>::release(*this); }

using Array = ZCUIntArray;
using Argument = unsigned int;
#include "foundation/array_members.inc"
