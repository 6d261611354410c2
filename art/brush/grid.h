// Small pictures drawn letter by letter: a grid of cells, each naming a colour of a paint box.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vistrel::art {

/// A colour as 0xRRGGBB, or kClear.
using Color = std::int32_t;
inline constexpr Color kClear = -1;

/// Rows of a picture from the top, one letter a pixel; all rows of one picture are equally long.
using Rows = std::vector<std::string>;

/// A picture of letters. Drawing outside it is cut off. '.' is a cell that shows what is behind.
class Grid {
 public:
    Grid(int width, int height) : width_(width), height_(height), cells_(width * height, '.') {}
    explicit Grid(const Rows& rows);

    int width() const { return width_; }
    int height() const { return height_; }
    char at(int x, int y) const { return cells_[y * width_ + x]; }

    void Put(int x, int y, char letter);
    void Fill(int x, int y, int width, int height, char letter);
    /// One pixel wide: the left and upper edges in one letter, the right and lower ones in another.
    void Frame(int x, int y, int width, int height, char upperLeft, char lowerRight);
    /// Lays another picture over this one.
    void Lay(const Grid& picture, int x, int y);

 private:
    int width_;
    int height_;
    std::string cells_;
};

/// What a letter at a place looks like; '.' is never asked for.
using PaintBox = std::function<Color(char letter, int x, int y)>;

/// The 16 colours of a VGA display: k black, d dark grey, s silver, w white, and for each of red,
/// green, blue, yellow, cyan and magenta the capital for the bright and the small letter for the
/// dark one.
Color VgaColor(char letter);

/// A picture with colours, ready to be written to a file.
struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<Color> colors;  ///< rows from the top
};

Pixels Paint(const Grid& grid, const PaintBox& box);
Pixels Paint(const Grid& grid);

/// Pictures of one size side by side in one grid.
Grid Strip(const std::vector<Grid>& pictures);

}  // namespace vistrel::art
