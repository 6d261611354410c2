// The system's own picture loader.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vistrel::platform {

/// A picture as the system loads it: 24-bit pixels (red, green, blue), rows from the top, no
/// padding.
struct StandardPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;
};

/// Loads a bitmap, GIF, JPEG, icon or metafile with OleLoadPicture. False when the system has no
/// loader or refuses the file, and when there is not enough memory.
bool LoadStandardPicture(const std::string& path, StandardPicture& picture);

}  // namespace vistrel::platform
