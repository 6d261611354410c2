// ZIP files for tests.
#pragma once

#include <string>
#include <vector>

namespace vistrel::test {

struct Packed {
    std::string name;  ///< UTF-8, "/" between folders
    std::string contents;
};

/// The bytes of an archive of these files, which were changed on 17 May 2011 at 13:37.
std::string ZipOf(const std::vector<Packed>& files);

inline constexpr unsigned long kPackedAt =
    (31u << 25 | 5u << 21 | 17u << 16) | (13u << 11 | 37u << 5);

}  // namespace vistrel::test
