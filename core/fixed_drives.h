// The drives that can hold the startup screen.
#pragma once

#include <string>
#include <vector>

namespace vistrel::core {

/// The letters of the fixed disks, in capitals, in their order.
std::vector<std::string> FixedDriveLetters();

}  // namespace vistrel::core
