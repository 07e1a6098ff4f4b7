// ZCWordArray: the array of 16-bit words.
#include "foundation/array_core.h"

ZCWordArray::ZCWordArray() = default;
ZCWordArray::~ZCWordArray() { kz::ArrayCore<ZCWordArray>::release(*this); }

using Array = ZCWordArray;
using Argument = std::uint16_t;
#include "foundation/array_members.inc"
