// The pictures of the list of sets, of the list of folders and pictures, and of the drive list.
#include "art/resources/pictures.h"
#include "art/resources/screen.h"

namespace vistrel::art {
namespace {

// clang-format off

// Three screens, one behind the other.
const Rows kMultiLogo = {
    "......dddddddddd",
    "......dCCCCCCCCk",
    "......dCCCwwCCCk",
    "...ddddddddddCCk",
    "...drrrrrrrrkggk",
    "...drrRRrrrrkggk",
    "dddddddddddrkggk",
    "dwwwwwwwwwkrkkkk",
    "dwkkkkkkkwkrk...",
    "dwk11YY11wkrk...",
    "dwk4YYYY4wkkk...",
    "dwk9YYYY9wk.....",
    "dwkccccccwk.....",
    "dwwwwwwwGwk.....",
    "dkkkkkkkkkk.....",
    "................",
};

// A green tick: the set that is installed.
const Rows kInstalled = {
    "................",
    "..............k.",
    ".............kgk",
    "............kGgk",
    "...........kGgk.",
    "..........kGgk..",
    "..k......kGgk...",
    ".kgk....kGgk....",
    "kGggk..kGgk.....",
    ".kGggkkGgk......",
    "..kGggGgk.......",
    "...kGggk........",
    "....kgk.........",
    ".....k..........",
    "................",
    "................",
};

const Rows kClosedFolder = {
    "................",
    "................",
    "...ddddd........",
    "..dwYwYwd.......",
    ".dwYwYwYwdddddd.",
    ".dwwwwwwwwwwwwdk",
    ".dwYwYwYwYwYwYdk",
    ".dwwYwYwYwYwYwdk",
    ".dwYwYwYwYwYwYdk",
    ".dwwYwYwYwYwYwdk",
    ".dwYwYwYwYwYwYdk",
    ".dwwYwYwYwYwYwdk",
    ".dwYwYwYwYwYwYdk",
    ".ddddddddddddddk",
    "..kkkkkkkkkkkkkk",
    "................",
};

// A page with the rising sun: a screen file.
const Rows kScreenFile = {
    "..ddddddddd.....",
    "..dwwwwwwwdd....",
    "..dwwwwwwwdwd...",
    "..dwwwwwwwdwwd..",
    "..dwwwwwwwkkkkk.",
    "..dwkkkkkkkkkwk.",
    "..dwk1111111kwk.",
    "..dwk111Y111kwk.",
    "..dwk44YYY44kwk.",
    "..dwk9YYYYY9kwk.",
    "..dwkccccccckwk.",
    "..dwkkkkkkkkkwk.",
    "..dwwwwwwwwwwwk.",
    "..dwwwwwwwwwwwk.",
    "..dkkkkkkkkkkkk.",
    "................",
};

// A page with a landscape: any other picture.
const Rows kPictureFile = {
    "..ddddddddd.....",
    "..dwwwwwwwdd....",
    "..dwwwwwwwdwd...",
    "..dwCCCCCCdwwd..",
    "..dwCCCCCCkkkkk.",
    "..dwCYYCCCCCCwk.",
    "..dwCYYCCCCCCwk.",
    "..dwCCCCCGCCCwk.",
    "..dwCCCCGgGCCwk.",
    "..dwCGCGgggGCwk.",
    "..dwGgGggggggwk.",
    "..dwgggggggggwk.",
    "..dwggggggGggwk.",
    "..dwwwwwwwwwwwk.",
    "..dkkkkkkkkkkkk.",
    "................",
};

// The front of a drive, below whatever goes into it.
const Rows kDriveCase = {
    "..dddddddddddddd",
    ".dwwwwwwwwwwwwdk",
    "dddddddddddddwsk",
    "dwwwwwwwwwwwkssk",
    "dwssssssssssksdk",
    "dwssssssssssksk.",
    "dwssssssssssdk..",
    "dkkkkkkkkkkkk...",
};

const Rows kFloppyDisk = {
    "...kkkkkkkkk....",
    "...kBbssssbBk...",
    "...kBbskksbbk...",
    "...kBbskksbbk...",
    "...kBbssssbbk...",
    "...kBbbbbbbbk...",
    "...kBwwwwwwbk...",
};
const Rows kFloppySlot = {
    "kkkkkkkkkk",
    "..........",
    "ss.....yy.",
};

const Rows kHardDiskFront = {
    "dddddddddd",
    "..........",
    "......RRGG",
};

const Rows kCompactDisc = {
    ".....dddddd.....",
    "...ddwwwCCCdd...",
    "..dwwwwwCCCYYd..",
    ".dwwwwwkkCYYYYd.",
    ".dwwwwkssksYYYd.",
    ".dCCCwkssksMMsd.",
    ".dCCCCskkMMMssd.",
    "..dCCCYMMMssd...",
};

const Rows kCable = {
    "......cCc.......",
    "......cCc.......",
    "kkkkkkkkkkkkkkkk",
    "CCCCCkCCCkCCCCCC",
    "cccccccccccccccc",
    "kkkkkkkkkkkkkkkk",
};

const Rows kMemoryChip = {
    "................",
    "................",
    "...w.w.w.w.w.w..",
    "...s.s.s.s.s.s..",
    ".kkkkkkkkkkkkkk.",
    ".kddddddddddddk.",
    ".kdkkkkkkkkkkkk.",
    ".kdkkwkwwkwwkkk.",
    ".kkkwwwwkwkwkkk.",
    ".kdkkwkwwkwwkkk.",
    ".kdkkkkkkkkkkkk.",
    ".kkkkkkkkkkkkkk.",
    "...w.w.w.w.w.w..",
    "...s.s.s.s.s.s..",
    "................",
    "................",
};
// clang-format on

Grid Drive(const Rows& above, const Rows& front, int top) {
    Grid grid(16, 16);
    grid.Lay(Grid(above), 0, 0);
    grid.Lay(Grid(kDriveCase), 0, top);
    grid.Lay(Grid(front), 1, top + 4);
    return grid;
}

Grid HardDisk() {
    Grid grid(16, 16);
    grid.Lay(Grid(kDriveCase), 0, 4);
    grid.Lay(Grid(kHardDiskFront), 1, 8);
    return grid;
}

Grid NetworkDrive() {
    Grid grid(16, 16);
    grid.Lay(Grid(kDriveCase), 0, 2);
    grid.Lay(Grid(kHardDiskFront), 1, 6);
    grid.Lay(Grid(kCable), 0, 10);
    return grid;
}

}  // namespace

Grid ListPictures() { return Strip({SmallMonitor(), Grid(kMultiLogo), Grid(kInstalled)}); }

Grid BrowserPictures() {
    return Strip({Grid(kClosedFolder), Grid(kScreenFile), Grid(kPictureFile)});
}

Grid DrivePictures() {
    return Strip({Drive(kFloppyDisk, kFloppySlot, 7), HardDisk(),
                  Drive(kCompactDisc, kFloppySlot, 8), NetworkDrive(), Grid(kMemoryChip)});
}

}  // namespace vistrel::art
