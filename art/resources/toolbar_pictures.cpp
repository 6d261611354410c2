// The 16 x 16 pictures of the toolbar and the menus.
#include "art/resources/pictures.h"
#include "art/resources/screen.h"

namespace vistrel::art {
namespace {

// clang-format off

// A name being typed: marked text and the text cursor behind it.
const Rows kRename = {
    "................",
    "...........kk.kk",
    ".............k..",
    ".............k..",
    "bbbbbbbbbbbb.k..",
    "bbwwwbbbbwbb.k..",
    "bwwbwwbbbwbb.k..",
    "bwwbwwbbbwbb.k..",
    "bwwwwwbwwwbb.k..",
    "bwwbwwbwbwbb.k..",
    "bwwbwwbwwwbb.k..",
    "bbbbbbbbbbbb.k..",
    ".............k..",
    ".............k..",
    "...........kk.kk",
    "................",
};

const Rows kDelete = {
    "................",
    "................",
    "..rr........rr..",
    "..rRr......rRr..",
    "..rRRr....rRRr..",
    "...rRRr..rRRr...",
    "....rRRrrRRr....",
    ".....rRRRRr.....",
    "......rRRr......",
    ".....rRRRRr.....",
    "....rRRrrRRr....",
    "...rRRr..rRRr...",
    "..rRRr....rRRr..",
    "..rRr......rRr..",
    "..rr........rr..",
    "................",
};

const Rows kCheckMark = {
    "........kkk",
    ".......kGGk",
    "......kGGgk",
    "kkk..kGGgk.",
    "kGGkkGGgk..",
    "kgGGGGgk...",
    ".kgGGgk....",
    "..kggk.....",
    "...kk......",
};

const Rows kMagnifier = {
    "..kkkk....",
    ".kwwCCk...",
    "kwwCCCCk..",
    "kwCYYCCk..",
    "kCYYYYCk..",
    "kYYYYYYk..",
    ".kccccck..",
    "..kkkkryk.",
    ".......kry",
    "........kk",
};

// Three screens and the brush that changes them.
const Rows kBrowser = {
    "kkkkkkkkk.......",
    "kCCCCCCCk.......",
    "kCCYYCCCkkk.....",
    "kCCYYCCCkBk.....",
    "kCCCCCCCkBkkk...",
    "kggCCgggkgkmk..k",
    "kggggggGkgkmk.ky",
    "kkkkkkkkkgkmkkyk",
    "..kggggggkkmkyk.",
    "..kkkkkkkkkkyk..",
    "....kmmmmmkrk...",
    "....kkkkkkrRk...",
    ".........kRRk...",
    ".........kRk....",
    "........kkk.....",
    "................",
};

const Rows kExplore = {
    "................",
    "................",
    "...yyyyy........",
    "..yYYYYYy.......",
    "..yYwwwwYyyyyy..",
    "..yYwYwYwYwYwy..",
    "..yYwwYwYwYwYyk.",
    "..yYwYyyyyyyyyyy",
    "..yYwyYwwwwwwwYy",
    "..yYwyYwYwYwYwyk",
    "..yYyYwYwYwYwYyk",
    "..yYyYYwYwYwYyk.",
    "..yyYYYYYYYYYyk.",
    "..yyyyyyyyyyyk..",
    "...kkkkkkkkkkk..",
    "................",
};

const Rows kRefresh = {
    ".kkkkkkkkkk.....",
    ".kwwwwwwwkwk....",
    ".kwwwwwwwkwwk...",
    ".kwwwwgwwkkkkk..",
    ".kwwwwggwwwwwk..",
    ".kwwgggggwwwwk..",
    ".kwggwggwwwgwk..",
    ".kwgwwgwwwwgwk..",
    ".kwgwwwwgwwgwk..",
    ".kwgwwwggwggwk..",
    ".kwwwwgggggwwk..",
    ".kwwwwwggwwwwk..",
    ".kwwwwwwgwwwwk..",
    ".kwwwwwwwwwwwk..",
    ".kwwwwwwwwwwwk..",
    ".kkkkkkkkkkkkk..",
};

// Two dice.
const Rows kRandom = {
    "......kkkkkkkkk.",
    ".....kRRRRRRRRrk",
    ".....kRwwRRwwRrk",
    ".....kRwwRRwwRrk",
    ".kkkkkkkkkRRRRrk",
    "kwwwwwwwwskRRRrk",
    "kwkkwwwwwskwwRrk",
    "kwkkwwwwwskwwRrk",
    "kwwwwwwwwskRRRrk",
    "kwwwkkwwwskrrrrk",
    "kwwwkkwwwskkkkk.",
    "kwwwwwwwwsk.....",
    "kwwwwwkkwsk.....",
    "kwwwwwkkwsk.....",
    "kssssssssdk.....",
    ".kkkkkkkkk......",
};

// A book with a question mark on it.
const Rows kContents = {
    "................",
    "...kkkkkkkkkkk..",
    "..kBbbbbbbbbbbk.",
    ".kBkbbbYYYYbbbk.",
    ".kBkbbYYbbYYbbk.",
    ".kBkbbYYbbYYbbk.",
    ".kBkbbbbbbYYbbk.",
    ".kBkbbbbbYYbbbk.",
    ".kBkbbbbYYbbbbk.",
    ".kBkbbbbYYbbbbk.",
    ".kBkbbbbbbbbbbk.",
    ".kBkbbbbYYbbbbk.",
    ".kkkkkkkkkkkkkk.",
    ".kwswswswswswsk.",
    "..kkkkkkkkkkkkk.",
    "................",
};

const Rows kAbout = {
    "................",
    "....kkkkkkkk....",
    "..kkwwwwwwwwkk..",
    ".kwwwwwBBwwwwwk.",
    ".kwwwwwBBwwwwsk.",
    "kwwwwwwwwwwwwwsk",
    "kwwwwwBBBwwwwwsk",
    "kwwwwwwBBwwwwwsk",
    "kwwwwwwBBwwwwwsk",
    ".kwwwwwBBwwwwsk.",
    ".kwwwwBBBBwwwsk.",
    "..kkwwwwwwwskk..",
    "....kkkkwskk....",
    ".......kwsk.....",
    "........kwk.....",
    ".........kk.....",
};

// A property page: ticked boxes under a tab.
const Rows kPreferences = {
    ".kkkkkk.........",
    "kwwwwwwk........",
    "kwbbbbskkkkkkkk.",
    "kwsssssssssssdk.",
    "kwsssssssssssdk.",
    "kwsddddssssssdk.",
    "kwsdwgwskkkksdk.",
    "kwsdggwsssssskk.",
    "kwsdgwwskkksbyYk",
    "kwsssssssssbyYk.",
    "kwsddddsssbyYkk.",
    "kwsdwwwskkyYksk.",
    "kwsdwwwsskYksdk.",
    "kwsdwwwskkkssdk.",
    "kdddddddddddddk.",
    ".kkkkkkkkkkkkkk.",
};

// A graduate's cap.
const Rows kTutorial = {
    "................",
    "................",
    ".......kk.......",
    ".....kkbbkk.....",
    "...kkbbbbbbkk...",
    ".kkbbbbYbbbbbkk.",
    "kbbbbbbbYYbbbbbk",
    ".kkbbbbbbbYYbkY.",
    "..kkkbbbbbbkkkY.",
    "..kBbkkbbkkbbkY.",
    "..kBbbbkkbbbbkY.",
    "..kBbbbbbbbbbkY.",
    "..kkBbbbbbbbkkYY",
    "....kkBbbbkk.YyY",
    "......kkkk...YyY",
    "................",
};

// A ladybird.
const Rows kBug = {
    "....k......k....",
    ".....k....k.....",
    "......kkkk......",
    ".....kkwkwk.....",
    ".k...kkkkkk...k.",
    "..kkrRRkkRRrkk..",
    "...rRRRkkRRRr...",
    "..rRkkRkkRkkRr..",
    ".krRkkRkkRkkRrk.",
    "k.rRRRRkkRRRRr.k",
    "..rRRRRkkRRRRr..",
    ".krRkkRkkRkkRrk.",
    "k.rRkkRkkRkkRr.k",
    "...rRRRkkRRRr...",
    "..k.rrRkkRrr.k..",
    ".k....rrrr....k.",
};
// clang-format on

Grid Laid(const Grid& below, const Rows& above, int x, int y) {
    Grid grid = below;
    grid.Lay(Grid(above), x, y);
    return grid;
}

}  // namespace

Grid ToolbarPictures() {
    return Strip({Grid(kRename), Grid(kDelete), Laid(SmallMonitor(), kCheckMark, 5, 7),
                  Grid(kBrowser), Grid(kExplore), Grid(kRefresh),
                  Laid(SmallMonitor(), kMagnifier, 6, 6), Grid(kRandom), Grid(kContents),
                  Grid(kAbout), Grid(kPreferences), Grid(kTutorial), Grid(kBug)});
}

}  // namespace vistrel::art
