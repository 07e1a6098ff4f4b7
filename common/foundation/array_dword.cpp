// ZCDWordArray: the array of 32-bit words.
#include "foundation/array_core.h"

ZCDWordArray::ZCDWordArray() = default;
ZCDWordArray::~ZCDWordArray() { kz::ArrayCore<ZCDWordArray>::release(*this); }

using Array = ZCDWordArray;
using Argument = std::uint32_t;
#include "foundation/array_members.inc"
