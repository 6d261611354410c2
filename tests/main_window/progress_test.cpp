// What takes longer than a second: a window tells how far it is, and can end it.
#include <windows.h>
// The others need windows.h first.
#include <commctrl.h>

#include "main_window/frm_progress.h"
#include "platform/fault.h"
#include "tests/support/machine/zip_file.h"
#include "tests/support/main_window/main_window_fixture.h"

namespace vistrel::test {

using namespace main_window;

namespace {

class LongWork : public MainWindow98 {
 protected:
    /// Something that goes on in front of the main window until it is cancelled: true when it was,
    /// by what the user does with the window.
    bool EndsBy(const std::function<void(HWND window)>& act) {
        Principale main(locations);
        if (!main.Create(nullptr)) return false;
        main.Show();
        bool ended = false;
        {
            FrmProgress progress(main.handle(), "Unpacking large.zip...");
            user::Meanwhile user([&] {
                const HWND window = user::WaitForTop("FrmProgress");
                ownerTakesCommands_ = IsWindowEnabled(main.handle()) != 0;
                said_ = user::TextOf(user::Control(window, ID_LblWork));
                done_ = SendDlgItemMessageA(window, ID_WorkBar, PBM_GETPOS, 0, 0);
                user::TakeShot("progress");
                act(window);
            });
            // Nobody but the window itself takes the user's keys.
            const DWORD start = GetTickCount();
            while (!ended && GetTickCount() - start < 20000) {
                ended = !progress.Continue(0.25);
                MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
            }
            user.Finish();
        }
        EXPECT_EQ(user::FindTop("FrmProgress"), nullptr);
        EXPECT_TRUE(IsWindowEnabled(main.handle()));
        EXPECT_TRUE(user::IsInFront(main.handle()));
        return ended;
    }

    /// For the user's thread.
    static void CancelByTheButton(Principale& main) {
        const HWND window = user::WaitForTop("FrmProgress", "", 0, 60000);
        ASSERT_NE(window, nullptr);
        user::Activate(window);
        EXPECT_TRUE(user::Click(user::Control(window, ID_BtnCancel)));
        EXPECT_TRUE(user::WaitUntilGone(window, 60000));
        platform::fault::Reset();
        Settle(main);
    }

    bool ownerTakesCommands_ = true;
    std::string said_;
    LRESULT done_ = 0;
};

TEST_F(LongWork, TellsHowFarItIsAndIsCancelledByTheButton) {
    EXPECT_TRUE(EndsBy([](HWND window) {
        user::Activate(window);
        user::Click(user::Control(window, ID_BtnCancel));
    }));
    EXPECT_EQ(said_, "Unpacking large.zip...");
    EXPECT_EQ(done_, 25);
    EXPECT_FALSE(ownerTakesCommands_);
}

TEST_F(LongWork, IsCancelledByEscAndByClosingItsWindow) {
    EXPECT_TRUE(EndsBy([](HWND window) {
        user::Activate(window);
        user::Press(VK_ESCAPE);
    }));
    EXPECT_TRUE(EndsBy([](HWND window) { PostMessageA(window, WM_CLOSE, 0, 0); }));
}

TEST_F(LongWork, ShowsNoWindowWithinASecond) {
    Principale main(locations);
    ASSERT_TRUE(main.Create(nullptr));
    FrmProgress progress(main.handle(), "");
    EXPECT_TRUE(progress.Continue(0));
    EXPECT_TRUE(progress.Continue(1));
    EXPECT_FALSE(progress.IsOpen());
}

TEST_F(LongWork, OfAnImportLeavesNothingWhenItIsCancelled) {
    std::vector<Packed> files;
    for (int i = 0; i < 2000; ++i)
        for (const char* screen : {"LOGO.SYS", "LOGOW.SYS", "LOGOS.SYS"})
            files.push_back({"Set " + std::to_string(i) + "/" + screen, "screen"});
    Put(root + "large.zip", ZipOf(files));
    WithMainWindow([&](Principale& main) {
        const auto before = NamesIn(logos);
        StartCommand(main, ID_ToolImport);
        const HWND dialog = user::WaitForTop("#32770", "Import logo sets");
        user::Activate(dialog);
        user::Type(root + "large.zip");
        user::Press(VK_RETURN);
        CancelByTheButton(main);
        EXPECT_EQ(NamesIn(logos), before);
        EXPECT_EQ(main.MyList.Count(), 3);
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
    });
}

TEST_F(LongWork, OfACopyLeavesNothingWhenItIsCancelled) {
    CreateDirectoryA((logos + "Red\\Drafts").c_str(), nullptr);
    for (int i = 0; i < 100; ++i) Put(logos + "Red\\Drafts\\" + std::to_string(i), "draft");
    WithMainWindow([&](Principale& main) {
        const auto before = NamesIn(logos);
        ClickSet(main, "Red");
        platform::fault::WaitAtEach(30);
        StartCommand(main, ID_ToolDuplicate);
        CancelByTheButton(main);
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
        EXPECT_EQ(NamesIn(logos), before);
        EXPECT_EQ(main.MyList.Count(), 3);
        EXPECT_EQ(Selected(main), "Red");
        EXPECT_FALSE(main.MyList.EditingLabel());
    });
}

TEST_F(LongWork, OfADeletionLeavesTheSetsThatAreStillThereWhenItIsCancelled) {
    for (int i = 0; i < 100; ++i) PutSingleSet("Set " + std::to_string(i) + ".SLS", 0, 0, 0);
    WithMainWindow([&](Principale& main) {
        main.Preferences().deleteInTheRecycleBin = 0;
        StartCommand(main, ID_ToolSelectAll);
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.SelectedCount() == 103; }));
        platform::fault::WaitAtEach(30);
        StartCommand(main, ID_ToolDelete);
        user::AnswerBox(IDYES);
        CancelByTheButton(main);
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
        const std::size_t left = main.SetNames().size();
        EXPECT_GT(left, 0u);
        EXPECT_LT(left, 103u);
        EXPECT_EQ(NamesIn(logos).size(), left + 2);  // and the shared screens
        EXPECT_EQ(static_cast<std::size_t>(main.MyList.SelectedCount()), left);
        for (const std::string& set : main.SetNames())
            EXPECT_TRUE(Exists(logos + set + "\\LOGO.SYS")) << set;
        Command(main, ID_ToolRefresh);
        EXPECT_EQ(main.SetNames().size(), left);
    });
}

}  // namespace
}  // namespace vistrel::test
