// Looks at pictures on a display of 640 x 480 pixels and 256 colours, as a real display of that
// kind shows them. Wine gives windows only the system's 20 colours there, but draws on the screen
// itself with the display's palette as it is: that is where pictures are looked at.
#include <algorithm>
#include <cstdlib>

#include "about/frm_splash.h"
#include "adjust/frm_adjust.h"
#include "boot_show/frm_boot_show.h"
#include "controls/display_palette.h"
#include "main_window/frm_view.h"
#include "pictures/bmp/writer.h"
#include "pictures/convert.h"
#include "pictures/imgdll.h"
#include "pictures/preview/ready_picture.h"
#include "pictures/read_picture.h"
#include "platform/display_colors.h"
#include "tests/support/main_window/main_window_fixture.h"

namespace vistrel::test {

using namespace adjust;

using namespace about;
using namespace bmp;
using namespace controls;
using namespace main_window;
using namespace pictures;
using namespace platform;

namespace {

/// A screen that needs many colours at once: a sky that grows lighter, a sun in it, and a hill.
/// Where `animated`, the last of its colours move.
std::string Landscape(bool animated) {
    std::vector<std::uint8_t> rgb;
    const auto add = [&rgb](int red, int green, int blue) {
        for (const int value : {red, green, blue}) rgb.push_back(static_cast<std::uint8_t>(value));
    };
    for (int y = 0; y < 400; ++y)
        for (int x = 0; x < 320; ++x) {
            const int dx = x - 230;
            const int dy = (y - 120) / 2;
            if (dx * dx + dy * dy < 1600)
                add(250, 220, 60 + y / 2);
            else if (y > 260 + x / 8)
                add(40 + x / 8, y / 3, 50);
            else
                add(60 + y / 4, 90 + y / 4, 190);
        }
    std::vector<std::uint8_t> indices(320 * 400);
    std::vector<std::uint8_t> palette(256 * 4);
    ImgDLLQuantizeRGBTo8Bit(rgb.data(), indices.data(), 320, 400, 256, palette.data());
    const auto bytes = ColormappedBmp(indices.data(), 320, 400, 256, palette.data());
    std::string file(bytes.begin(), bytes.end());
    if (animated) file[50] = static_cast<char>(250);
    return file;
}

/// A device context of the screen.
struct Screen {
    HDC dc = GetDC(nullptr);
    ~Screen() { ReleaseDC(nullptr, dc); }
};

/// What the display shows in its upper left corner.
RgbPicture Corner(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    const Screen screen;
    const HDC memory = CreateCompatibleDC(screen.dc);
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(screen.dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ former = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen.dc, 0, 0, SRCCOPY);
    GdiFlush();
    RgbPicture shown{width, height, {}};
    const auto* pixel = static_cast<const RGBQUAD*>(bits);
    for (int i = 0; i < width * height; ++i, ++pixel)
        shown.pixels.insert(shown.pixels.end(), {pixel->rgbRed, pixel->rgbGreen, pixel->rgbBlue});
    SelectObject(memory, former);
    DeleteObject(bitmap);
    DeleteDC(memory);
    return shown;
}

/// What a box shows on the display.
RgbPicture Shown(PictureBox& box) {
    const Screen screen;
    PaintThroughPalette(screen.dc, static_cast<HBITMAP>(GetCurrentObject(box.Canvas(), OBJ_BITMAP)),
                        box.ScaleWidth(), box.ScaleHeight(), false);
    return Corner(box.ScaleWidth(), box.ScaleHeight());
}

/// What the display shows of a picture that is drawn on it without dithering.
RgbPicture ShownPlainly(const RgbPicture& picture) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture.width;
    info.bmiHeader.biHeight = -picture.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    std::vector<RGBQUAD> rows;
    for (std::size_t i = 0; i < picture.pixels.size(); i += 3)
        rows.push_back({picture.pixels[i + 2], picture.pixels[i + 1], picture.pixels[i], 0});
    const Screen screen;
    const HPALETTE former = SelectPalette(screen.dc, DisplayPalette(), TRUE);
    RealizePalette(screen.dc);
    SetDIBitsToDevice(screen.dc, 0, 0, static_cast<DWORD>(picture.width),
                      static_cast<DWORD>(picture.height), 0, 0, 0,
                      static_cast<UINT>(picture.height), rows.data(), &info, DIB_RGB_COLORS);
    SelectPalette(screen.dc, former, TRUE);
    return Corner(picture.width, picture.height);
}

struct Error {
    double mean = 0;
    double largest = 0;
};

/// How far the mean colours of blocks of 8 x 8 pixels lie from each other: what the eye sees of a
/// dithered picture from a distance.
Error BlockError(const RgbPicture& a, const RgbPicture& b) {
    Error error;
    int blocks = 0;
    for (int top = 0; top + 8 <= a.height; top += 8)
        for (int left = 0; left + 8 <= a.width; left += 8)
            for (int channel = 0; channel < 3; ++channel, ++blocks) {
                int sum = 0;
                for (int y = top; y < top + 8; ++y)
                    for (int x = left; x < left + 8; ++x) {
                        const std::size_t at = (static_cast<std::size_t>(y) * a.width + x) * 3;
                        sum += a.pixels[at + channel] - b.pixels[at + channel];
                    }
                const double off = std::abs(sum / 64.0);
                error.mean += off;
                error.largest = std::max(error.largest, off);
            }
    error.mean /= blocks;
    return error;
}

/// The colours that the display can show now.
std::vector<COLORREF> DisplayColors() {
    PALETTEENTRY entries[256];
    const Screen screen;
    const UINT count = GetSystemPaletteEntries(screen.dc, 0, 256, entries);
    std::vector<COLORREF> colors;
    for (UINT i = 0; i < count; ++i)
        colors.push_back(RGB(entries[i].peRed, entries[i].peGreen, entries[i].peBlue));
    return colors;
}

/// How many of a palette's colours the display can show now.
int Present(HPALETTE palette) {
    PALETTEENTRY entries[256];
    const UINT count = GetPaletteEntries(palette, 0, 256, entries);
    const auto colors = DisplayColors();
    int present = 0;
    for (UINT i = 0; i < count; ++i)
        present += std::count(colors.begin(), colors.end(),
                              RGB(entries[i].peRed, entries[i].peGreen, entries[i].peBlue)) > 0;
    return present;
}

bool IsToBePainted(const PictureBox& box) { return GetUpdateRect(box.handle(), nullptr, FALSE); }

class PaletteDisplay : public MainWindow98 {
 protected:
    PaletteDisplay() {
        Put(screen, Landscape(false));
        Store("DefaultLogoSet", TextValue("Red"));
    }

