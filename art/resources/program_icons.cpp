// The icons of the program and of its three companions, and the about box's picture.
#include "art/resources/pictures.h"
#include "art/resources/screen.h"

namespace vistrel::art {
namespace {

Grid Monitor(int size) {
    if (size == 16) return SmallMonitor();
    Grid grid(size, size);
    DrawMonitor(grid, 0, 0, size, size);
    return grid;
}

// clang-format off

// What each companion adds to the monitor, small and large: the next set in turn, ...
const Rows kTurnSmall = {
    "..kkkkk....",
    ".kGGGGGk...",
    "kGGkkkGGk..",
    "kGkkkkGGkk.",
    "kkkGkGGGGGk",
    ".kGGGkGGGk.",
    "kGGGGGkGkkk",
    ".kkGGkkkkGk",
    "..kGGkkkGGk",
    "...kGGGGGk.",
    "....kkkkk..",
};
const Rows kTurnLarge = {
    "....kkkkkk......",
    "..kkGGGGGGkk....",
    ".kGGGGGGGGGGk...",
    "kGGGGkkkkGGGk...",
    "kGGGk...kGGGkkk.",
    "kGGk..kGGGGGGGGk",
    "kkkkkk.kGGGGGGk.",
    "...kGGk.kGGGGk..",
    "..kGGGGk.kGGk...",
    ".kGGGGGGk.kkkkkk",
    "kGGGGGGGGk..kGGk",
    ".kkkGGGk...kGGGk",
    "...kGGGkkkkGGGGk",
    "...kGGGGGGGGGGk.",
    "....kkGGGGGGkk..",
    "......kkkkkk....",
};

// ... a set at random, ...
const Rows kDieSmall = {
    ".kkkkkkkk.",
    "kwwwwwwwsk",
    "kwkkwwkksk",
    "kwkkwwkksk",
    "kwwwwwwwsk",
    "kwwwwwwwsk",
    "kwkkwwkksk",
    "kwkkwwkksk",
    "kssssssssk",
    ".kkkkkkkk.",
};
const Rows kDieLarge = {
    "...kkkkkkkkkkk..",
    "..kwwwkkwwwwwdk.",
    ".kwwwwwwwkkwwddk",
    "ksssssssssssdkdk",
    "kwwwwwwwwwwsdkdk",
    "kwkkwwwwkkwsdddk",
    "kwkkwwwwkkwsdddk",
    "kwwwwwwwwwwsdddk",
    "kwwwwkkwwwwsdddk",
    "kwwwwkkwwwwsdkdk",
    "kwwwwwwwwwwsdkdk",
    "kwkkwwwwkkwsddk.",
    "kwkkwwwwkkwsdk..",
    "kwwwwwwwwwwsk...",
    ".kkkkkkkkkkk....",
    "................",
};

// ... and the same set everywhere.
const Rows kMirrorSmall = {
    "....kk....",
    "...kCCk...",
    "..kkCCkk..",
    ".kBkCCkRk.",
    "kBBkCCkRRk",
    "kBBkCCkRRk",
    ".kBkCCkRk.",
    "..kkCCkk..",
    "...kCCk...",
    "....kk....",
};
const Rows kMirrorLarge = {
    ".......kk.......",
    "......kwCk......",
    "......kwCk......",
    "....kkkwCkkk....",
    "...kBbkwCkRrk...",
    "..kBBbkwCkRRrk..",
    ".kBBBbkwCkRRRrk.",
    "kBBBBbkwCkRRRRrk",
    "kBBBBbkwCkRRRRrk",
    ".kBBBbkwCkRRRrk.",
    "..kBBbkwCkRRrk..",
    "...kBbkwCkRrk...",
    "....kkkwCkkk....",
    "......kwCk......",
    "......kwCk......",
    ".......kk.......",
};
// clang-format on

Grid Companion(int size, const Rows& small, const Rows& large) {
    Grid grid = Monitor(size);
    const Grid sign(size == 16 ? small : large);
    grid.Lay(sign, size - sign.width(), size - sign.height());
    return grid;
}

}  // namespace

Grid VistrelIcon(int size) { return Monitor(size); }
Grid RotalineIcon(int size) { return Companion(size, kTurnSmall, kTurnLarge); }
Grid ShuffletIcon(int size) { return Companion(size, kDieSmall, kDieLarge); }
Grid MirrorkinIcon(int size) { return Companion(size, kMirrorSmall, kMirrorLarge); }

Grid AboutPicture() {
    Grid grid(80, 72);
    DrawMonitor(grid, 2, 2, 76, 68);
    return grid;
}

}  // namespace vistrel::art
