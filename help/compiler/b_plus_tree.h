// The sorted trees in which the viewer looks things up.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vistrel::help {

/// What is fixed for one tree of the format.
struct TreeForm {
    unsigned flags;
    std::size_t pageSize;
    std::string_view structure;  ///< the format's own description of a record
};

/// A record of a tree. `key` is also what index pages repeat.
struct TreeEntry {
    std::string key;
    std::string value;
};

struct Tree {
    std::string bytes;                            ///< header and pages
    std::vector<std::uint32_t> firstEntryOfLeaf;  ///< by page number: leaves come first
};

/// Builds the tree of entries that are sorted already, each page as full as possible. An empty tree
/// is one empty leaf.
Tree BuildTree(const TreeForm& form, const std::vector<TreeEntry>& entries);

}  // namespace vistrel::help