    void SetUp() override {
        ASSERT_EQ(GetSystemMetrics(SM_CXSCREEN), 640);
        ASSERT_EQ(GetSystemMetrics(SM_CYSCREEN), 480);
        ASSERT_TRUE(DisplayHasPalette());
    }

    /// Opens a window and lets it paint all that it shows.
    static void Open(Window& window) {
        ASSERT_TRUE(window.Create(nullptr));
        window.Show();
        ASSERT_TRUE(user::Activate(window.handle()));
        PumpMessages();
    }

    /// The screen as it would be on a display of true colours.
    RgbPicture Wanted(const PictureBox& box) const {
        return ReadPicturePreview(screen, box.ScaleWidth(), box.ScaleHeight())->picture;
    }

    const std::string screen = logos + "Red\\LOGO.SYS";
};

TEST_F(PaletteDisplay, KeepsThePreviewsColorsByDithering) {
    Principale main(locations);
    Open(main);
    const RgbPicture wanted = Wanted(main.Imag[0]);
    const Error dithered = BlockError(Shown(main.Imag[0]), wanted);
    user::TakeShot("preview-256-colours");
    const Error plain = BlockError(ShownPlainly(wanted), wanted);
    user::TakeShot("preview-256-colours-plain");
    EXPECT_LT(dithered.mean, 2);
    EXPECT_LT(dithered.largest, 8);
    EXPECT_GT(plain.mean, 4 * dithered.mean);
}

TEST_F(PaletteDisplay, KeepsTheActualSizeViewsColorsByDithering) {
    FrmView view(screen, false);
    Open(view);
    const Error error = BlockError(Shown(view.Preview), Wanted(view.Preview));
    user::TakeShot("actual-size-256-colours");
    EXPECT_LT(error.mean, 2);
    EXPECT_LT(error.largest, 8);
}

TEST_F(PaletteDisplay, KeepsTheColorsOfAPictureThatIsAdjusted) {
    FrmAdjust adjust({screen, {}, {}}, [] { return std::string(); });
    ASSERT_TRUE(adjust.ReadPicture());
    Open(adjust);
    const Error error = BlockError(Shown(adjust.ScreenBox), Wanted(adjust.ScreenBox));
    user::TakeShot("adjust-256-colours");
    EXPECT_LT(error.mean, 2);
    EXPECT_LT(error.largest, 12);
}

TEST_F(PaletteDisplay, KeepsTheColorsOfThumbnailsByDithering) {
    Store("Thumbnails", TextValue("1"));
    Principale main(locations);
    Open(main);
    user::TakeShot("thumbnails-256-colours");
    const RgbPicture wanted = ReadPicturePreview(screen, 96, 72)->picture;
    const Screen display;
    ASSERT_TRUE(preview::ReadyPicture(wanted).Paint(display.dc, 0, 0));
    const Error error = BlockError(Corner(96, 72), wanted);
    EXPECT_LT(error.mean, 2);
    EXPECT_LT(error.largest, 12);
}

TEST_F(PaletteDisplay, BringsAllItsColorsAndLeavesTheSystemsOwn) {
    const auto before = DisplayColors();
    Principale main(locations);
    Open(main);
    EXPECT_EQ(Present(DisplayPalette()), kDisplayColors);
    const auto after = DisplayColors();
    ASSERT_EQ(after.size(), 256u);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(after[i], before[i]);
        EXPECT_EQ(after[255 - i], before[255 - i]);
    }
}

