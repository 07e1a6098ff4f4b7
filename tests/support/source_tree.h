// The files of the source tree that tests read: documentation pages and sample dictionaries.
#ifndef KZ_TESTS_SOURCE_TREE_H
#define KZ_TESTS_SOURCE_TREE_H

#include <filesystem>

namespace kz::test {

// The root of the source tree.
std::filesystem::path source_tree();

}  // namespace kz::test

#endif  // KZ_TESTS_SOURCE_TREE_H
