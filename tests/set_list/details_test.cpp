// The list of sets seen with columns of details.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <algorithm>

#include "platform/fault.h"
#include "platform/file_time.h"
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

class DetailsView : public MainWindow98 {
 protected:
    void WithDetails(const std::function<void(Principale& main)>& user) {
        Store("Details", TextValue("1"));
        WithMainWindow(user);
    }

    static HWND HeaderOf(Principale& main) {
        return reinterpret_cast<HWND>(SendMessageA(main.MyList.handle(), LVM_GETHEADER, 0, 0));
    }
    static Names Headings(Principale& main) {
        const HWND header = HeaderOf(main);
        Names headings;
        const auto count = static_cast<WPARAM>(SendMessageA(header, HDM_GETITEMCOUNT, 0, 0));
        for (WPARAM i = 0; i < count; ++i) {
            char text[80] = "";
            HDITEMA item{};
            item.mask = HDI_TEXT;
            item.pszText = text;
            item.cchTextMax = sizeof text;
            SendMessageA(header, HDM_GETITEMA, i, reinterpret_cast<LPARAM>(&item));
            headings.push_back(text);
        }
        return headings;
    }
    /// What the list says of a set in its columns.
    static Names RowOf(Principale& main, const std::string& set) {
        Names row;
        const auto index = static_cast<WPARAM>(main.MyList.FindItem(set));
        for (std::size_t i = 0; i < Headings(main).size(); ++i) {
            char text[200] = "";
            LVITEMA item{};
            item.iSubItem = static_cast<int>(i);
            item.pszText = text;
            item.cchTextMax = sizeof text;
            SendMessageA(main.MyList.handle(), LVM_GETITEMTEXTA, index,
                         reinterpret_cast<LPARAM>(&item));
            row.push_back(text);
        }
        return row;
    }
    /// For the user's thread: the middle of a column's heading, which comes into sight.
    static POINT PointOfHeading(Principale& main, int column) {
        const HWND list = main.MyList.handle();
        const HWND header = HeaderOf(main);
        RECT r{};
        const auto find = [&] {
            SendMessageA(header, HDM_GETITEMRECT, static_cast<WPARAM>(column),
                         reinterpret_cast<LPARAM>(&r));
            MapWindowPoints(header, list, reinterpret_cast<POINT*>(&r), 2);
        };
        find();
        RECT seen{};
        GetClientRect(list, &seen);
        const int over = std::max<int>(r.right - seen.right, 0) + std::min<int>(r.left, 0);
        SendMessageA(list, LVM_SCROLL, static_cast<WPARAM>(over), 0);
        find();
        POINT middle{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
        ClientToScreen(list, &middle);
        return middle;
    }
    static void ClickHeading(Principale& main, int column) {
        user::ClickAt(PointOfHeading(main, column));
        Settle(main);
    }
};

TEST_F(DetailsView, IsChosenFromTheMenuAndTellsOfEachSet) {
    Put(logos + "Red\\LOGO.SYS", ScreenFile(255, 0, 0, 236));
    DeleteFileA((logos + "Red\\LOGOW.SYS").c_str());
    const auto sizeOf = [](std::size_t screens) {
        return std::to_string((screens * ScreenFile(0, 0, 0).size() + 1023) / 1024) + " KB";
    };
    const std::uint32_t noon = (18u << 9 | 6 << 5 | 25) << 16 | 12 << 11;
    platform::SetModifiedAt(logos + "Green.SLS\\LOGO.SYS", noon);
    WithMainWindow([&](Principale& main) {
        EXPECT_TRUE(user::ChooseFromMenuBar(main.handle(), ID_ToolDetailsView));
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.Mode() == ListViewMode::Details; }));
        EXPECT_EQ(Headings(main),
                  (Names{"Logoset name", "Kind", "Screens", "Moving colours", "Date", "Size"}));
        Names red = RowOf(main, "Red");
        ASSERT_EQ(red.size(), 6u);
        EXPECT_EQ(red[0], "Red");
        EXPECT_EQ(red[1], "Multi logo");
        EXPECT_EQ(red[2], "Startup, shutdown");
        EXPECT_EQ(red[3], "20");
        EXPECT_EQ(red[5], sizeOf(2));
        const Names green = RowOf(main, "Green.SLS");
        EXPECT_EQ(green[1], "Single logo");
        EXPECT_EQ(green[2], "Startup");
        EXPECT_EQ(green[3], "");
        EXPECT_NE(green[4].find("25"), std::string::npos);
        EXPECT_EQ(green[5], sizeOf(1));
        EXPECT_EQ(RowOf(main, "Blue")[2], "Startup, wait, shutdown");
        user::TakeShot("details");
    });
    EXPECT_EQ(Stored("Details"), SavedText("1"));
    EXPECT_EQ(Stored("Thumbnails"), SavedText("0"));
    EXPECT_EQ(Stored("View"), SavedText("0"));
}

