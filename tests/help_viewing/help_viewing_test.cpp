// The help in the system's help viewer: what a user gets to see of it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "help/context_numbers.h"
#include "platform/help_viewer.h"
#include "tests/support/user/user.h"

namespace vistrel {

using namespace platform;

namespace {

using testing::HasSubstr;

// Of Wine's viewer. Its pop-up windows are of the same class and have the same title.
constexpr char kViewerClass[] = "MS_WINHELP";
constexpr char kTextClass[] = "RichEdit20A";
constexpr COLORREF kLinkColour = RGB(0, 128, 0);

BOOL CALLBACK KeepTextWindow(HWND window, LPARAM result) {
    if (user::ClassOf(window) != kTextClass) return TRUE;
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

HWND TextWindow(HWND viewer) {
    HWND found = nullptr;
    EnumChildWindows(viewer, KeepTextWindow, reinterpret_cast<LPARAM>(&found));
    return found;
}

std::string ShownText(HWND viewer) {
    HWND window = TextWindow(viewer);
    return window == nullptr ? "" : user::TextOf(window);
}

// Where the first point of this colour is in what the screen shows of a window.
std::optional<POINT> FindColour(HWND window, COLORREF colour) {
    RECT area;
    GetClientRect(window, &area);
    POINT corner = {0, 0};
    ClientToScreen(window, &corner);
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, area.right, area.bottom);
    HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, area.right, area.bottom, screen, corner.x, corner.y, SRCCOPY);
    std::optional<POINT> found;
    for (int y = 0; y < area.bottom && !found; ++y)
        for (int x = 0; x < area.right && !found; ++x)
            if (GetPixel(memory, x, y) == colour) found = POINT{corner.x + x, corner.y + y};
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return found;
}

class HelpViewing : public testing::Test {
 protected:
    HelpViewing() {
        char folder[MAX_PATH] = "";
        GetCurrentDirectoryA(sizeof folder, folder);
        file_ = std::string(folder) + "\\vistrl.hlp";
        owner_ =
            CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    }
    ~HelpViewing() override {
        ShowHelp(owner_, file_, HelpCommand::Quit, 0);
        EXPECT_TRUE(WaitUntil([] { return Viewer() == nullptr; }));
        DestroyWindow(owner_);
    }

    static HWND Viewer() { return user::FindTop(kViewerClass, "Vistrel Help"); }

    // Asks for help and waits until the viewer shows a text that starts like this.
    void ShowAndWait(HelpCommand command, unsigned long number, const std::string& start) {
        ASSERT_TRUE(ShowHelp(owner_, file_, command, number));
        EXPECT_TRUE(WaitUntil([&] { return Shows(Viewer(), start); }))
            << "number " << number << " shows: " << ShownText(Viewer());
    }

    // Clicks the first link that the window shows, and again as long as nothing comes of it: the
    // text is there some time before it is painted.
    template <typename Condition>
    static bool ClickFirstLinkUntil(HWND viewer, Condition condition) {
        for (int attempt = 0; attempt < 10; ++attempt) {
            std::optional<POINT> link;
            if (!user::Activate(viewer)) return false;
            if (!WaitUntil([&] {
                    return (link = FindColour(TextWindow(viewer), kLinkColour)).has_value();
                }))
                return false;
            user::ClickAt(*link);
            if (WaitUntil(condition, 4000)) return true;
        }
        return false;
    }

    static bool Shows(HWND viewer, const std::string& start) {
        return ShownText(viewer).rfind(start, 0) == 0;
    }

    std::string file_;
    HWND owner_;
};

TEST_F(HelpViewing, IndexShowsTheContents) {
    ShowAndWait(HelpCommand::Index, 0, "Vistrel Help");
    EXPECT_THAT(ShownText(Viewer()), HasSubstr("First steps"));
    EXPECT_TRUE(
        WaitUntil([] { return FindColour(TextWindow(Viewer()), kLinkColour).has_value(); }));
    user::TakeShot("help_index");
}

TEST_F(HelpViewing, NumberThirtyShowsTheTutorial) {
    ShowAndWait(HelpCommand::Context, help_number::Tutorial, "Tutorial: your first logo set");
    EXPECT_THAT(ShownText(Viewer()), HasSubstr("Part 2: Make a set"));
    user::TakeShot("help_tutorial");
}

TEST_F(HelpViewing, LinkLeadsToItsTopic) {
    ShowAndWait(HelpCommand::Index, 0, "Vistrel Help");
    HWND viewer = Viewer();
    EXPECT_TRUE(ClickFirstLinkUntil(viewer, [&] { return Shows(viewer, "What Vistrel does"); }));
    user::TakeShot("help_topic");
}

TEST_F(HelpViewing, PopupLinkShowsTheWordsMeaning) {
    ShowAndWait(HelpCommand::Index, 0, "Vistrel Help");
    HWND viewer = Viewer(), popup = nullptr;
    ASSERT_TRUE(ClickFirstLinkUntil(viewer, [&] { return Shows(viewer, "What Vistrel does"); }));
    ASSERT_TRUE(ClickFirstLinkUntil(viewer, [&] {
        popup = user::FindTop(kViewerClass);
        return popup != viewer && Shows(popup, "startup screen: the picture that Windows shows");
    }));
    EXPECT_TRUE(Shows(viewer, "What Vistrel does"));
    user::TakeShot("help_popup");
}

struct NumberedHelp {
    unsigned long number;
    const char* start;
};

// The viewer here does not show pop-ups of numbers; their topics are shown in its window instead.
TEST_F(HelpViewing, NumbersOfControlsShowTheirTopics) {
    const NumberedHelp numbers[] = {
        {help_number::ActiveStart, "Click to choose whether Windows shows a startup screen."},
        {help_number::TxtLogoPath, "The folder that holds all your logo sets."},
        {help_number::OptOpen[1], "A click on a picture opens it in Paint"},
        {help_number::StartUpAction[1], "Every time Windows starts, Shufflet"},
        {help_number::ImgPreview[2], "The shutdown screen of the set, LOGOS.SYS"},
        {help_number::CloseButton, "Closes the Logo browser."},
        {help_number::DefaultLogo, "The logo set that was last put in place."},
        {help_number::NumLogo, "The number of logo sets"}};
    for (const NumberedHelp& help : numbers)
        ShowAndWait(HelpCommand::Context, help.number, help.start);
}

}  // namespace
}  // namespace vistrel
