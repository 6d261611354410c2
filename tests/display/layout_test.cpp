// Looks through every window for text that is cut off and controls that stand in each other's way.
#include <windows.h>
// The others need windows.h first.
#include <commctrl.h>

#include "about/frm_about_reg.h"
#include "about/frm_splash.h"
#include "adjust/frm_adjust.h"
#include "adjust/frm_many_sets.h"
#include "animate/frm_animate.h"
#include "animate/read_screen.h"
#include "controls/screen_metrics.h"
#include "editor/select_picture_form.h"
#include "main_window/frm_progress.h"
#include "main_window/frm_view.h"
#include "options/frm_options.h"
#include "pictures/preview/draw_letters.h"
#include "tests/pictures/screen/broken_screens.h"
#include "tests/support/main_window/main_window_fixture.h"

namespace vistrel::test {

using namespace adjust;
using namespace animate;
using namespace preview;

using namespace about;
using namespace controls;
using namespace editor;
using namespace main_window;
using namespace options;

namespace {

/// What a control shows beside its text: the box of a check box, the edge of a push button.
constexpr int kMarkAndGap = 18;
constexpr int kPushButtonEdges = 10;

std::vector<HWND> VisibleChildren(HWND window) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (IsWindowVisible(child)) children.push_back(child);
    return children;
}

RECT PlaceOf(HWND child) {
    RECT r{};
    GetWindowRect(child, &r);
    MapWindowPoints(nullptr, GetParent(child), reinterpret_cast<POINT*>(&r), 2);
    return r;
}

SIZE RoomIn(HWND window) {
    RECT r{};
    GetClientRect(window, &r);
    return {r.right, r.bottom};
}

std::string NameOf(HWND child) {
    const RECT r = PlaceOf(child);
    return user::ClassOf(child) + " " + std::to_string(GetDlgCtrlID(child)) + " \"" +
           user::TextOf(child) + "\" at " + std::to_string(r.left) + "," + std::to_string(r.top) +
           " size " + std::to_string(r.right - r.left) + "," + std::to_string(r.bottom - r.top);
}

/// The room that a control's text takes in the control's own font, with lines broken at this width
/// where that is not 0.
SIZE TextSize(HWND control, const std::string& text, int width) {
    const HDC dc = GetDC(control);
    const HGDIOBJ former =
        SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageA(control, WM_GETFONT, 0, 0)));
    RECT r{0, 0, width, 0};
    const UINT breaking = width ? DT_WORDBREAK : DT_SINGLELINE;
    const UINT access = GetWindowLongA(control, GWL_STYLE) & SS_NOPREFIX ? DT_NOPREFIX : 0;
    const bool isStatic = user::ClassOf(control) == "Static";
    DrawTextA(dc, text.c_str(), -1, &r, DT_CALCRECT | breaking | (isStatic ? access : 0));
    SelectObject(dc, former);
    ReleaseDC(control, dc);
    return {r.right, r.bottom};
}

void CheckText(HWND control) {
    const std::string kind = user::ClassOf(control);
    const DWORD style = static_cast<DWORD>(GetWindowLongA(control, GWL_STYLE));
    const SIZE room = RoomIn(control);
    if (kind == "Static" && (style & SS_TYPEMASK) <= SS_RIGHT && !(style & SS_PATHELLIPSIS)) {
        const SIZE text = TextSize(control, user::TextOf(control), room.cx);
        EXPECT_LE(text.cx, room.cx) << NameOf(control);
        EXPECT_LE(text.cy, room.cy) << NameOf(control);
    }
    if (kind == "Button") {
        const SIZE text = TextSize(control, user::TextOf(control), 0);
        const DWORD type = style & 0xf;
        const bool push = type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON;
        EXPECT_LE(text.cx + (push ? kPushButtonEdges : kMarkAndGap), room.cx) << NameOf(control);
        EXPECT_LE(text.cy + (push ? 6 : 0), room.cy) << NameOf(control);
    }
    if (kind == "Edit") {
        EXPECT_LE(TextSize(control, "Ag", 0).cy, room.cy) << NameOf(control);
    }
    if (kind == TOOLBARCLASSNAMEA) {
        RECT last{};
        SendMessageA(control, TB_GETITEMRECT,
                     static_cast<WPARAM>(SendMessageA(control, TB_BUTTONCOUNT, 0, 0) - 1),
                     reinterpret_cast<LPARAM>(&last));
        EXPECT_LE(last.right, room.cx) << NameOf(control);
        EXPECT_LE(last.bottom, room.cy) << NameOf(control);
    }
}

