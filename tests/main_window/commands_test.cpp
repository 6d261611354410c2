// The command layer: what is enabled when, keys, menus, views, and pictures that are clicked.
#include "controls/menu.h"
#include "tests/support/main_window/main_window_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

using Commands = MainWindow98;

TEST_F(Commands, DoNothingByDeleteOrF2WithNothingSelected) {
    Store("DefaultLogoSet", TextValue("gone"));
    WithMainWindow([&](Principale& main) {
        main.MyList.Focus();
        PutSet("Zebra", 1, 1, 1);
        user::Press(VK_DELETE);
        user::Press(VK_F2);
        user::Press(VK_F5);
        // Done after the others.
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.FindItem("Zebra") >= 0; }));
        EXPECT_FALSE(main.MyList.EditingLabel());
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
        EXPECT_EQ(main.MyList.Count(), 4);
    });
}

TEST_F(Commands, ShowTheListAsListOrReportAndRememberIt) {
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(main.MyList.Mode(), ListViewMode::List);
        EXPECT_TRUE(user::ChooseFromMenuBar(main.handle(), ID_ToolReportView));
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.Mode() == ListViewMode::Report; }));
        Settle(main);
        user::TakeShot("report_view");
    });
    EXPECT_EQ(Stored("View"), SavedText("1"));
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(main.MyList.Mode(), ListViewMode::Report);
        Command(main, ID_ItmViewType);
        EXPECT_EQ(main.MyList.Mode(), ListViewMode::List);
    });
    EXPECT_EQ(Stored("View"), SavedText("0"));
}

TEST_F(Commands, TellWhatALabelIsByTheRightButton) {
    WithMainWindow([&](Principale& main) {
        for (const Label* label : {&main.DefaultLogo, &main.LogoType, &main.NumLogo}) {
            ASSERT_TRUE(user::RightClick(label->handle()));
            const HMENU menu = user::WaitForPopUp();
            ASSERT_NE(menu, nullptr);
            char text[32] = "";
            GetMenuStringA(menu, 0, text, sizeof text, MF_BYPOSITION);
            EXPECT_STREQ(text, "&What's this?");
            user::Press(VK_ESCAPE);
            EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));
        }
    });
}

TEST_F(Commands, OfferTheOptionsBesideTheControls) {
    WithMainWindow([&](Principale& main) {
        RECT r{};
        GetClientRect(main.handle(), &r);
        POINT corner{r.right - 4, r.bottom - 4};
        ClientToScreen(main.handle(), &corner);
        user::RightClickAt(corner);
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmViewType + 1));
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.Mode() == ListViewMode::Report; }));
    });
}

TEST_F(Commands, LeaveTheMainWindowByExit) {
    WithMainWindow([&](Principale& main) {
        StartCommand(main, ID_MnuExit);
        EXPECT_TRUE(WaitUntil([&] { return !main.IsOpen(); }));
    });
}

TEST_F(Commands, OpenTheEditorOnceAtTwoQuickClicks) {
    WithMainWindow([&](Principale& main) {
        StartCommand(main, ID_ToolBrowser);
        StartCommand(main, ID_ToolBrowser);
        const HWND editor = user::WaitForTop("SelPictureForm");
        ASSERT_NE(editor, nullptr);
        PostMessageA(editor, WM_CLOSE, 0, 0);
        const auto box = user::WaitForBox(0, 500);  // a loaded set may be asked about
        if (box.window) user::AnswerBox(IDYES);
        EXPECT_TRUE(user::WaitUntilGone(editor));
        EXPECT_FALSE(main.Timer1.Enabled());
        EXPECT_EQ(user::FindTop("SelPictureForm"), nullptr);
    });
}

TEST_F(Commands, AClickOnAnEmptyBoxDoesNothing) {
    DeleteFileA((logos + "Blue\\LOGOS.SYS").c_str());
    WithMainWindow([&](Principale& main) {
        ASSERT_TRUE(user::Click(main.Imag[2].handle()));
        ASSERT_TRUE(user::RightClick(main.Imag[2].handle()));
        Command(main, ID_ToolListView);
        EXPECT_EQ(user::FindTop("FrmView"), nullptr);
        EXPECT_EQ(user::FindTop("#32768"), nullptr);
    });
}

TEST_F(Commands, AClickOnAPictureShowsItInActualSizeUntilAKeyOrClick) {
    WithMainWindow([&](Principale& main) {
        HWND view = user::ClickToOpen(main.Imag[0].handle(), "FrmView");
        ASSERT_NE(view, nullptr);
        RECT r{};
        GetClientRect(view, &r);
        EXPECT_EQ(r.right, 320);
        EXPECT_EQ(r.bottom, 400);
        user::TakeShot("actual_size");
        user::Click(view);
        EXPECT_TRUE(user::WaitUntilGone(view));

        for (const WORD key : {WORD{VK_SPACE}, WORD{VK_RETURN}, WORD{VK_ESCAPE}, WORD{'Q'}}) {
            view = user::ClickToOpen(main.Imag[1].handle(), "FrmView");
            ASSERT_NE(view, nullptr);
            user::Press(VK_SHIFT);  // makes no character
            EXPECT_TRUE(IsWindow(view));
            user::Press(key);
            EXPECT_TRUE(user::WaitUntilGone(view)) << key;
        }
        EXPECT_TRUE(IsWindowEnabled(main.handle()));
    });
}

