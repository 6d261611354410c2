// Drawing of 24-bit pixels on a device context: the image library's one operation that needs
// Windows.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/handles.h"

namespace vistrel::preview {

/// Rows of blue, green, red, each padded to a multiple of four bytes, as Windows draws them.
std::vector<std::uint8_t> BlueGreenRedRows(const std::uint8_t* rgb, int width, int height);

/// Draws 24-bit pixels of pixelWidth x pixelHeight at (x, y) of a device context, stretched to
/// width x height. `reserved` is always 0.
void ImgDLLDrawRGB(platform::DeviceContext target, const std::uint8_t* rgb, int pixelWidth,
                   int pixelHeight, int x, int y, int width, int height, int reserved);

}  // namespace vistrel::preview