/// Controls that others stand on.
bool IsGround(HWND control) {
    const std::string kind = user::ClassOf(control);
    const LONG style = GetWindowLongA(control, GWL_STYLE);
    return kind == WC_TABCONTROLA || (kind == "Button" && (style & 0xf) == BS_GROUPBOX) ||
           (kind == "Static" && ((style & SS_TYPEMASK) == SS_ETCHEDFRAME)) ||
           (kind == "Static" && (GetWindowLongA(control, GWL_EXSTYLE) & WS_EX_STATICEDGE)) ||
           (kind == "Static" && user::TextOf(control).empty() &&
            GetDlgCtrlID(control) >= ID_MyFrame && GetDlgCtrlID(control) < ID_MyFrame + 5);
}

bool IsSeeThrough(HWND control) {
    return (GetWindowLongA(control, GWL_EXSTYLE) & WS_EX_TRANSPARENT) != 0;
}

bool IsWithin(const RECT& inner, const RECT& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

void Check(HWND window) {
    const SIZE room = RoomIn(window);
    const RECT inside{0, 0, room.cx, room.cy};
    const auto children = VisibleChildren(window);
    for (HWND child : children) {
        CheckText(child);
        const RECT place = PlaceOf(child);
        EXPECT_TRUE(IsWithin(place, inside))
            << NameOf(child) << " in " << room.cx << "," << room.cy;
        for (HWND other : children) {
            if (other >= child) continue;
            const RECT beside = PlaceOf(other);
            RECT common{};
            if (!IntersectRect(&common, &place, &beside)) continue;
            const bool stands =
                (IsWithin(place, beside) && (IsGround(other) || IsSeeThrough(child))) ||
                (IsWithin(beside, place) && (IsGround(child) || IsSeeThrough(other)));
            EXPECT_TRUE(stands) << NameOf(child) << " and " << NameOf(other);
        }
    }
    RECT whole{};
    GetWindowRect(window, &whole);
    const RECT screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    EXPECT_TRUE(IsWithin(whole, screen)) << NameOf(window);
}

class Layout : public MainWindow98 {
 protected:
    Layout() { Store("DefaultLogoSet", TextValue("Red")); }

    static void Open(Window& window) {
        ASSERT_TRUE(window.Create(nullptr));
        window.Show();
        PumpMessages();
    }
    /// Checks a window as it is now; its picture is called after the state.
    static void Look(Window& window, const std::string& state) {
        PumpMessages();
        SCOPED_TRACE(state);
        Check(window.handle());
        user::TakeShot(state + "-" + std::to_string(PixelsPerInch()));
    }
};

/// The dots of an inch that the machine is set to.
int PixelsPerInchInTheRegistry() {
    HKEY desktop = nullptr;
    DWORD pixels = 0;
    DWORD size = sizeof pixels;
    RegOpenKeyExA(HKEY_CURRENT_USER, "Control Panel\\Desktop", 0, KEY_READ, &desktop);
    RegQueryValueExA(desktop, "LogPixels", nullptr, nullptr, reinterpret_cast<BYTE*>(&pixels),
                     &size);
    RegCloseKey(desktop);
    return pixels ? static_cast<int>(pixels) : 96;
}

// Where a program is shown another screen than there is, as newer systems do unless told not to,
// the other tests would look at the wrong thing.
TEST_F(Layout, IsSeenOnTheScreenThatThereIs) {
    EXPECT_EQ(PixelsPerInch(), PixelsPerInchInTheRegistry());
    EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), PixelsPerInch() == 96 ? 640 : 800);
}

TEST_F(Layout, OfTheMainWindow) {
    Principale main(locations);
    Open(main);
    Look(main, "main-list");
    Command(main, ID_ItmViewType + 1);
    Look(main, "main-report");
    Command(main, ID_ItmThumbnailView);
    Look(main, "main-thumbnails");
    Command(main, ID_ItmDetailsView);
    Look(main, "main-details");
    main.FindBox.SetText("e");
    Look(main, "main-finding");
    Command(main, ID_ItmViewType + 1);
    PutScreens(boot, "installed");
    main.Preferences().bootRoot = boot;
    Command(main, ID_ToolShowCurrent);
    ASSERT_EQ(main.DefaultLogo.Text(), "Current logo setting");
    Look(main, "main-installed");
}

TEST_F(Layout, OfTheMainWindowWhileSetsAreCompared) {
    Principale main(locations);
    Open(main);
    main.LblDoing.SetText("Comparing sets with the installed screens: 100 %");
    main.BtnStopLooking.SetVisible(true);
    SetWindowPos(main.handle(), nullptr, 0, 0, 520, 400, SWP_NOZORDER);
    Look(main, "main-comparing");
}

TEST_F(Layout, OfTheProgress) {
    FrmProgress progress(nullptr, "Unpacking sunsets.zip...");
    Open(progress);
    progress.WorkBar.SetValue(40);
    Look(progress, "progress");
}

TEST_F(Layout, OfTheMainWindowWithAScreenThatWouldFlash) {
    std::string file = ScreenFile(255, 0, 0);
    file[51] = 1;  // 256 where the first moving colour belongs
    Put(logos + "Red\\LOGO.SYS", file);
    Principale main(locations);
    Open(main);
    ASSERT_NE(main.LblFaults.Text(), "");
    Look(main, "main-faults");
}