TEST_F(Commands, ARightClickOnAPictureOffersWhatToDoWithIt) {
    Store("DefaultAction", TextValue("1"));
    WithMainWindow([&](Principale& main) {
        ASSERT_TRUE(user::RightClick(main.Imag[1].handle()));
        const HMENU menu = user::WaitForPopUp();
        ASSERT_NE(menu, nullptr);
        EXPECT_EQ(GetMenuDefaultItem(menu, FALSE, 0), UINT{ID_ItmOpenAct + 1});
        EXPECT_EQ(MenuCaption(menu, ID_ItmOpenAct), "&View actual size");
        EXPECT_EQ(MenuCaption(menu, ID_ItmOpenAct + 2), "Custom Program");
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmOpenAct));
        const HWND view = user::WaitForTop("FrmView");
        ASSERT_NE(view, nullptr);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(user::WaitUntilGone(view));
    });
}

TEST_F(Commands, TellThatPaintIsMissing) {
    Store("DefaultAction", TextValue("1"));
    WithMainWindow([&](Principale& main) {
        user::Click(main.Imag[0].handle());
        const auto box = user::AnswerBox(IDOK);
        EXPECT_EQ(box.title, "Vistrel");
        EXPECT_EQ(box.text,
                  "Cannot find Paint! If you want to edit your logos install it from Add/Remove "
                  "Software from the Control Panel.");
        EXPECT_EQ(box.icon, unsigned{MB_ICONEXCLAMATION});
    });
}

TEST_F(Commands, StartPaintWithTheShortPathOfThePicture) {
    Store("DefaultAction", TextValue("1"));
    CopyFileA("record_arguments.exe", (windows + "pbrush.exe").c_str(), FALSE);
    DeleteFileA("C:\\arguments.txt");
    WithMainWindow([&](Principale& main) {
        user::Click(main.Imag[1].handle());
        EXPECT_TRUE(WaitUntil([] { return Contents("C:\\arguments.txt").value_or("") != ""; }));
    });
    char shortPath[MAX_PATH] = "";
    GetShortPathNameA((logos + "Blue\\LOGOW.SYS").c_str(), shortPath, MAX_PATH);
    EXPECT_EQ(Contents("C:\\arguments.txt"), windows + "pbrush.exe " + shortPath);
}

TEST_F(Commands, StartTheCustomProgramWithTheShortPathOfThePicture) {
    Store("DefaultAction", TextValue("2"));
    Store("CustomProgName", TextValue("Recorder"));
    Store("CustomProgPath", TextValue("C:\\test\\record_arguments.exe"));
    DeleteFileA("C:\\arguments.txt");
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(MenuCaption(main.OpenWithMenu(""), ID_ItmOpenAct + 2), "Recorder");
        user::Click(main.Imag[0].handle());
        EXPECT_TRUE(WaitUntil([] { return Contents("C:\\arguments.txt").value_or("") != ""; }));
    });
    char shortPath[MAX_PATH] = "";
    GetShortPathNameA((logos + "Blue\\LOGO.SYS").c_str(), shortPath, MAX_PATH);
    EXPECT_EQ(Contents("C:\\arguments.txt"),
              std::string("C:\\test\\record_arguments.exe ") + shortPath);
}

TEST_F(Commands, TellThatTheCustomProgramIsMissing) {
    Store("DefaultAction", TextValue("2"));
    Store("CustomProgName", TextValue("Gone"));
    Store("CustomProgPath", TextValue("C:\\gone.exe"));
    WithMainWindow([&](Principale& main) {
        user::Click(main.Imag[0].handle());
        const auto box = user::AnswerBox(IDOK);
        EXPECT_EQ(box.text,
                  "Cannot find the file C:\\gone.exe or it is not an executable file. Check it out "
                  "and retry.");
    });
}

TEST_F(Commands, OfferToChooseACustomProgramWhereThereIsNone) {
    Store("DefaultAction", TextValue("2"));
    WithMainWindow([&](Principale& main) {
        user::Click(main.Imag[0].handle());
        auto box = user::AnswerBox(IDNO);
        EXPECT_EQ(box.text, "You haven't specified a custom program. Would you like to do it now?");
        EXPECT_EQ(user::FindTop("FrmOptions"), nullptr);

        user::Click(main.Imag[0].handle());
        box = user::AnswerBox(IDYES);
        const HWND options = user::WaitForTop("FrmOptions");
        ASSERT_NE(options, nullptr);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(user::WaitUntilGone(options));
    });
}

TEST_F(Commands, KeepTheMarkOfTheAnimation) {
    WithMainWindow([&](Principale& main) {
        EXPECT_FALSE(main.AnimationShown());
        Command(main, ID_ItmAnimate);
        EXPECT_TRUE(main.AnimationShown());
        Command(main, ID_ItmAnimate);
        EXPECT_FALSE(main.AnimationShown());
    });
}

TEST_F(Commands, NothingOverlapsOrIsCutInTheSmallestWindow) {
    WithMainWindow([&](Principale& main) {
        for (const SIZE size : {SIZE{520, 400}, SIZE{640, 452}, SIZE{1000, 700}}) {
            SetWindowPos(main.handle(), nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER);
            RECT client{};
            GetClientRect(main.handle(), &client);
            std::vector<RECT> places;
            for (const auto& [id, control] : main.controls()) {
                const bool isFrame = id == ID_DoingFrame || id == ID_SelectedFrame;
                if (!control->Visible() || isFrame) continue;
                const Rect p = control->Bounds();
                EXPECT_GE(p.left, 0) << id;
                EXPECT_GE(p.top, 0) << id;
                EXPECT_LE(p.right(), client.right) << id;
                EXPECT_LE(p.bottom(), client.bottom) << id;
                const RECT place{p.left, p.top, p.right(), p.bottom()};
                for (const RECT& other : places) {
                    RECT both{};
                    EXPECT_FALSE(IntersectRect(&both, &place, &other)) << id;
                }
                places.push_back(place);
            }
        }
    });
}

}  // namespace
}  // namespace vistrel::test
