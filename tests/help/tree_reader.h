// Reads a sorted tree of a help file from its root down, as a viewer would search it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/help/byte_reader.h"

namespace vistrel::help_test {

/// How the entries of one tree are read and compared.
struct TreeRules {
    unsigned flags;
    std::size_t pageSize;
    std::string structure;
    std::function<std::string(ByteReader&)> readKey;    ///< the key's bytes
    std::function<std::string(ByteReader&)> readValue;  ///< the bytes behind the key in a leaf
    std::function<bool(const std::string&, const std::string&)> isBefore;  ///< order of keys
};

struct TreeLeaf {
    unsigned page;
    std::vector<std::pair<std::string, std::string>> entries;  ///< key and value
};

struct ReadTree {
    unsigned levels = 0;
    std::vector<TreeLeaf> leaves;  ///< in key order
};

/// Throws BadHelpFile when a page, a count, a link, an index key or the order is wrong.
ReadTree ReadTreeFile(std::string_view file, const TreeRules& rules);

}  // namespace vistrel::help_test
