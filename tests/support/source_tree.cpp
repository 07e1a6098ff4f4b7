// The place of the source tree, which only the build knows.
#include "tests/support/source_tree.h"

namespace kz::test {

std::filesystem::path source_tree() { return KZ_SOURCE_TREE; }

}  // namespace kz::test
