// What the main window keeps: the user's place in the list, and its own look over restarts.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "controls/screen_metrics.h"
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

class ListPlaceKept : public MainWindow98 {
 protected:
    ListPlaceKept() {
        for (int i = 100; i < 300; ++i) MakeFolders(logos + "Set " + std::to_string(i) + "\\");
    }
    /// Selects a set in the middle of a list that is scrolled to it.
    static void GoToTheMiddle(Principale& main) {
        main.SelItem("Set 299");
        main.SelItem("Set 180");
        ASSERT_GT(main.MyList.TopItem(), 20);
    }
    /// Does something that reads the list anew and finds everything where it was.
    void ExpectKept(const std::function<void(Principale& main)>& reading) {
        for (const int view : {ID_ItmViewType, ID_ItmViewType + 1}) {
            WithMainWindow([&](Principale& main) {
                Command(main, view);
                GoToTheMiddle(main);
                const auto top = SendMessageA(main.MyList.handle(), LVM_GETTOPINDEX, 0, 0);
                MakeFolders(logos + "Zebra " + std::to_string(view) + "\\");
                const int count = main.MyList.Count();
                reading(main);
                EXPECT_EQ(main.MyList.Count(), count + 1);
                EXPECT_EQ(Selected(main), "Set 180");
                EXPECT_EQ(main.Imag[0].Tag(), logos + "Set 180\\LOGO.SYS");
                EXPECT_EQ(SendMessageA(main.MyList.handle(), LVM_GETTOPINDEX, 0, 0), top);
            });
        }
    }
};

TEST_F(ListPlaceKept, OverARefresh) {
    ExpectKept([&](Principale& main) { Command(main, ID_ToolRefresh); });
}

TEST_F(ListPlaceKept, OverTheLogoBrowserThatReadsTheListAnew) {
    ExpectKept([&](Principale& main) {
        StartCommand(main, ID_ToolBrowser);
        const HWND editor = user::WaitForTop("SelPictureForm");
        ASSERT_NE(editor, nullptr);
        // As the browser does when it closes after a change.
        main.LeggiDatiDisco();
        EXPECT_EQ(Selected(main), "Blue");
        PostMessageA(editor, WM_CLOSE, 0, 0);
        if (user::WaitForBox(0, 500).window) user::AnswerBox(IDYES);
        EXPECT_TRUE(user::WaitUntilGone(editor));
        EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(main.handle()) != 0; }));
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "Set 180"; }));
        Settle(main);
    });
}

TEST_F(ListPlaceKept, OverARefreshWhileTheInstalledScreensAreShown) {
    WithMainWindow([&](Principale& main) {
        GoToTheMiddle(main);
        Command(main, ID_ToolShowCurrent);
        Command(main, ID_ItmRefresh);
        EXPECT_EQ(Selected(main), "");
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(Selected(main), "Set 180");
    });
}

TEST_F(ListPlaceKept, OverAChangeOfView) {
    WithMainWindow([&](Principale& main) {
        GoToTheMiddle(main);
        for (const int view : {ID_ToolReportView, ID_ToolListView}) {
            Command(main, view);
            EXPECT_EQ(Selected(main), "Set 180");
            RECT item{};
            RECT list{};
            item.left = LVIR_ICON;
            SendMessageA(main.MyList.handle(), LVM_GETITEMRECT,
                         static_cast<WPARAM>(main.MyList.SelectedItem()),
                         reinterpret_cast<LPARAM>(&item));
            GetClientRect(main.MyList.handle(), &list);
            EXPECT_GE(item.left, 0);
            EXPECT_GE(item.top, 0);
            EXPECT_LE(item.right, list.right);
            EXPECT_LE(item.bottom, list.bottom);
        }
    });
}

TEST_F(ListPlaceKept, SelectsTheInstalledSetWhereTheSelectedOneIsGone) {
    WithMainWindow([&](Principale& main) {
        GoToTheMiddle(main);
        RemoveTree(logos + "Set 180");
        Command(main, ID_ToolRefresh);
        EXPECT_EQ(Selected(main), "Blue");
        EXPECT_EQ(MiddleOf(main.Imag[0]), kBlueScreen);
    });
}

class Report : public MainWindow98 {
 protected:
    /// How wide the real column is.
    static LRESULT Column(Principale& main) {
        return SendMessageA(main.MyList.handle(), LVM_GETCOLUMNWIDTH, 0, 0);
    }
    static RECT Room(Principale& main) {
        RECT r{};
        GetClientRect(main.MyList.handle(), &r);
        return r;
    }
    static bool HasBar(Principale& main, LONG bar) {
        return (GetWindowLongA(main.MyList.handle(), GWL_STYLE) & bar) != 0;
    }
    void ExpectFilled(Principale& main, bool scrolls) {
        EXPECT_EQ(Column(main), Room(main).right);
        EXPECT_FALSE(HasBar(main, WS_HSCROLL));
        EXPECT_EQ(HasBar(main, WS_VSCROLL), scrolls);
    }
};

