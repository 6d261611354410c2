// A screen file as the operating system takes it: palette numbers, colours, and where the colours
// begin to move.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "pictures/rgb_picture.h"

namespace vistrel::screen {

struct IndexedScreen {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> indices;  ///< width * height bytes, rows from the top
    std::array<std::array<std::uint8_t, 3>, 256> palette{};  ///< red, green, blue
    /// While the startup screen is on, the system rotates the colours from this entry to 255. 0
    /// means a still picture. It stands in the header's field biClrImportant (offset 50).
    int firstAnimated = 0;

    bool operator==(const IndexedScreen&) const = default;
    bool IsAnimated() const { return firstAnimated > 0; }
};

/// Reads an uncompressed 8-bit bitmap, the only kind that the system shows. Empty for anything
/// else. A first animated entry above 255 counts as none.
std::optional<IndexedScreen> ReadIndexedScreen(pictures::FileBytes file);

/// The bytes of a file of that screen, as the system takes it.
std::vector<std::uint8_t> ScreenFile(const IndexedScreen& screen);

/// Writes the number of the first moving colour into a screen file's bytes.
void SetFirstAnimated(std::vector<std::uint8_t>& file, int first);

/// One step of the animation: each entry takes the colour of the next higher one, and the last that
/// of the first animated.
void RotateColors(IndexedScreen& screen);

}  // namespace vistrel::screen
