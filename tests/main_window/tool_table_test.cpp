// The menu bar, the bar of buttons and the classic menus, and the tools of no menu.
#include <gmock/gmock.h>

#include "tests/main_window/tool_words.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

using testing::ElementsAre;
using Texts = std::vector<std::string>;

using ToolTable = Commanding;

TEST_F(ToolTable, HasTheMenusOfTheMenuBarInTheirOrderAndWords) {
    WithMainWindow([&](Principale& main) {
        const auto bar = seen::RowsOf(GetMenu(main.handle()));
        EXPECT_EQ(seen::TextsOf(GetMenu(main.handle())),
                  (Texts{"&Logo", "&Options", "&Help", "E&xit"}));
        ASSERT_EQ(bar.size(), 4u);
        ExpectTool(main, {"MnuExit", ID_MnuExit, "E&xit", "", "Logo"});
        EXPECT_EQ(bar[3].id, unsigned{ID_MnuExit});
        EXPECT_EQ(bar[3].opens, nullptr);
    });
}

TEST_F(ToolTable, HasTheButtonsInTheirOrder) {
    WithMainWindow([&](Principale& main) {
        std::vector<int> ids;
        for (const seen::ToolButton& button : seen::ButtonsOf(main.ActiveBar1.bar())) {
            if (button.id == 0) continue;  // a gap
            ids.push_back(button.id);
            EXPECT_TRUE(button.shown) << button.id;
        }
        EXPECT_THAT(ids, ElementsAre(ID_ToolRename, ID_ToolDelete, ID_ToolSetDefault,
                                     ID_ToolBrowser, ID_ToolRefresh, ID_ToolShowCurrent,
                                     ID_ToolRandom, ID_ToolContents, ID_ToolAbout));
    });
}

TEST_F(ToolTable, HasToolsThatNoBandShows) {
    WithMainWindow([&](Principale& main) {
        ExpectTool(main, {"Online", ID_Online, "&Online check...", "", "Options"});
        EXPECT_STREQ(main.ActiveBar1.ToolOfName("Online")->caption, "&Online check...");
        EXPECT_STREQ(main.ActiveBar1.ToolOfName("WhatIsThis")->caption, "What's this?");
    });
}

TEST_F(ToolTable, ExitCloses) {
    ForEach({ID_MnuExit, ID_ItmExit}, [&](Principale& main, int id) {
        StartCommand(main, id);
        EXPECT_TRUE(WaitUntil([&] { return !main.IsOpen(); }));
    });
}

TEST_F(ToolTable, TheRestDoesNothing) {
    WithMainWindow([&](Principale& main) {
        const auto before = NamesIn(logos);
        for (const int id : {ID_Online, ID_WhatIsThis, ID_ItmNetUpdate}) {
            Command(main, id);
            EXPECT_TRUE(IsWindowEnabled(main.handle())) << id;
            EXPECT_EQ(user::FindTop("#32770"), nullptr) << id;
        }
        EXPECT_EQ(NamesIn(logos), before);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
    });
}

class ClassicMenus : public MainWindow98 {
 protected:
    void SetUp() override {
        menus_ = LoadMenuA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDM_Principale));
        ASSERT_NE(menus_, nullptr);
    }
    void TearDown() override { DestroyMenu(menus_); }
    HMENU Menu(int place) { return seen::RowsOf(menus_).at(place).opens; }
    std::vector<unsigned> NumbersOf(HMENU menu) {
        std::vector<unsigned> ids;
        for (const seen::MenuRow& row : seen::RowsOf(menu))
            if (!row.separator) ids.push_back(row.id);
        return ids;
    }

 private:
    HMENU menus_ = nullptr;
};

TEST_F(ClassicMenus, HaveTheirItemsInTheirOrderAndWords) {
    EXPECT_EQ(
        seen::TextsOf(Menu(0)),
        (Texts{"Re&name\tF2", "D&elete\tDel", "Set as &default", "-", "&Explore", "&Refresh\tF5",
               "&Logo browser...", "-", "E&xport...", "&Import...", "-", "&Undo install\tCtrl+Z",
               "-", "Du&plicate", "&Copy\tCtrl+C", "Select &all\tCtrl+A"}));
    EXPECT_THAT(NumbersOf(Menu(0)),
                ElementsAre(ID_ItmRename, ID_ItmDelete, ID_ItmSetDefault, ID_ItmExplore,
                            ID_ItmRefresh, ID_ItmLogoManager, ID_ItmExport, ID_ItmImport,
                            ID_ItmUndoInstall, ID_ItmDuplicate, ID_ItmCopy, ID_ItmSelectAll));
    EXPECT_EQ(seen::TextsOf(Menu(1)),
              (Texts{"&View as list", "&View as report", "-", "Show current logo setting", "-",
                     "&Random change", "-", "&Preferences...", "&NetUpdate", "StartUp logo in", "-",
                     "View as &thumbnails", "View as &details"}));
    EXPECT_THAT(
        NumbersOf(Menu(1)),
        ElementsAre(ID_ItmViewType, ID_ItmViewType + 1, ID_ItmViewDefOrActual, ID_ItmRandomSpin,
                    ID_ItmPref, ID_ItmNetUpdate, 0, ID_ItmThumbnailView, ID_ItmDetailsView));
    EXPECT_EQ(seen::TextsOf(Menu(2)),
              (Texts{"&Contents\tF1", "-", "&Bug report", "A&bout...", "E&xit"}));
    EXPECT_THAT(NumbersOf(Menu(2)),
                ElementsAre(ID_ItmContents, ID_ItmBugReport, ID_ItmAbout, ID_ItmExit));
    EXPECT_EQ(
        seen::TextsOf(Menu(3)),
        (Texts{"&View actual size", "&Open Paint", "Open custom program", "-", "Autoshow animation",
               "-", "Show as at &start\tF11", "&Mend", "Moving &colours..."}));
    EXPECT_THAT(NumbersOf(Menu(3)),
                ElementsAre(ID_ItmOpenAct, ID_ItmOpenAct + 1, ID_ItmOpenAct + 2, ID_ItmAnimate,
                            ID_ItmShowAtStart, ID_ItmMend, ID_ItmMoveColors));
}

}  // namespace
}  // namespace vistrel::test