TEST_F(Layout, OfTheMainWindowWithThreeScreensThatWindowsWouldNotShow) {
    Principale main(locations);
    Open(main);
    for (const BrokenScreen& broken : BrokenScreens()) {
        for (const char* name : {"LOGO.SYS", "LOGOW.SYS", "LOGOS.SYS"})
            Put(logos + "Red\\" + name, std::string(broken.file.begin(), broken.file.end()));
        const std::string fault = screen::InWords(broken.fault);
        Command(main, ID_ItmRefresh);
        for (const char* name : {"LOGO.SYS", "LOGOW.SYS", "LOGOS.SYS"})
            EXPECT_NE(main.LblFaults.Text().find(name), std::string::npos) << fault;
        Look(main, "main-faults-" + std::to_string(static_cast<int>(broken.fault)));
    }
    SetWindowPos(main.handle(), nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
    Look(main, "main-faults-smallest");
}

TEST_F(Layout, OfTheMainWindowAtItsSmallest) {
    Principale main(locations);
    Open(main);
    SetWindowPos(main.handle(), nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
    Look(main, "main-smallest");
}

TEST_F(Layout, OfTheLogoBrowser) {
    Principale main(locations);
    Open(main);
    SelPictureForm editor(main);
    Open(editor);
    // The longest that it ever says.
    editor.ImageInfo.SetText("32767 x  32767 x  4294967296");
    Look(editor, "editor-complete");
    SendMessageA(editor.OptDefShut.handle(), BM_CLICK, 0, 0);
    Look(editor, "editor-default");
    SendMessageA(editor.OptOnlyStart.handle(), BM_CLICK, 0, 0);
    Look(editor, "editor-single");
    SetWindowPos(editor.handle(), nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
    Look(editor, "editor-smallest");
    SendMessageA(editor.OptCompSet.handle(), BM_CLICK, 0, 0);
    Look(editor, "editor-smallest-complete");
}

TEST_F(Layout, OfThePreferences) {
    Principale main(locations);
    ASSERT_TRUE(main.Create(nullptr));
    FrmOptions options(main);
    Open(options);
    for (int page = 0; page < 5; ++page) {
        SendMessageA(options.TabStrip1.handle(), TCM_SETCURFOCUS, static_cast<WPARAM>(page), 0);
        Look(options, "preferences-" + std::to_string(page));
    }
}

TEST_F(Layout, OfAdjustingAPicture) {
    TextLine line;
    line.text = "A line that is much longer than the list is wide";
    // What is missing would be told by a box.
    line.font.face = FaceFor(line.font.face);
    FrmAdjust adjust({logos + "Blue\\LOGO.SYS", {}, {line}}, [] { return std::string(); });
    ASSERT_TRUE(adjust.ReadPicture());
    Open(adjust);
    for (int page = 0; page < 3; ++page) {
        SendMessageA(adjust.AdjustPages.handle(), TCM_SETCURFOCUS, static_cast<WPARAM>(page), 0);
        Look(adjust, "adjust-" + std::to_string(page));
    }
}

TEST_F(Layout, OfMovingColors) {
    Put(root + "moving.sys", ScreenFile(0, 128, 0, 236));
    FrmAnimate animate(
        *BeginDocument(*ReadScreen(root + "moving.sys"), std::nullopt), logos,
        [](platform::WindowHandle, const std::vector<std::uint8_t>&) { return true; });
    Open(animate);
    for (const int kind : {0, 1, 2}) {
        SendMessageA(animate.handle(), WM_COMMAND, static_cast<WPARAM>(ID_AddLayer + kind), 0);
        Look(animate, "moving-kind-" + std::to_string(kind));
    }
    // The longest hint.
    animate.ChooseBy.SetListIndex(2);
    SendMessageA(animate.handle(), WM_COMMAND, MAKEWPARAM(ID_ChooseBy, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(animate.ChooseBy.handle()));
    for (int page = 0; page < 3; ++page) {
        SendMessageA(animate.MovingPages.handle(), TCM_SETCURFOCUS, static_cast<WPARAM>(page), 0);
        Look(animate, "moving-" + std::to_string(page));
    }
}

TEST_F(Layout, OfMakingManySets) {
    FrmManySets many(logos, {logos + "Blue\\LOGO.SYS"});
    Open(many);
    Look(many, "many");
}

TEST_F(Layout, OfTheAboutBox) {
    FrmAboutReg about;
    Open(about);
    Look(about, "about");
}

TEST_F(Layout, OfTheSplashScreen) {
    frmSplash splash;
    Open(splash);
    Look(splash, "splash");
}

TEST_F(Layout, OfTheActualSizeView) {
    FrmView view(logos + "Blue\\LOGO.SYS", false);
    Open(view);
    Look(view, "view");
}

}  // namespace
}  // namespace vistrel::test