TEST_F(DetailsView, IsThereAgainAtTheNextStartAndLeavesTheReportItsOneColumn) {
    WithDetails([&](Principale& main) {
        EXPECT_EQ(Headings(main).size(), 6u);
        Command(main, ID_ToolReportView);
        EXPECT_EQ(Headings(main), Names{"Logoset name"});
        RECT list{};
        GetClientRect(main.MyList.handle(), &list);
        RECT column{};
        SendMessageA(HeaderOf(main), HDM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&column));
        EXPECT_EQ(column.right - column.left, list.right);
        EXPECT_EQ(GetWindowLongA(main.MyList.handle(), GWL_STYLE) & (WS_HSCROLL | WS_VSCROLL), 0);
    });
    EXPECT_EQ(Stored("Details"), SavedText("0"));
    EXPECT_EQ(Stored("View"), SavedText("1"));
}

TEST_F(DetailsView, IsTheOnlyOneMarkedInBothMenus) {
    WithMainWindow([&](Principale& main) {
        for (const int chosen : {ID_ItmDetailsView, ID_ToolDetailsView}) {
            Command(main, ID_ToolThumbnailView);
            Command(main, chosen);
            const auto marked = [&](unsigned id) {
                return seen::RowOf(GetMenu(main.handle()), id).checked;
            };
            EXPECT_TRUE(marked(ID_ToolDetailsView));
            for (const unsigned other : {ID_ToolListView, ID_ToolReportView, ID_ToolThumbnailView})
                EXPECT_FALSE(marked(other));
            EXPECT_FALSE(seen::RowOf(GetMenu(main.handle()), ID_ToolLargerThumbnails).enabled);
        }
        Command(main, ID_ToolListView);
        EXPECT_FALSE(seen::RowOf(GetMenu(main.handle()), ID_ToolDetailsView).checked);
    });
}

TEST_F(DetailsView, IsSortedByEachHeadingBackwardsAndAsTheFolderDoes) {
    PutSingleSet("Amber.SLS", 1, 2, 3);
    Put(logos + "Red\\LOGO.SYS", ScreenFile(255, 0, 0, 236));
    DeleteFileA((logos + "Blue\\LOGOW.SYS").c_str());
    const auto setDay = [&](const char* screen, unsigned day) {
        platform::SetModifiedAt(logos + screen, (18u << 9 | 6 << 5 | day) << 16);
    };
    for (const char* set : {"Blue\\", "Red\\"})
        for (const char* screen : {"LOGO.SYS", "LOGOW.SYS", "LOGOS.SYS"})
            setDay((std::string(set) + screen).c_str(), *set == 'B' ? 4 : 2);
    setDay("Amber.SLS\\LOGO.SYS", 1);
    setDay("Green.SLS\\LOGO.SYS", 3);
    const struct {
        int column;
        Names sorted;
        Names backwards;
    } orders[] = {
        {0, {"Amber.SLS", "Blue", "Green.SLS", "Red"}, {"Red", "Green.SLS", "Blue", "Amber.SLS"}},
        {1, {"Blue", "Red", "Amber.SLS", "Green.SLS"}, {"Amber.SLS", "Green.SLS", "Blue", "Red"}},
        {2, {"Amber.SLS", "Green.SLS", "Blue", "Red"}, {"Red", "Blue", "Amber.SLS", "Green.SLS"}},
        {3, {"Amber.SLS", "Blue", "Green.SLS", "Red"}, {"Red", "Amber.SLS", "Blue", "Green.SLS"}},
        {4, {"Amber.SLS", "Red", "Green.SLS", "Blue"}, {"Blue", "Green.SLS", "Red", "Amber.SLS"}},
        {5, {"Amber.SLS", "Green.SLS", "Blue", "Red"}, {"Red", "Blue", "Amber.SLS", "Green.SLS"}},
    };
    WithDetails([&](Principale& main) {
        const Names folder = Listed(main);
        ClickSet(main, "Red");
        for (const auto& order : orders) {
            SCOPED_TRACE(order.column);
            ClickHeading(main, order.column);
            EXPECT_TRUE(Lists(main, order.sorted));
            EXPECT_EQ(Selected(main), "Red");
            ClickHeading(main, order.column);
            EXPECT_TRUE(Lists(main, order.backwards));
            ClickHeading(main, order.column);
            EXPECT_TRUE(Lists(main, folder));
        }
        EXPECT_EQ(main.SetNames(), folder);
    });
}

