// ZCByteArray: the array of bytes.
#include "foundation/array_core.h"

ZCByteArray::ZCByteArray() = default;
ZCByteArray::~ZCByteArray() { kz::ArrayCore<ZCByteArray>::release(*this); }

using Array = ZCByteArray;
using Argument = std::uint8_t;
#include "foundation/array_members.inc"
