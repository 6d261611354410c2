// The 16 x 16 pictures of the toolbar and the menus.
#include <cassert>
#include <map>
#include <vector>

#include "art/resources/pictures.h"
#include "art/resources/screen.h"
#include "resources/ids.h"

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
    const std::map<int, Grid> pictures = {
        {PICTURE_Rename, Grid(kRename)},
        {PICTURE_Delete, Grid(kDelete)},
        {PICTURE_SetDefault, Laid(SmallMonitor(), kCheckMark, 5, 7)},
        {PICTURE_Browser, Grid(kBrowser)},
        {PICTURE_Explore, Grid(kExplore)},
        {PICTURE_Refresh, Grid(kRefresh)},
        {PICTURE_ShowCurrent, Laid(SmallMonitor(), kMagnifier, 6, 6)},
        {PICTURE_Random, Grid(kRandom)},
        {PICTURE_Contents, Grid(kContents)},
        {PICTURE_About, Grid(kAbout)},
        {PICTURE_Preferences, Grid(kPreferences)},
        {PICTURE_Tutorial, Grid(kTutorial)},
        {PICTURE_Bug, Grid(kBug)},
    };
    std::vector<Grid> strip;
    for (const auto& [place, picture] : pictures) {
        assert(place == static_cast<int>(strip.size()));
        strip.push_back(picture);
    }
    return Strip(strip);
}

}  // namespace vistrel::art