TEST_F(PaletteDisplay, PaintsPicturesAnewWhenAnotherWindowChangedTheColors) {
    Principale main(locations);
    Open(main);
    const HWND other = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                       nullptr, nullptr);
    ASSERT_FALSE(IsToBePainted(main.Imag[0]));
    SendMessageA(main.handle(), WM_PALETTECHANGED, reinterpret_cast<WPARAM>(main.handle()), 0);
    EXPECT_FALSE(IsToBePainted(main.Imag[0]));
    SendMessageA(main.handle(), WM_PALETTECHANGED, reinterpret_cast<WPARAM>(main.Imag[1].handle()),
                 0);
    EXPECT_FALSE(IsToBePainted(main.Imag[0]));
    SendMessageA(main.handle(), WM_PALETTECHANGED, reinterpret_cast<WPARAM>(other), 0);
    EXPECT_TRUE(IsToBePainted(main.Imag[0]));
    DestroyWindow(other);
}

TEST_F(PaletteDisplay, PaintsPicturesAnewWhenItMayChooseTheColors) {
    Principale main(locations);
    Open(main);
    ASSERT_FALSE(IsToBePainted(main.Imag[0]));
    EXPECT_TRUE(SendMessageA(main.handle(), WM_QUERYNEWPALETTE, 0, 0));
    EXPECT_TRUE(IsToBePainted(main.Imag[0]));
}

TEST_F(PaletteDisplay, TakesItsColorsBackWhenTheUserReturns) {
    Principale main(locations);
    Open(main);
    {
        // A picture whose colours the system brings in as they are, 256 of its own.
        Put(screen, Landscape(true));
        FrmView view(screen, true);
        Open(view);
        ASSERT_LT(Present(DisplayPalette()), kDisplayColors / 2);
        // Behind it the main window paints with what is there.
        main.RepaintAll();
        PumpMessages();
        EXPECT_LT(Present(DisplayPalette()), kDisplayColors / 2);
        user::TakeShot("animation-256-colours");
    }
    ASSERT_TRUE(user::Activate(main.handle()));
    EXPECT_TRUE(WaitUntil([] { return Present(DisplayPalette()) == kDisplayColors; }));
}

/// How many of a screen's own colours the display can show now.
int PresentOf(const screen::IndexedScreen& screen) {
    const auto colors = DisplayColors();
    return static_cast<int>(
        std::count_if(screen.palette.begin(), screen.palette.end(), [&](const auto& c) {
            return std::count(colors.begin(), colors.end(), RGB(c[0], c[1], c[2])) > 0;
        }));
}

TEST_F(PaletteDisplay, ShowsAScreenAsAtStartInItsOwnColors) {
    Principale main(locations);
    Open(main);
    for (const bool animated : {true, false}) {
        ASSERT_TRUE(user::Activate(main.handle()));
        ASSERT_TRUE(WaitUntil([] { return Present(DisplayPalette()) == kDisplayColors; }));
        Put(screen, Landscape(animated));
        auto screens = boot_show::ReadScreens({{screen, boot_show::Colors::Move}});
        ASSERT_EQ(screens.size(), 1u);
        const screen::IndexedScreen own = screens[0];
        ASSERT_LT(PresentOf(own), 128);
        boot_show::FrmBootShow show(std::move(screens));
        Open(show);
        EXPECT_TRUE(WaitUntil([&] { return PresentOf(own) >= 230; })) << PresentOf(own);
        user::TakeShot("show-256-colours");
    }
}

TEST_F(PaletteDisplay, DithersTheSplashPicture) {
    frmSplash splash;
    Open(splash);
    const HANDLE bitmap =
        LoadImageA(GetModuleHandleA(nullptr), "SPLASH", IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    const HDC memory = CreateCompatibleDC(nullptr);
    const HGDIOBJ former = SelectObject(memory, bitmap);
    RgbPicture wanted{splash.SplashPicture.ScaleWidth(), splash.SplashPicture.ScaleHeight(), {}};
    for (int y = 0; y < wanted.height; ++y)
        for (int x = 0; x < wanted.width; ++x) {
            const COLORREF color = GetPixel(memory, x, y);
            wanted.pixels.insert(wanted.pixels.end(),
                                 {GetRValue(color), GetGValue(color), GetBValue(color)});
        }
    SelectObject(memory, former);
    DeleteDC(memory);
    DeleteObject(bitmap);
    const Error error = BlockError(Shown(splash.SplashPicture), wanted);
    user::TakeShot("splash-256-colours");
    EXPECT_LT(error.mean, 2);
    EXPECT_LT(error.largest, 12);
}

}  // namespace
}  // namespace vistrel::test
