// Drawing on grids of letters and turning letters into colours.
#include "art/brush/grid.h"

#include <cstdio>
#include <cstdlib>

namespace vistrel::art {

Grid::Grid(const Rows& rows)
    : Grid(static_cast<int>(rows[0].size()), static_cast<int>(rows.size())) {
    cells_.clear();
    for (const std::string& row : rows) {
        if (static_cast<int>(row.size()) != width_) {
            std::fprintf(stderr, "row of %zu letters in a picture %d wide: %s\n", row.size(),
                         width_, row.c_str());
            std::exit(1);
        }
        cells_ += row;
    }
}

void Grid::Put(int x, int y, char letter) {
    if (x >= 0 && y >= 0 && x < width_ && y < height_) cells_[y * width_ + x] = letter;
}

void Grid::Fill(int x, int y, int width, int height, char letter) {
    for (int row = y; row < y + height; ++row) {
        for (int column = x; column < x + width; ++column) Put(column, row, letter);
    }
}

void Grid::Frame(int x, int y, int width, int height, char upperLeft, char lowerRight) {
    Fill(x, y, width, 1, upperLeft);
    Fill(x, y, 1, height, upperLeft);
    Fill(x, y + height - 1, width, 1, lowerRight);
    Fill(x + width - 1, y, 1, height, lowerRight);
}

void Grid::Lay(const Grid& picture, int x, int y) {
    for (int row = 0; row < picture.height(); ++row) {
        for (int column = 0; column < picture.width(); ++column) {
            const char letter = picture.at(column, row);
            if (letter != '.') Put(x + column, y + row, letter);
        }
    }
}

Color VgaColor(char letter) {
    switch (letter) {
        case 'k':
            return 0x000000;
        case 'r':
            return 0x800000;
        case 'g':
            return 0x008000;
        case 'y':
            return 0x808000;
        case 'b':
            return 0x000080;
        case 'm':
            return 0x800080;
        case 'c':
            return 0x008080;
        case 's':
            return 0xC0C0C0;
        case 'd':
            return 0x808080;
        case 'R':
            return 0xFF0000;
        case 'G':
            return 0x00FF00;
        case 'Y':
            return 0xFFFF00;
        case 'B':
            return 0x0000FF;
        case 'M':
            return 0xFF00FF;
        case 'C':
            return 0x00FFFF;
        case 'w':
            return 0xFFFFFF;
    }
    std::fprintf(stderr, "no colour has the letter %c\n", letter);
    std::exit(1);
}

Pixels Paint(const Grid& grid, const PaintBox& box) {
    Pixels result{grid.width(), grid.height(), {}};
    for (int y = 0; y < grid.height(); ++y) {
        for (int x = 0; x < grid.width(); ++x) {
            const char letter = grid.at(x, y);
            result.colors.push_back(letter == '.' ? kClear : box(letter, x, y));
        }
    }
    return result;
}

Pixels Paint(const Grid& grid) {
    return Paint(grid, [](char letter, int, int) { return VgaColor(letter); });
}

Grid Strip(const std::vector<Grid>& pictures) {
    Grid strip(pictures[0].width() * static_cast<int>(pictures.size()), pictures[0].height());
    int x = 0;
    for (const Grid& picture : pictures) {
        strip.Lay(picture, x, 0);
        x += pictures[0].width();
    }
    return strip;
}

}  // namespace vistrel::art
