// Sharing rules between opens of one file, kept as locks on marker bytes.
#ifndef KZ_PLATFORM_SHARING_H
#define KZ_PLATFORM_SHARING_H

#include "platform/file.h"

namespace kz::platform {

// Joins the sharing rules of an open regular file: leaves marks on it, for as long as the handle or
// a duplicate of it is open, and checks them against the marks of all other opens. `truncates`
// counts as writing for the check alone. False, with EBUSY in errno and without marks, when another
// open and this one forbid each other.
bool join_sharing(int handle, const OpenMode& mode, bool truncates);

}  // namespace kz::platform

#endif  // KZ_PLATFORM_SHARING_H
