// The program that the preferences say opens pictures.
#include "tests/options/options_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace options;

namespace {

TEST_F(Preferences, ChoosesTheCustomProgramAsSoonAsOneTypes) {
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 3);
        EXPECT_TRUE(options.OptOpen[0].Value());
        user::Click(options.CustomName.handle());
        user::Type("Brush \"and\" more");
        EXPECT_TRUE(WaitUntil([&] { return options.OptOpen[2].Value(); }));
        EXPECT_FALSE(options.OptOpen[0].Value());
        user::Press(VK_TAB);
        user::Type("C:\\My Tools\\brush.exe");
        EXPECT_TRUE(
            WaitUntil([&] { return options.CustProg.Text() == "C:\\My Tools\\brush.exe"; }));
        PressOk(options);
    });
    EXPECT_EQ(main.settings.customProgName, "Brush \"and\" more");
    EXPECT_EQ(main.settings.customProgPath, "C:\\My Tools\\brush.exe");
    EXPECT_EQ(main.settings.defaultAction, 2);
    EXPECT_EQ(main.customCaption, "Brush \"and\" more");
}

TEST_F(Preferences, NameAProgramAfterItsFileWhereItHasNoName) {
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 3);
        user::Click(options.CustProg.handle());
        user::Type("C:\\My Tools\\brush.exe");
        EXPECT_TRUE(WaitUntil(
            [&] { return user::TextOf(options.CustProg.handle()) == "C:\\My Tools\\brush.exe"; }));
        PressOk(options);
    });
    EXPECT_EQ(main.settings.customProgName, "brush");
    EXPECT_EQ(main.settings.customProgPath, "C:\\My Tools\\brush.exe");
    EXPECT_EQ(main.customCaption, "brush");
}

TEST_F(Preferences, AcceptThatThereIsNoProgram) {
    main.settings.customProgName = "Painter";
    main.settings.customProgPath = "C:\\p.exe";
    WithDialog([&](FrmOptions& options) {
        options.CustomName.SetText("");
        options.CustProg.SetText("");
        PressOk(options);
    });
    EXPECT_EQ(main.settings.customProgName, "");
    EXPECT_EQ(main.settings.customProgPath, "");
    EXPECT_EQ(main.customCaption, "");
}

TEST_F(Preferences, TakeAPickedProgramAndItsNameWithoutTheEnding) {
    MakeFolders(root + "Tools\\");
    Put(root + "Tools\\PAINTER.EXE", "a program");
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 3);
        user::Click(options.BtnBrowse.handle());
        const HWND dialog = user::WaitForTop("#32770");
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(user::TextOf(dialog), "Where is your favourite graphic program?");
        user::Activate(dialog);
        user::Type(root + "Tools\\PAINTER.EXE");
        user::Press(VK_RETURN);
        EXPECT_TRUE(user::WaitUntilGone(dialog));
        EXPECT_TRUE(
            WaitUntil([&] { return options.CustProg.Text() == root + "Tools\\PAINTER.EXE"; }));
        EXPECT_TRUE(WaitUntil([&] { return options.CustomName.Text() == "PAINTER"; }));
        EXPECT_TRUE(options.OptOpen[2].Value());
    });
}

}  // namespace
}  // namespace vistrel::test
