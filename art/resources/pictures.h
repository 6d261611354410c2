// The pictures of the program's resources, one function each.
#pragma once

#include "art/brush/grid.h"

namespace vistrel::art {

/// 16 x 16 each: Rename, Delete, SetDefault, Browser, Explore, Refresh, ShowCurrent, Random,
/// Contents, About, Preferences, Tutorial, Bug.
Grid ToolbarPictures();

/// The list of sets, 16 x 16 each: singlelogo, multilogo, installed.
Grid ListPictures();

/// The editor's list, 16 x 16 each: closed (a folder), sys (a screen file), im (another picture).
Grid BrowserPictures();

/// 16 x 16 each: floppy disk, hard disk, CD-ROM, network drive, memory disk.
Grid DrivePictures();

/// The icons in 16, 32 or 48 pixels.
Grid VistrelIcon(int size);
Grid RotalineIcon(int size);
Grid ShuffletIcon(int size);
Grid MirrorkinIcon(int size);

/// The about box's picture, 80 x 72.
Grid AboutPicture();

/// 32 x 32: an arrow that carries a picture.
Grid DragPointer();

/// 32 x 32 in black and white: the hand over a link, its hot spot at 4, 0.
Grid HandPointer();

/// The splash screen's picture, 400 x 240 with at most 256 colours.
Pixels SplashPicture();

}  // namespace vistrel::art
