#include "tests/main_window/main_window_fixture.h"

#include <commctrl.h>
#include <ole2.h>

#include "core/settings.h"
#include "pictures/bmp_writer.h"

namespace vistrel::test {

std::string ScreenFile(unsigned char red, unsigned char green, unsigned char blue,
                       int firstAnimated) {
    std::vector<std::uint8_t> indices(320 * 400, static_cast<std::uint8_t>(firstAnimated));
    std::vector<std::uint8_t> palette(256 * 4);
    for (int i = firstAnimated; i < 256; ++i) {
        // The colour at first, then its steps to black, so that a rotation is seen.
        const int left = i == firstAnimated ? 255 : 255 - i;
        palette[i * 4] = static_cast<std::uint8_t>(blue * left / 255);
        palette[i * 4 + 1] = static_cast<std::uint8_t>(green * left / 255);
        palette[i * 4 + 2] = static_cast<std::uint8_t>(red * left / 255);
    }
    const auto bytes = ColormappedBmp(indices.data(), 320, 400, 256, palette.data());
    std::string file(bytes.begin(), bytes.end());
    file[50] = static_cast<char>(firstAnimated);
    return file;
}

COLORREF MiddleOf(const PictureBox& box) {
    RedrawWindow(box.handle(), nullptr, nullptr, RDW_UPDATENOW);
    // Nothing was left to paint where the window's own thread had begun: let it finish.
    SendMessageA(box.handle(), WM_NULL, 0, 0);
    const HDC dc = GetDC(box.handle());
    const COLORREF color = GetPixel(dc, box.ScaleWidth() / 2, box.ScaleHeight() / 2);
    ReleaseDC(box.handle(), dc);
    return color;
}

MainWindow98::MainWindow98() {
    PutSet("Blue", 0, 0, 255);
    PutSingleSet("Green.SLS", 0, 255, 0);
    PutSet("Red", 255, 0, 0);
    Put(logos + "LOGOW.SYS", ScreenFile(255, 255, 255));
    Put(logos + "LOGOS.SYS", ScreenFile(255, 255, 255));
    Store("LogoPath", TextValue(logos));
    Store("DefaultLogoSet", TextValue("Blue"));
}

void MainWindow98::PutSet(const std::string& name, unsigned char red, unsigned char green,
                          unsigned char blue) {
    MakeFolders(logos + name + "\\");
    for (const char* screen : kScreenFileNames)
        Put(logos + name + "\\" + screen, ScreenFile(red, green, blue));
}

void MainWindow98::PutSingleSet(const std::string& name, unsigned char red, unsigned char green,
                                unsigned char blue) {
    MakeFolders(logos + name + "\\");
    Put(logos + name + "\\LOGO.SYS", ScreenFile(red, green, blue));
}

void MainWindow98::WithMainWindow(const std::function<void(Principale&)>& user) {
    OleInitialize(nullptr);
    {
        Principale main(locations);
        ASSERT_TRUE(main.Create(nullptr));
        main.Preferences().bootRoot = boot;
        main.Show();
        user::Meanwhile acting([&] {
            user::Activate(main.handle());
            user(main);
            PostMessageA(main.handle(), WM_CLOSE, 0, 0);
        });
        RunLoopWhileOpen(main);
        acting.Finish();
    }
    OleUninitialize();
}

POINT MainWindow98::PointOfSet(Principale& main, const std::string& name) {
    RECT r{};
    r.left = LVIR_LABEL;
    SendMessageA(main.MyList.handle(), LVM_GETITEMRECT,
                 static_cast<WPARAM>(main.MyList.FindItem(name)), reinterpret_cast<LPARAM>(&r));
    POINT at{r.left + 8, (r.top + r.bottom) / 2};
    ClientToScreen(main.MyList.handle(), &at);
    return at;
}

void MainWindow98::ClickSet(Principale& main, const std::string& name) {
    user::ClickAt(PointOfSet(main, name));
    WaitUntil([&] {
        const int selected = main.MyList.SelectedItem();
        return selected >= 0 && main.MyList.ItemText(selected) == name &&
               main.Imag[0].Tag() == logos + name + "\\LOGO.SYS";
    });
    Settle(main);
}

void MainWindow98::Command(Principale& main, int id) {
    SendMessageA(main.handle(), WM_COMMAND, static_cast<WPARAM>(id), 0);
}

void MainWindow98::StartCommand(Principale& main, int id) {
    PostMessageA(main.handle(), WM_COMMAND, static_cast<WPARAM>(id), 0);
}

}  // namespace vistrel::test
