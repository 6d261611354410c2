// Writes bitmaps, icons and cursors.
#pragma once

#include <string>
#include <vector>

#include "art/brush/grid.h"

namespace vistrel::art {

/// How many bits a pixel has in the file. Four bits hold the 16 VGA colours and nothing else;
/// eight bits hold any 256 colours; one bit holds black and white.
enum class Depth { Mono = 1, Vga = 4, Indexed = 8 };

/// The colour that stands for "shows what is behind" in bitmaps, which have no mask of their own.
inline constexpr Color kMaskColor = 0xFF00FF;

/// One picture of an icon or cursor file.
struct IconImage {
    Pixels pixels;
    Depth depth;
};

/// Each writes a file or ends the program with a message: a half-drawn set of resources is of no
/// use to anybody.
void WriteBitmap(const std::string& path, const Pixels& pixels, Depth depth);
void WriteIcon(const std::string& path, const std::vector<IconImage>& images);
void WriteCursor(const std::string& path, const IconImage& image, int hotX, int hotY);

}  // namespace vistrel::art
