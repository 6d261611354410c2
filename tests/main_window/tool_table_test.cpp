// The menus, the bar of buttons and their words, against a table of this test's own.
#include <gmock/gmock.h>

#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

using testing::ElementsAre;
using Texts = std::vector<std::string>;

struct ToolWords {
    const char* name;
    int id;
    const char* menuText;  ///< caption and, behind a tab, the key
    const char* tip;
    const char* category;
};

constexpr ToolWords kTools[] = {
    {"ToolRename", ID_ToolRename, "&Rename\tF2", "Rename selected logo set", "Logo"},
    {"ToolDelete", ID_ToolDelete, "D&elete\tDel", "Delete selected logo set", "Logo"},
    {"ToolSetDefault", ID_ToolSetDefault, "Set as default", "Set as default", "Logo"},
    {"ToolBrowser", ID_ToolBrowser, "Logo &browser...", "Logo browser", "Logo"},
    {"ToolExplore", ID_ToolExplore, "&Explore", "Opens the folder in Explorer", "Logo"},
    {"ToolRefresh", ID_ToolRefresh, "&Refresh\tF5", "Refreshed the logo sets list", "Logo"},
    {"ToolListView", ID_ToolListView, "View as &list", "", "Options"},
    {"ToolReportView", ID_ToolReportView, "View as &report", "", "Options"},
    {"ToolShowCurrent", ID_ToolShowCurrent, "Show current &logo setting",
     "Show current logo setting", "Options"},
    {"ToolRandom", ID_ToolRandom, "Rando&m Change", "Random change", "Options"},
    {"ToolPrefer", ID_ToolPrefer, "&Preferences...", "", "Options"},
    {"Online", ID_Online, "&Online check...", "", "Options"},
    {"ToolContents", ID_ToolContents, "Contents\tF1", "Contents", "Logo"},
    {"ToolTutorial", ID_ToolTutorial, "Tutorial", "Tutorial", "Logo"},
    {"ToolAbout", ID_ToolAbout, "About...", "About...", "Logo"},
    {"ToolBug", ID_ToolBug, "&Bug report", "", "Logo"},
    {"MnuExit", ID_MnuExit, "E&xit", "", "Logo"},
};

const ToolWords& WordsOf(int id) {
    for (const ToolWords& words : kTools)
        if (words.id == id) return words;
    ADD_FAILURE() << "no tool " << id;
    return kTools[0];
}

/// The numbers of a menu's rows; each row's text is what the table says of its number.
std::vector<int> ToolsOf(HMENU menu) {
    std::vector<int> ids;
    for (const seen::MenuRow& row : seen::RowsOf(menu)) {
        EXPECT_FALSE(row.separator);
        EXPECT_EQ(row.text, WordsOf(static_cast<int>(row.id)).menuText);
        ids.push_back(static_cast<int>(row.id));
    }
    return ids;
}

using ToolTable = MainWindow98;

TEST_F(ToolTable, HasTheMenusOfTheMenuBarInTheirOrderAndWords) {
    WithMainWindow([&](Principale& main) {
        const auto bar = seen::RowsOf(GetMenu(main.handle()));
        EXPECT_EQ(seen::TextsOf(GetMenu(main.handle())),
                  (Texts{"&Logo", "&Options", "&Help", "E&xit"}));
        ASSERT_EQ(bar.size(), 4u);
        EXPECT_THAT(ToolsOf(bar[0].opens),
                    ElementsAre(ID_ToolRename, ID_ToolDelete, ID_ToolSetDefault, ID_ToolBrowser,
                                ID_ToolExplore, ID_ToolRefresh));
        EXPECT_THAT(ToolsOf(bar[1].opens),
                    ElementsAre(ID_ToolListView, ID_ToolReportView, ID_ToolShowCurrent,
                                ID_ToolRandom, ID_ToolPrefer));
        EXPECT_THAT(ToolsOf(bar[2].opens),
                    ElementsAre(ID_ToolContents, ID_ToolTutorial, ID_ToolBug, ID_ToolAbout));
        EXPECT_EQ(bar[3].id, unsigned{ID_MnuExit});
        EXPECT_EQ(bar[3].opens, nullptr);
    });
}

TEST_F(ToolTable, PopsUpTheLogoMenuOfTheBarAtTheRightButton) {
    WithMainWindow([&](Principale& main) {
        user::RightClickAt(PointOfSet(main, "Red"));
        EXPECT_EQ(user::WaitForPopUp(), seen::RowsOf(GetMenu(main.handle())).at(0).opens);
        user::TakeShot("logo_band");
        user::Press(VK_ESCAPE);
    });
}

