#include "kz/object.h"

ZCObject::~ZCObject() = default;
