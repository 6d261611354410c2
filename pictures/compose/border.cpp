// A border of the picture's own colours: its edge mirrored outwards, in means of cells of the
// screen, blurred there, and drawn from the cells without a step or a corner between them.
#include "pictures/compose/border.h"

#include <algorithm>
#include <array>
#include <vector>

#include "pictures/convert.h"

namespace vistrel::compose {
namespace {

// Nearly square as a screen is seen. Both sides are powers of two: nothing need be divided.
constexpr int kCellAcross = 8;
constexpr int kCellDown = 16;
constexpr int kColumns = pictures::kLogoWidth / kCellAcross;
constexpr int kRows = pictures::kLogoHeight / kCellDown;
static_assert(kColumns * kCellAcross == pictures::kLogoWidth);
static_assert(kRows * kCellDown == pictures::kLogoHeight);

/// A colour in parts of a level, so that what is rounded on the way is not seen.
using CellColor = std::array<int, 3>;
constexpr int kPartsOfLevel = 16;

/// Rows from the top.
using Cells = std::vector<CellColor>;

/// How much of a picture is its edge: a light thing in the middle must not shine beside the
/// picture.
constexpr int kCellsOfEdge = 3;

/// For each place along an axis of the screen the place of the picture that is seen there: its own,
/// and beside it the picture's outermost `depth` places, to and fro as between two mirrors.
std::vector<int> Mirrored(int start, int length, int whole, int depth) {
    depth = std::min(depth, length);
    const auto inwards = [&](int outside) {
        const int step = outside % (2 * depth);
        return step < depth ? step : 2 * depth - 1 - step;
    };
    const int last = start + length - 1;
    std::vector<int> places;
    places.reserve(static_cast<std::size_t>(whole));
    for (int i = 0; i < whole; ++i) {
        if (i < start)
            places.push_back(start + inwards(start - 1 - i));
        else
            places.push_back(i <= last ? i : last - inwards(i - 1 - last));
    }
    return places;
}

Cells MeansOf(const ScreenRectangle& picture, const pictures::RgbPicture& screen) {
    const std::vector<int> across =
        Mirrored(picture.left, picture.width, screen.width, kCellsOfEdge * kCellAcross);
    const std::vector<int> down =
        Mirrored(picture.top, picture.height, screen.height, kCellsOfEdge * kCellDown);
    Cells cells(std::size_t{kColumns} * kRows);
    for (int y = 0; y < screen.height; ++y) {
        const std::uint8_t* const row = &screen.pixels[std::size_t(down[y]) * screen.width * 3];
        CellColor* const cell = &cells[std::size_t(y / kCellDown) * kColumns];
        for (int x = 0; x < screen.width; ++x) {
            const std::uint8_t* const pixel = row + std::ptrdiff_t{3} * across[x];
            for (int c = 0; c < 3; ++c) cell[x / kCellAcross][c] += pixel[c];
        }
    }
    for (CellColor& cell : cells)
        for (int& value : cell) value /= kCellAcross * kCellDown / kPartsOfLevel;
    return cells;
}

/// Makes each of `count` cells, so far apart, the mean of itself and two on either side.
void BlurLine(CellColor* first, int count, std::ptrdiff_t apart) {
    constexpr int kReach = 2;
    constexpr int kMeans = 2 * kReach + 1;
    std::array<CellColor, kColumns + 2 * kReach> line;
    for (int i = -kReach; i < count + kReach; ++i)
        line[i + kReach] = first[std::clamp(i, 0, count - 1) * apart];
    for (int i = 0; i < count; ++i) {
        for (int c = 0; c < 3; ++c) {
            int sum = kMeans / 2;
            for (int k = 0; k < kMeans; ++k) sum += line[i + k][c];
            first[i * apart][c] = sum / kMeans;
        }
    }
}

/// Twice, which leaves nothing of the square shape of such a mean.
void Blur(Cells& cells) {
    for (int times = 0; times < 2; ++times) {
        for (int y = 0; y < kRows; ++y) BlurLine(&cells[std::size_t(y) * kColumns], kColumns, 1);
        for (int x = 0; x < kColumns; ++x) BlurLine(&cells[x], kRows, kColumns);
    }
}

/// How many cells away from a picture that takes `length` pixels from `start` on.
int CellsFrom(int start, int length, int size, int cell) {
    return std::max({start / size - cell, cell - (start + length - 1) / size, 0});
}

/// Mixes the colours along the picture's edge the more the farther they are from it, so that none
/// goes out to the screen's edge as a band.
void MixOutwards(const ScreenRectangle& picture, Cells& cells) {
    for (int y = 0; y < kRows; ++y)
        for (int i = CellsFrom(picture.top, picture.height, kCellDown, y); i > 0; --i)
            BlurLine(&cells[std::size_t(y) * kColumns], kColumns, 1);
    for (int x = 0; x < kColumns; ++x)
        for (int i = CellsFrom(picture.left, picture.width, kCellAcross, x); i > 0; --i)
            BlurLine(&cells[x], kRows, kColumns);
}

/// How much the cell before, the cell itself and the one behind count at a place within a cell of
/// `size` pixels: the quadratic B-spline, 8 * size * size in all.
std::array<int, 3> WeightsAt(int place, int size) {
    const int behind = 2 * place + 1;
    const int before = 2 * size - behind;
    return {before * before, 8 * size * size - before * before - behind * behind, behind * behind};
}

/// The cells that count along an axis of `count` of them: at the ends the outermost one twice.
std::array<int, 3> CellsAt(int cell, int count) {
    return {std::max(cell - 1, 0), cell, std::min(cell + 1, count - 1)};
}

/// The colours of a row of the screen, a cell each.
std::array<CellColor, kColumns> RowOfCells(const Cells& cells, int y) {
    const std::array<int, 3> rows = CellsAt(y / kCellDown, kRows);
    const std::array<int, 3> weights = WeightsAt(y % kCellDown, kCellDown);
    std::array<CellColor, kColumns> row;
    for (int x = 0; x < kColumns; ++x)
        for (int c = 0; c < 3; ++c)
            row[x][c] = (weights[0] * cells[rows[0] * kColumns + x][c] +
                         weights[1] * cells[rows[1] * kColumns + x][c] +
                         weights[2] * cells[rows[2] * kColumns + x][c]) /
                        (8 * kCellDown * kCellDown);
    return row;
}

void DrawPart(const std::array<CellColor, kColumns>& row, int left, int right, std::uint8_t* rgb) {
    constexpr int kWhole = 8 * kCellAcross * kCellAcross * kPartsOfLevel;
    for (int x = left; x < right; ++x, rgb += 3) {
        const std::array<int, 3> cells = CellsAt(x / kCellAcross, kColumns);
        const std::array<int, 3> weights = WeightsAt(x % kCellAcross, kCellAcross);
        for (int c = 0; c < 3; ++c)
            rgb[c] = static_cast<std::uint8_t>((weights[0] * row[cells[0]][c] +
                                                weights[1] * row[cells[1]][c] +
                                                weights[2] * row[cells[2]][c] + kWhole / 2) /
                                               kWhole);
    }
}

}  // namespace

void PaintPlain(const Color& color, pictures::RgbPicture& screen) {
    for (std::size_t i = 0; i < screen.pixels.size(); i += 3) {
        screen.pixels[i] = color.red;
        screen.pixels[i + 1] = color.green;
        screen.pixels[i + 2] = color.blue;
    }
}

void PaintBlurred(const ScreenRectangle& picture, pictures::RgbPicture& screen) {
    const int right = picture.left + picture.width;
    const int bottom = picture.top + picture.height;
    if (picture.width == screen.width && picture.height == screen.height) return;
    Cells cells = MeansOf(picture, screen);
    Blur(cells);
    MixOutwards(picture, cells);
    for (int y = 0; y < screen.height; ++y) {
        const bool isBeside = y < picture.top || y >= bottom;
        // A row of the picture has the border at its two ends.
        if (!isBeside && picture.width == screen.width) continue;
        const std::array<CellColor, kColumns> row = RowOfCells(cells, y);
        std::uint8_t* const first = &screen.pixels[std::size_t(y) * screen.width * 3];
        DrawPart(row, 0, isBeside ? screen.width : picture.left, first);
        if (!isBeside) DrawPart(row, right, screen.width, first + std::ptrdiff_t{3} * right);
    }
}

}  // namespace vistrel::compose