TEST_F(DetailsView, IsInTheFoldersOrderWhereSortingTakesLongAndIsCancelled) {
    for (int i = 100; i < 160; ++i) PutSingleSet("Set " + std::to_string(i) + ".SLS", 0, 0, 0);
    WithDetails([&](Principale& main) {
        const Names folder = Listed(main);
        ClickHeading(main, 0);
        ClickHeading(main, 0);
        EXPECT_NE(Listed(main), folder);
        const POINT size = PointOfHeading(main, 5);
        platform::fault::WaitAtEach(150);
        user::ClickAt(size);
        const HWND progress = user::WaitForTop("FrmProgress");
        EXPECT_NE(progress, nullptr);
        user::TakeShot("details_sorting");
        EXPECT_TRUE(user::Click(user::Control(progress, ID_BtnCancel)));
        EXPECT_TRUE(user::WaitUntilGone(progress));
        platform::fault::Reset();
        EXPECT_TRUE(Lists(main, folder));
        EXPECT_TRUE(IsWindowEnabled(main.handle()));
        // What was given up can be asked for again.
        ClickHeading(main, 5);
        EXPECT_TRUE(WaitUntil([&] { return Listed(main).back() == "Red"; }));
    });
}

TEST_F(DetailsView, FollowsWhatChangesInTheFilesAfterF5AndStaysSorted) {
    WithDetails([&](Principale& main) {
        EXPECT_EQ(RowOf(main, "Red")[2], "Startup, wait, shutdown");
        ClickHeading(main, 2);
        EXPECT_TRUE(Lists(main, {"Green.SLS", "Blue", "Red"}));
        for (const char* screen : {"LOGO.SYS", "LOGOW.SYS"})
            DeleteFileA((logos + "Red\\" + screen).c_str());
        DeleteFileA((logos + "Green.SLS\\LOGO.SYS").c_str());
        user::Press(VK_F5);
        EXPECT_TRUE(Lists(main, {"Green.SLS", "Red", "Blue"}));
        EXPECT_EQ(RowOf(main, "Red")[2], "Shutdown");
        EXPECT_EQ(RowOf(main, "Green.SLS")[2], "");
    });
}

TEST_F(DetailsView, RenamesByKeysAndTellsOfASetThatTookADeletedOnesName) {
    DeleteFileA((logos + "Red\\LOGOW.SYS").c_str());
    WithDetails([&](Principale& main) {
        main.Preferences().deleteInTheRecycleBin = 0;
        EXPECT_EQ(RowOf(main, "Red")[2], "Startup, shutdown");
        ClickSet(main, "Red");
        user::Press(VK_DELETE);
        user::AnswerBox(IDYES);
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.Count() == 2; }));
        Settle(main);
        BeginRenaming(main, "Blue", "Red");
        user::Press(VK_RETURN);
        EXPECT_TRUE(WaitUntil([&] { return Exists(logos + "Red\\LOGOW.SYS"); }));
        Settle(main);
        EXPECT_EQ(RowOf(main, "Red")[2], "Startup, wait, shutdown");
    });
}

TEST_F(DetailsView, KeepsTheWidthOfAColumnThatTheUserDrags) {
    WithDetails([&](Principale& main) {
        const HWND list = main.MyList.handle();
        const auto widthOf = [&](int column) {
            return SendMessageA(list, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column), 0);
        };
        RECT r{};
        SendMessageA(HeaderOf(main), HDM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&r));
        POINT edge{r.right, (r.top + r.bottom) / 2};
        ClientToScreen(HeaderOf(main), &edge);
        const LRESULT before = widthOf(0);
        user::Drag(edge, {edge.x - 40, edge.y});
        EXPECT_TRUE(WaitUntil([&] { return widthOf(0) < before - 20; }));
        const LRESULT dragged = widthOf(0);
        Command(main, ID_ToolThumbnailView);
        Command(main, ID_ToolDetailsView);
        EXPECT_EQ(widthOf(0), dragged);
    });
}

TEST_F(DetailsView, ReadsNothingThatIsNotSeen) {
    for (int i = 100; i < 300; ++i) MakeFolders(logos + "Set " + std::to_string(i) + "\\");
    Put(logos + "Set 299\\LOGO.SYS", "first");
    WithDetails([&](Principale& main) {
        Settle(main);
        // It has not been looked at yet.
        Put(logos + "Set 299\\LOGO.SYS", std::string(5000, 'x'));
        ClickSet(main, "Blue");
        user::Press(VK_END);
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "Set 299"; }));
        EXPECT_EQ(RowOf(main, "Set 299")[5], "5 KB");
        user::TakeShot("details_many");
    });
}

}  // namespace
}  // namespace vistrel::test