TEST_F(ToolTable, HasTheButtonsInTheirOrderWithTheirTips) {
    WithMainWindow([&](Principale& main) {
        const HWND bar = main.ActiveBar1.bar();
        std::vector<int> ids;
        for (const seen::ToolButton& button : seen::ButtonsOf(bar)) {
            if (button.id == 0) continue;  // a gap
            ids.push_back(button.id);
            EXPECT_TRUE(button.shown) << button.id;
        }
        EXPECT_THAT(ids, ElementsAre(ID_ToolRename, ID_ToolDelete, ID_ToolSetDefault,
                                     ID_ToolBrowser, ID_ToolRefresh, ID_ToolShowCurrent,
                                     ID_ToolRandom, ID_ToolContents, ID_ToolAbout));
        for (const int id : ids)
            EXPECT_EQ(seen::TipAt(seen::CentreOfButton(bar, id)), WordsOf(id).tip);
    });
}

TEST_F(ToolTable, HasEveryToolInItsOrderAlsoThoseThatNoBandShows) {
    WithMainWindow([&](Principale& main) {
        for (const ToolWords& words : kTools) {
            const Tool* tool = main.ActiveBar1.ToolOfName(words.name);
            ASSERT_NE(tool, nullptr) << words.name;
            EXPECT_EQ(tool->id, words.id);
            EXPECT_STREQ(tool->tip, words.tip) << words.name;
            EXPECT_STREQ(tool->category, words.category) << words.name;
        }
        EXPECT_STREQ(main.ActiveBar1.ToolOfName("Online")->caption, "&Online check...");
        EXPECT_STREQ(main.ActiveBar1.ToolOfName("WhatIsThis")->caption, "What's this?");
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
    EXPECT_EQ(seen::TextsOf(Menu(0)), (Texts{"Re&name\tF2", "D&elete\tDel", "Set as &default", "-",
                                             "&Explore", "&Refresh\tF5", "&Logo browser..."}));
    EXPECT_THAT(NumbersOf(Menu(0)), ElementsAre(ID_ItmRename, ID_ItmDelete, ID_ItmSetDefault,
                                                ID_ItmExplore, ID_ItmRefresh, ID_ItmLogoManager));
    EXPECT_EQ(seen::TextsOf(Menu(1)),
              (Texts{"&View as list", "&View as report", "-", "Show current logo setting", "-",
                     "&Random change", "-", "&Preferences...", "&NetUpdate", "StartUp logo in"}));
    EXPECT_THAT(NumbersOf(Menu(1)),
                ElementsAre(ID_ItmViewType, ID_ItmViewType + 1, ID_ItmViewDefOrActual,
                            ID_ItmRandomSpin, ID_ItmPref, ID_ItmNetUpdate, 0));
    EXPECT_EQ(seen::TextsOf(Menu(2)),
              (Texts{"&Contents\tF1", "-", "&Bug report", "A&bout...", "E&xit"}));
    EXPECT_THAT(NumbersOf(Menu(2)),
                ElementsAre(ID_ItmContents, ID_ItmBugReport, ID_ItmAbout, ID_ItmExit));
    EXPECT_EQ(seen::TextsOf(Menu(3)), (Texts{"&View actual size", "&Open Paint",
                                             "Open custom program", "-", "Autoshow animation"}));
    EXPECT_THAT(NumbersOf(Menu(3)),
                ElementsAre(ID_ItmOpenAct, ID_ItmOpenAct + 1, ID_ItmOpenAct + 2, ID_ItmAnimate));
}

TEST_F(ToolTable, PopsUpTheSameMenuByTheKeyboard) {
    Store("DefaultLogoSet", TextValue("gone"));
    WithMainWindow([&](Principale& main) {
        for (const bool selected : {false, true}) {
            if (selected) ClickSet(main, "Red");
            main.MyList.Focus();
            const HMENU menu = user::PopUpByKey();
            EXPECT_EQ(menu, seen::RowsOf(GetMenu(main.handle())).at(0).opens);
            for (const unsigned id : {ID_ToolRename, ID_ToolDelete, ID_ToolSetDefault})
                EXPECT_EQ(seen::RowOf(menu, id).enabled, selected) << id;
            EXPECT_TRUE(seen::RowOf(menu, ID_ToolRefresh).enabled);
            user::Press(VK_ESCAPE);
            EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));
        }
    });
}

}  // namespace
}  // namespace vistrel::test
