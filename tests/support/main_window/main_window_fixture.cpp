#include "tests/support/main_window/main_window_fixture.h"

#include <commctrl.h>

#include <atomic>

#include "core/settings.h"
#include "pictures/bmp/writer.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace bmp;
using namespace controls;
using namespace core;
using namespace main_window;

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

std::string LargeScreenFile() {
    std::string large = ScreenFile(0, 255, 0);
    large.replace(18, 8, std::string("\x70\x17\0\0\x70\x17\0\0", 8));
    large.resize(1078 + 36'000'000);
    return large;
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

namespace {

/// Which pixels of a picture differ from its first one, each as a letter.
std::string Marks(HDC picture, int width, int height) {
    const COLORREF ground = GetPixel(picture, 0, 0);
    std::string marks;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) marks += GetPixel(picture, x, y) == ground ? ' ' : '#';
    return marks;
}

void DrawCentred(HDC target, const std::string& text, int width, int height) {
    RECT r{0, 0, width, 0};
    const int lines = DrawTextA(target, text.c_str(), -1, &r, DT_CALCRECT | DT_WORDBREAK);
    for (const int shadow : {1, 0}) {
        RECT place{shadow, (height - lines) / 2 + shadow, width + shadow, height};
        DrawTextA(target, text.c_str(), -1, &place, DT_CENTER | DT_WORDBREAK);
    }
}

}  // namespace

bool Says(const PictureBox& box, const std::string& text) {
    if (box.HasPicture()) return false;
    RedrawWindow(box.handle(), nullptr, nullptr, RDW_UPDATENOW);
    SendMessageA(box.handle(), WM_NULL, 0, 0);
    RECT r{};
    GetClientRect(box.handle(), &r);
    const HDC shown = GetDC(box.handle());
    const HDC expected = CreateCompatibleDC(shown);
    const HBITMAP bitmap = CreateCompatibleBitmap(shown, r.right, r.bottom);
    const HGDIOBJ former = SelectObject(expected, bitmap);
    FillRect(expected, &r, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    SelectObject(expected,
                 reinterpret_cast<HFONT>(SendMessageA(GetParent(box.handle()), WM_GETFONT, 0, 0)));
    SetBkMode(expected, TRANSPARENT);
    DrawCentred(expected, text, r.right, r.bottom);
    const bool same = Marks(shown, r.right, r.bottom) == Marks(expected, r.right, r.bottom);
    SelectObject(expected, former);
    DeleteObject(bitmap);
    DeleteDC(expected);
    ReleaseDC(box.handle(), shown);
    return same && seen::ShowsColor(box.handle(), GetSysColor(COLOR_GRAYTEXT));
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

namespace {

/// Closes what a test that failed has left open in front of the main window, which would not close
/// behind it.
void CloseWhatIsInFrontOf(HWND main) {
    WaitUntil(
        [&] {
            if (!IsWindow(main) || IsWindowEnabled(main)) return true;
            const HWND front = GetLastActivePopup(main);
            PostMessageA(front, WM_COMMAND, IDNO, 0);  // a question
            PostMessageA(front, WM_CLOSE, 0, 0);
            return false;
        },
        5000);
}

}  // namespace

void MainWindow98::WithMainWindow(const std::function<void(Principale&)>& user) {
    Principale main(locations);
    ASSERT_TRUE(main.Create(nullptr));
    main.Preferences().bootRoot = boot;
    main.Show();
    user::Meanwhile acting([&] {
        user::Activate(main.handle());
        const HWND window = main.handle();
        user(main);
        CloseWhatIsInFrontOf(window);
        PostMessageA(window, WM_CLOSE, 0, 0);
    });
    RunLoopWhileOpen(main);
    acting.Finish();
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

void MainWindow98::ClickAlso(Principale& main, const std::string& first, WORD key,
                             const std::string& second, int count) {
    constexpr int kTries = 3;
    for (int i = 0; i < kTries; ++i) {
        ClickSet(main, first);
        user::WhileHolding(key, [&] { user::ClickAt(PointOfSet(main, second)); });
        if (WaitUntil([&] { return main.MyList.SelectedCount() == count; }, 3000)) break;
    }
    EXPECT_EQ(main.MyList.SelectedCount(), count);
    Settle(main);
}

void MainWindow98::ClickBelowSets(Principale& main) {
    RECT last{};
    last.left = LVIR_BOUNDS;
    SendMessageA(main.MyList.handle(), LVM_GETITEMRECT,
                 static_cast<WPARAM>(main.MyList.Count() - 1), reinterpret_cast<LPARAM>(&last));
    POINT below{last.left + 30, last.bottom + 40};
    ClientToScreen(main.MyList.handle(), &below);
    user::ClickAt(below);
    WaitUntil([&] { return main.MyList.SelectedItem() < 0; });
    Settle(main);
}

void MainWindow98::BeginRenaming(Principale& main, const std::string& name,
                                 const std::string& typed) {
    ClickSet(main, name);
    user::Press(VK_F2);
    HWND edit = nullptr;
    WaitUntil([&] {
        edit = reinterpret_cast<HWND>(SendMessageA(main.MyList.handle(), LVM_GETEDITCONTROL, 0, 0));
        return edit != nullptr;
    });
    user::Type(typed);
    EXPECT_TRUE(WaitUntil([&] { return user::TextOf(edit) == typed; })) << typed;
}

std::string MainWindow98::Selected(Principale& main) {
    const int selected = main.MyList.SelectedItem();
    return selected < 0 ? std::string() : main.MyList.ItemText(selected);
}

Names MainWindow98::Listed(Principale& main) {
    Names names;
    for (int i = 0; i < main.MyList.Count(); ++i) names.push_back(main.MyList.ItemText(i));
    return names;
}

bool MainWindow98::Lists(Principale& main, const Names& expected) {
    const bool listed = WaitUntil([&] { return Listed(main) == expected; });
    Settle(main);
    return listed;
}

bool MainWindow98::SetToolsEnabled(Principale& main) {
    const bool enabled = seen::ButtonOf(main.ActiveBar1.bar(), ID_ToolRename).enabled;
    for (const int id : {ID_ToolRename, ID_ToolDelete, ID_ToolSetDefault}) {
        EXPECT_EQ(seen::ButtonOf(main.ActiveBar1.bar(), id).enabled, enabled) << id;
        const HMENU menuBar = GetMenu(main.handle());
        EXPECT_EQ(seen::RowOf(menuBar, static_cast<unsigned>(id)).enabled, enabled) << id;
    }
    return enabled;
}

void MainWindow98::Command(Principale& main, int id) {
    SendMessageA(main.handle(), WM_COMMAND, static_cast<WPARAM>(id), 0);
}

bool MainWindow98::SeesTheHourglass(Principale& main, int id) {
    std::atomic<bool> done = false;
    user::Meanwhile commanding([&] {
        Command(main, id);
        done = true;
    });
    bool shown = false;
    while (!done && !shown) shown = seen::PointerIsHourglass();
    commanding.Finish();
    return shown;
}

void MainWindow98::StartCommand(Principale& main, int id) {
    PostMessageA(main.handle(), WM_COMMAND, static_cast<WPARAM>(id), 0);
}

}  // namespace vistrel::test
