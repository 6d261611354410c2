// Draws the icons, pointers and bitmaps of the program's resources into a folder.
//
// What it writes, for the resource scripts to name; the strips have 16 colours, with
// RGB(255, 0, 255) where the background shows through:
//   vistrel.ico, rotaline.ico,     16, 32 and 48 pixels, in 16 and in 256 colours
//   shufflet.ico, mirrorkin.ico
//   toolbar.bmp    13 pictures of 16 x 16
//   list.bmp       3 pictures of 16 x 16
//   browser.bmp    3 pictures of 16 x 16
//   drives.bmp     5 pictures of 16 x 16
//   drag.ico       a picture being dragged, 16 colours
//   mano.cur       the hand over a link, black and white
//   logoicon.bmp   80 x 72, 256 colours on RGB(192, 192, 192): LR_LOADMAP3DCOLORS fits it to the
//                  dialog
//   splash.bmp     400 x 240, 256 colours
#include <cstdio>
#include <string>

#include "art/files/icon_writer.h"
#include "art/resources/pictures.h"
#include "art/resources/screen.h"

using namespace vistrel::art;

namespace {

void WriteProgramIcon(const std::string& path, Grid (*draw)(int size)) {
    std::vector<IconImage> images;
    for (int size : {16, 32, 48}) {
        const Grid grid = draw(size);
        images.push_back({PaintVga(grid), Depth::Vga});
        images.push_back({PaintDeep(grid), Depth::Indexed});
    }
    WriteIcon(path, images);
}

Pixels OnDialogGrey(Pixels pixels) {
    for (Color& color : pixels.colors) {
        if (color == kClear) color = VgaColor('s');
    }
    return pixels;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::fprintf(stderr, "draw_resources FOLDER\n");
        return 1;
    }
    const std::string folder = std::string(arguments[1]) + "/";
    WriteProgramIcon(folder + "vistrel.ico", VistrelIcon);
    WriteProgramIcon(folder + "rotaline.ico", RotalineIcon);
    WriteProgramIcon(folder + "shufflet.ico", ShuffletIcon);
    WriteProgramIcon(folder + "mirrorkin.ico", MirrorkinIcon);
    WriteBitmap(folder + "toolbar.bmp", PaintVga(ToolbarPictures()), Depth::Vga);
    WriteBitmap(folder + "list.bmp", PaintVga(ListPictures()), Depth::Vga);
    WriteBitmap(folder + "browser.bmp", PaintVga(BrowserPictures()), Depth::Vga);
    WriteBitmap(folder + "drives.bmp", PaintVga(DrivePictures()), Depth::Vga);
    WriteIcon(folder + "drag.ico", {{PaintVga(DragPointer()), Depth::Vga}});
    WriteCursor(folder + "mano.cur", {PaintVga(HandPointer()), Depth::Mono}, 4, 0);
    WriteBitmap(folder + "logoicon.bmp", OnDialogGrey(PaintDeep(AboutPicture())), Depth::Indexed);
    WriteBitmap(folder + "splash.bmp", SplashPicture(), Depth::Indexed);
    return 0;
}
