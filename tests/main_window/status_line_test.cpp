// The status line at the foot of the main window.
#include <gmock/gmock.h>

#include "core/install.h"
#include "platform/fault.h"
#include "tests/support/machine/zip_file.h"
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace main_window;

namespace {

/// Every text that a window is given while this lives.
class TextsOfWindow {
 public:
    explicit TextsOfWindow(HWND window) : window_(window) {
        SetPropA(window, "texts", &texts_);
        former_ = SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
        SetPropA(window, "former", reinterpret_cast<HANDLE>(former_));
    }
    ~TextsOfWindow() { SetWindowLongPtrA(window_, GWLP_WNDPROC, former_); }
    TextsOfWindow(const TextsOfWindow&) = delete;
    TextsOfWindow& operator=(const TextsOfWindow&) = delete;

    const std::vector<std::string>& All() const { return texts_; }

 private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        auto* texts = static_cast<std::vector<std::string>*>(GetPropA(window, "texts"));
        if (message == WM_SETTEXT) texts->push_back(reinterpret_cast<const char*>(lParam));
        const auto former = reinterpret_cast<WNDPROC>(GetPropA(window, "former"));
        return CallWindowProcA(former, window, message, wParam, lParam);
    }

    HWND window_;
    LONG_PTR former_ = 0;
    std::vector<std::string> texts_;
};

class StatusLine : public MainWindow98 {
 protected:
    static std::string Said(Principale& main) {
        return user::TextOf(user::Control(main.handle(), ID_LblDoing));
    }
    static std::string Counts(Principale& main) {
        return user::TextOf(user::Control(main.handle(), ID_LblSelected));
    }
    static bool Says(Principale& main, const std::string& text) {
        return WaitUntil([&] { return Said(main) == text; });
    }
    void InstallBlue() { core::InstallLogoSet({logos, boot, windows}, "Blue", false); }
};

TEST_F(StatusLine, TellsHowManySetsThereAreAndAreSelected) {
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(Counts(main), "3 sets, 1 selected");
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(Counts(main), "3 sets");
        RemoveTree(logos + "Red");
        RemoveTree(logos + "Green.SLS");
        Command(main, ID_ToolRefresh);
        EXPECT_EQ(Counts(main), "1 set");
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(Counts(main), "1 set, 1 selected");
        EXPECT_EQ(Said(main), "");
    });
}

TEST_F(StatusLine, NamesTheSetOfTheInstalledScreensWhileTheyAreShown) {
    InstallBlue();
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(Said(main), "");
        Command(main, ID_ToolShowCurrent);
        EXPECT_TRUE(Says(main, "Installed: Blue"));
        EXPECT_EQ(main.DefaultLogo.Text(), "Current logo setting");
        EXPECT_EQ(seen::TipOver(main.DefaultLogo.handle()), "Showing current logo setting");
        user::TakeShot("status_installed", main.handle());
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(Said(main), "");
    });
}

TEST_F(StatusLine, NamesTheSetOfEachInstalledScreenWithAllOfItInTheTip) {
    InstallBlue();
    Put(boot + "LOGO.SYS", ScreenFile(255, 0, 0));
    Put(windows + "LOGOS.SYS", "own");
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ToolShowCurrent);
        const std::string sentence =
            "Startup screen of Red, wait screen of Blue, shutdown screen of none";
        EXPECT_TRUE(Says(main, sentence));
        EXPECT_EQ(seen::TipOver(user::Control(main.handle(), ID_LblDoing)), sentence);
        user::TakeShot("status_mixed", main.handle());
    });
}

TEST_F(StatusLine, NamesTheSetOfTheInstalledScreensWhereTheLabelKnowsNone) {
    InstallBlue();
    Store("DefaultLogoSet", TextValue("gone"));
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(main.DefaultLogo.Text(), "<Don't know>");
        EXPECT_TRUE(Says(main, "Installed: Blue"));
        EXPECT_EQ(main.DefaultLogo.Text(), "<Don't know>");
        EXPECT_EQ(seen::TipOver(main.DefaultLogo.handle()), "Default logo set\r\nInstalled: Blue");
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        EXPECT_EQ(Said(main), "");
        EXPECT_EQ(seen::TipOver(main.DefaultLogo.handle()), "Default logo set");
    });
}

