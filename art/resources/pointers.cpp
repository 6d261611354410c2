// The two pointers: a picture being dragged, and the hand over a link.
#include "art/resources/pictures.h"
#include "art/resources/screen.h"

namespace vistrel::art {
namespace {

// clang-format off

const Rows kArrow = {
    "k..........",
    "kk.........",
    "kwk........",
    "kwwk.......",
    "kwwwk......",
    "kwwwwk.....",
    "kwwwwwk....",
    "kwwwwwwk...",
    "kwwwwwwwk..",
    "kwwwwwwwwk.",
    "kwwwwwkkkkk",
    "kwwkwwk....",
    "kwk.kwwk...",
    "kk..kwwk...",
    "k....kwwk..",
    ".....kwwk..",
    "......kk...",
};

const Rows kHand = {
    "....kk.........",
    "...kwwk........",
    "...kwwk........",
    "...kwwk........",
    "...kwwk........",
    "...kwwkkk......",
    "...kwwkwwkkk...",
    "...kwwkwwkwwkk.",
    "kkkkwwkwwkwwkwk",
    "kwwkwwwwwwwwkwk",
    "kwwwwwwwwwwwwwk",
    ".kwwwwwwwwwwwwk",
    "..kwwwwwwwwwwwk",
    "..kwwwwwwwwwwwk",
    "...kwwwwwwwwwk.",
    "...kwwwwwwwwwk.",
    "....kwwwwwwwk..",
    "....kkkkkkkkk..",
    "....kwkwkwkwk..",
    "....kkkkkkkkk..",
};
// clang-format on

}  // namespace

Grid DragPointer() {
    Grid grid(32, 32);
    const int x = 9, y = 12, width = 23, height = 18;
    grid.Fill(x, y, width, height, 'w');
    grid.Frame(x, y, width, height, 'd', 'k');
    grid.Frame(x + 2, y + 2, width - 4, height - 4, 'k', 'k');
    DrawSunrise(grid, x + 3, y + 3, width - 6, height - 6);
    grid.Lay(Grid(kArrow), 0, 0);
    return grid;
}

Grid HandPointer() {
    Grid grid(32, 32);
    grid.Lay(Grid(kHand), 0, 0);
    return grid;
}

}  // namespace vistrel::art
