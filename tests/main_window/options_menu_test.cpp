// The Options menu: its commands, their words, and what each does.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "tests/main_window/tool_words.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

// In their order.
constexpr ToolWords kTools[] = {
    {"ToolListView", ID_ToolListView, "View as &list", "", "Options"},
    {"ToolReportView", ID_ToolReportView, "View as &report", "", "Options"},
    {"ToolShowCurrent", ID_ToolShowCurrent, "Show current &logo setting",
     "Show current logo setting", "Options"},
    {"ToolRandom", ID_ToolRandom, "Rando&m Change", "Random change", "Options"},
    {"ToolPrefer", ID_ToolPrefer, "&Preferences...", "", "Options"},
    {"", 0, "", "", ""},
    {"ToolThumbnailView", ID_ToolThumbnailView, "View as &thumbnails", "", "Options"},
    {"ToolLargerThumbnails", ID_ToolLargerThumbnails, "Lar&ger thumbnails\tCtrl++", "", "Options"},
    {"ToolSmallerThumbnails", ID_ToolSmallerThumbnails, "&Smaller thumbnails\tCtrl+-", "",
     "Options"},
    {"ToolDetailsView", ID_ToolDetailsView, "View as &details", "", "Options"},
};

using OptionsMenu = Commanding;

TEST_F(OptionsMenu, HasItsCommandsInTheirOrderAndWords) {
    WithMainWindow([&](Principale& main) { ExpectTools(main, 1, kTools); });
}

TEST_F(OptionsMenu, TheViewsExcludeEachOtherInEveryMenu) {
    const struct {
        int id;
        LONG style;
    } rows[] = {{ID_ToolReportView, LVS_REPORT},
                {ID_ToolListView, LVS_LIST},
                {ID_ItmViewType + 1, LVS_REPORT},
                {ID_ItmViewType, LVS_LIST}};
    WithMainWindow([&](Principale& main) {
        const auto checked = [&](unsigned id) {
            return seen::RowOf(GetMenu(main.handle()), id).checked;
        };
        for (const auto& row : rows) {
            const bool report = row.style == LVS_REPORT;
            Command(main, row.id);
            EXPECT_EQ(GetWindowLongA(main.MyList.handle(), GWL_STYLE) & LVS_TYPEMASK, row.style);
            EXPECT_EQ(checked(ID_ToolReportView), report) << row.id;
            EXPECT_EQ(checked(ID_ToolListView), !report) << row.id;
            RECT r{};
            GetClientRect(main.handle(), &r);
            POINT corner{r.right - 2, r.bottom - 2};
            ClientToScreen(main.handle(), &corner);
            user::RightClickAt(corner);
            const HMENU menu = user::WaitForPopUp();
            EXPECT_EQ(seen::RowOf(menu, ID_ItmViewType + 1).checked, report) << row.id;
            EXPECT_EQ(seen::RowOf(menu, ID_ItmViewType).checked, !report) << row.id;
            user::Press(VK_ESCAPE);
            EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));
        }
    });
}

TEST_F(OptionsMenu, ShowCurrentTurnsTheViewAndTheRealMarks) {
    WithMainWindow([&](Principale& main) {
        for (const bool shown : {true, false}) {
            Command(main, ID_ToolShowCurrent);
            EXPECT_EQ(main.DefaultLogo.Text(), shown ? "Current logo setting" : "Blue");
            EXPECT_EQ(seen::ButtonOf(main.ActiveBar1.bar(), ID_ToolShowCurrent).checked, shown);
            EXPECT_EQ(seen::RowOf(GetMenu(main.handle()), ID_ToolShowCurrent).checked, shown);
        }
    });
}

TEST_F(OptionsMenu, RandomChangeInstallsAnotherSet) {
    ForEach({ID_ToolRandom, ID_ItmRandomSpin}, [&](Principale& main, int id) {
        const std::string before = main.DefaultLogo.Text();
        Command(main, id);
        EXPECT_NE(main.DefaultLogo.Text(), before);
    });
}

TEST_F(OptionsMenu, PreferencesOpen) { ExpectOpens({ID_ToolPrefer, ID_ItmPref}, "FrmOptions"); }

TEST_F(OptionsMenu, TheDrivesOfTheStartupLogoAreMarkedAndChosen) {
    WithMainWindow([&](Principale& main) {
        main.Preferences().bootRoot = "X:\\";
        Command(main, ID_ItmDriveList + 1);
        EXPECT_EQ(main.Preferences().bootRoot, "C:\\");
        Command(main, ID_ItmDriveList);
        EXPECT_EQ(main.Preferences().bootRoot, "C:\\");
        main.Preferences().bootRoot = boot;
    });
}

TEST_F(OptionsMenu, TheMenuOfTheDrivesHasEachFixedOneOnceAndMarksThatOfTheStartupLogo) {
    WithMainWindow([&](Principale& main) {
        RECT r{};
        GetClientRect(main.handle(), &r);
        POINT corner{r.right - 4, r.bottom - 4};
        ClientToScreen(main.handle(), &corner);
        for (const char* root : {"C:\\", "d:\\"}) {
            main.Preferences().bootRoot = root;
            user::RightClickAt(corner);
            const HMENU menu = user::WaitForPopUp();
            const HMENU drives = seen::RowsOf(menu).at(9).opens;
            // From the end, past the details and the thumbnails.
            user::Press(VK_UP);
            user::Press(VK_UP);
            user::Press(VK_UP);
            user::Press(VK_RIGHT);
            EXPECT_TRUE(WaitUntil([&] {
                const auto rows = seen::RowsOf(drives);
                return !rows.empty() && rows[0].checked == (*root == 'C');
            }));
            std::string letters;
            std::string marked;
            for (const seen::MenuRow& row : seen::RowsOf(drives)) {
                letters += row.text;
                if (row.checked) marked += row.text;
            }
            // A is a floppy disk drive here, E a CD-ROM drive and N a network drive.
            EXPECT_EQ(letters, "CDZ");
            EXPECT_EQ(marked, *root == 'C' ? "C" : "D");
            user::Press(VK_ESCAPE);
            user::Press(VK_ESCAPE);
            EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));
        }
        main.Preferences().bootRoot = boot;
    });
}

}  // namespace
}  // namespace vistrel::test