TEST_F(StatusLine, TellsHowManyOfTheSetsAreFound) {
    WithMainWindow([&](Principale& main) {
        user::Click(main.FindBox.handle());
        user::Type("e");
        EXPECT_TRUE(WaitUntil([&] { return Counts(main) == "3 sets, 1 selected"; }));
        user::Type("d");
        EXPECT_TRUE(WaitUntil([&] { return Counts(main) == "1 of 3 sets"; }));
    });
}

TEST_F(StatusLine, FollowsARenamedAndADeletedSet) {
    InstallBlue();
    Store("DefaultLogoSet", TextValue("gone"));
    WithMainWindow([&](Principale& main) {
        EXPECT_TRUE(Says(main, "Installed: Blue"));
        BeginRenaming(main, "Blue", "Navy");
        user::Press(VK_RETURN);
        EXPECT_TRUE(Says(main, "Installed: Navy"));
        main.Preferences().deleteInTheRecycleBin = 0;
        ClickSet(main, "Navy");
        StartCommand(main, ID_ToolDelete);
        user::AnswerBox(IDYES);
        EXPECT_TRUE(Says(main, "Startup, wait and shutdown screens of none"));
        EXPECT_EQ(Counts(main), "2 sets, 1 selected");
    });
}

TEST_F(StatusLine, ComparesNoSetsWhileTheLabelNamesOne) {
    InstallBlue();
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        const TextsOfWindow texts(user::Control(main.handle(), ID_LblDoing));
        Command(main, ID_ToolRefresh);
        Settle(main);
        EXPECT_EQ(Said(main), "");
        for (const std::string& text : texts.All())
            EXPECT_EQ(text.find("Comparing"), std::string::npos) << text;
    });
}

TEST_F(StatusLine, OffersToEndAComparingThatLasts) {
    Put(windows + "LOGOW.SYS", "own");
    for (int i = 0; i < 200; ++i) PutSingleSet("Set " + std::to_string(i) + ".SLS", 0, 0, 0);
    Store("DefaultLogoSet", TextValue("gone"));
    WithMainWindow([&](Principale& main) {
        platform::fault::WaitAtEach(15);
        Command(main, ID_ToolRefresh);
        EXPECT_TRUE(WaitUntil([&] { return IsWindowVisible(main.BtnStopLooking.handle()) != 0; }));
        user::TakeShot("status_comparing", main.handle());
        EXPECT_NE(Said(main).find("Comparing sets with the installed screens: "),
                  std::string::npos);
        ASSERT_TRUE(user::Click(main.BtnStopLooking.handle()));
        EXPECT_TRUE(WaitUntil([&] { return IsWindowVisible(main.BtnStopLooking.handle()) == 0; }));
        platform::fault::Reset();
        EXPECT_EQ(Said(main), "");
        EXPECT_EQ(seen::FocusIn(main.handle()), main.MyList.handle());
        Command(main, ID_ToolRefresh);
        EXPECT_NE(Said(main), "");
    });
}

TEST_F(StatusLine, SaysWhatIsBeingDoneWhileItIsDone) {
    Put(root + "given.zip", ZipOf({{"New/LOGO.SYS", ScreenFile(0, 255, 0)}}));
    std::vector<std::string> said;
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        const TextsOfWindow texts(user::Control(main.handle(), ID_LblDoing));
        Command(main, ID_ToolSetDefault);
        Command(main, ID_ToolUndoInstall);
        Command(main, ID_ToolRefresh);
        StartCommand(main, ID_ToolImport);
        const HWND dialog = user::WaitForTop("#32770", "Import logo sets");
        user::Activate(dialog);
        user::Type(root + "given.zip");
        user::Press(VK_RETURN);
        WaitUntil([&] { return Selected(main) == "New"; });
        Settle(main);
        EXPECT_EQ(Said(main), "");
        said = texts.All();
    });
    EXPECT_THAT(said, testing::IsSupersetOf(
                          {"Setting Red as default...", "Bringing back the previous screens...",
                           "Reading the logo folder...", "Unpacking given.zip..."}));
}

}  // namespace
}  // namespace vistrel::test
