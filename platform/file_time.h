// When a file was last changed, as MS-DOS and archives keep it: the date's 16 bits above the
// time's, local time, in steps of two seconds.
#pragma once

#include <cstdint>
#include <string>

namespace vistrel::platform {

/// 0 when it cannot be told.
std::uint32_t ModifiedAt(const std::string& path);
/// Nothing happens to a file that cannot be changed, nor by a time that is none.
void SetModifiedAt(const std::string& path, std::uint32_t time);

}  // namespace vistrel::platform