TEST_F(Report, HasOneColumnWithoutAStubOrANeedlessScrollBar) {
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ToolReportView);
        ExpectFilled(main, false);
        char heading[64] = "";
        LVCOLUMNA column{};
        column.mask = LVCF_TEXT;
        column.pszText = heading;
        column.cchTextMax = sizeof heading;
        SendMessageA(main.MyList.handle(), LVM_GETCOLUMNA, 0, reinterpret_cast<LPARAM>(&column));
        EXPECT_STREQ(heading, "Logoset name");
        EXPECT_EQ(SendMessageA(main.MyList.handle(), LVM_GETCOLUMNA, 1,
                               reinterpret_cast<LPARAM>(&column)),
                  FALSE);

        for (const int width : {900, 560, 700}) {
            SetWindowPos(main.handle(), nullptr, 0, 0, width, 450, SWP_NOZORDER);
            Settle(main);
            ExpectFilled(main, false);
        }
        for (int i = 0; i < 60; ++i) MakeFolders(logos + "Set " + std::to_string(i) + "\\");
        Command(main, ID_ToolRefresh);
        ExpectFilled(main, true);
        Command(main, ID_ToolListView);
        Command(main, ID_ToolReportView);
        ExpectFilled(main, true);
        user::TakeShot("report_scrolls");
        for (int i = 0; i < 60; ++i) RemoveTree(logos + "Set " + std::to_string(i));
        Command(main, ID_ToolRefresh);
        ExpectFilled(main, false);
    });
}

TEST_F(Report, BeginsWithAColumnOfTheListsWidthLess600Twips) {
    WithMainWindow([&](Principale& main) {
        RECT template_{0, 0, 180, 0};
        MapDialogRect(main.handle(), &template_);
        const auto header =
            reinterpret_cast<HWND>(SendMessageA(main.MyList.handle(), LVM_GETHEADER, 0, 0));
        HDITEMA item{};
        item.mask = HDI_WIDTH;
        SendMessageA(header, HDM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(item.cxy, template_.right - 600 * PixelsPerInch() / 1440);
    });
}

class WindowKept : public MainWindow98 {
 protected:
    static RECT PlaceOf(Principale& main) {
        RECT r{};
        GetWindowRect(main.handle(), &r);
        return r;
    }
};

TEST_F(WindowKept, ReturnsToItsPlaceAndSize) {
    WithMainWindow([&](Principale& main) {
        SetWindowPos(main.handle(), nullptr, 37, 51, 655, 470, SWP_NOZORDER);
        Settle(main);
    });
    EXPECT_EQ(Stored("WindowLeft"), SavedText("37"));
    EXPECT_EQ(Stored("WindowTop"), SavedText("51"));
    EXPECT_EQ(Stored("WindowWidth"), SavedText("655"));
    EXPECT_EQ(Stored("WindowHeight"), SavedText("470"));
    WithMainWindow([&](Principale& main) {
        const RECT r = PlaceOf(main);
        EXPECT_EQ(r.left, 37);
        EXPECT_EQ(r.top, 51);
        EXPECT_EQ(r.right - r.left, 655);
        EXPECT_EQ(r.bottom - r.top, 470);
    });
}

TEST_F(WindowKept, ReturnsMaximisedAndKeepsTheSizeBeneath) {
    WithMainWindow([&](Principale& main) {
        SetWindowPos(main.handle(), nullptr, 37, 51, 655, 470, SWP_NOZORDER);
        ShowWindow(main.handle(), SW_MAXIMIZE);
        Settle(main);
    });
    EXPECT_EQ(Stored("WindowMaximized"), SavedText("1"));
    WithMainWindow([&](Principale& main) {
        EXPECT_TRUE(IsZoomed(main.handle()));
        ShowWindow(main.handle(), SW_RESTORE);
        Settle(main);
        const RECT r = PlaceOf(main);
        EXPECT_EQ(r.left, 37);
        EXPECT_EQ(r.right - r.left, 655);
    });
    EXPECT_EQ(Stored("WindowMaximized"), SavedText("0"));
}

TEST_F(WindowKept, ComesBackOntoAScreenThatIsSmallerNow) {
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    const struct {
        const char* left;
        const char* top;
        const char* width;
        const char* height;
    } places[] = {{"3000", "2000", "700", "500"},
                  {"-2000", "-900", "700", "500"},
                  {"10", "10", "5000", "4000"},
                  {"garbage", "-32768", "1", "-5"}};
    for (const auto& place : places) {
        Store("WindowLeft", TextValue(place.left));
        Store("WindowTop", TextValue(place.top));
        Store("WindowWidth", TextValue(place.width));
        Store("WindowHeight", TextValue(place.height));
        WithMainWindow([&](Principale& main) {
            const RECT r = PlaceOf(main);
            EXPECT_GE(r.left, 0) << place.left;
            EXPECT_GE(r.top, 0) << place.top;
            EXPECT_LE(r.right, width) << place.width;
            EXPECT_LE(r.bottom, height) << place.height;
            EXPECT_GE(r.right - r.left, 520) << place.width;
            EXPECT_GE(r.bottom - r.top, 400) << place.height;
        });
    }
}

TEST_F(WindowKept, StandsInTheMiddleOfTheScreenAtTheFirstStart) {
    WithMainWindow([&](Principale& main) {
        const RECT r = PlaceOf(main);
        EXPECT_NEAR(r.left + r.right, GetSystemMetrics(SM_CXSCREEN), 2);
    });
}

TEST_F(WindowKept, RemembersTheMarkOfTheAnimation) {
    const auto mark = [](Principale& main) {
        return seen::RowOf(main.OpenWithMenu(), ID_ItmAnimate).checked;
    };
    WithMainWindow([&](Principale& main) {
        EXPECT_FALSE(mark(main));
        Command(main, ID_ItmAnimate);
        EXPECT_TRUE(mark(main));
    });
    EXPECT_EQ(Stored("AutoshowAnimation"), SavedText("1"));
    WithMainWindow([&](Principale& main) {
        EXPECT_TRUE(mark(main));
        Command(main, ID_ItmAnimate);
    });
    EXPECT_EQ(Stored("AutoshowAnimation"), SavedText("0"));
    WithMainWindow([&](Principale& main) { EXPECT_FALSE(mark(main)); });
}

}  // namespace
}  // namespace vistrel::test
