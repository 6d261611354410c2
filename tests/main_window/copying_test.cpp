// Copies of sets: beside the original, on the clipboard, and dragged to other programs.
#include <windows.h>
// commctrl.h and ole2.h need windows.h first.
#include <commctrl.h>
#include <ole2.h>

#include "tests/main_window/dropped_paths.h"
#include "tests/main_window/file_drop_window.h"
#include "tests/main_window/open_file.h"
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace main_window;

namespace {

class Duplicating : public MainWindow98 {
 protected:
    static bool Edits(Principale& main, const std::string& label) {
        return WaitUntil([&] {
            const auto edit = reinterpret_cast<HWND>(
                SendMessageA(main.MyList.handle(), LVM_GETEDITCONTROL, 0, 0));
            return edit && user::TextOf(edit) == label;
        });
    }
};

TEST_F(Duplicating, MakesACopyThatIsSelectedAndWaitsForItsName) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        user::OpenMenuByLetter('L', 0);
        user::Press('P');
        EXPECT_TRUE(Edits(main, "Copy of Red"));
        user::TakeShot("duplicate", main.handle());
        EXPECT_EQ(MiddleOf(main.Imag[0]), kRed);
        user::Type("Rust");
        user::Press(VK_RETURN);
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "Rust"; }));
        Settle(main);
        EXPECT_EQ(main.NumLogo.Text(), " 4 logo sets");
        EXPECT_EQ(main.SetNames(), (Names{"Blue", "Green.SLS", "Red", "Rust"}));
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
    });
    EXPECT_TRUE(Contents(logos + "Rust\\LOGOS.SYS") == ScreenFile(255, 0, 0));
    EXPECT_TRUE(Exists(logos + "Red\\LOGO.SYS"));
}

TEST_F(Duplicating, NumbersASecondCopyAndKeepsTheKind) {
    WithMainWindow([&](Principale& main) {
        for (const char* name : {"Copy of Green.SLS", "Copy (2) of Green.SLS"}) {
            ClickSet(main, "Green.SLS");
            StartCommand(main, ID_ToolDuplicate);
            EXPECT_TRUE(Edits(main, name));
            user::Press(VK_ESCAPE);
            EXPECT_TRUE(WaitUntil([&] { return !main.MyList.EditingLabel(); }));
            Settle(main);
            EXPECT_EQ(Selected(main), name);
            EXPECT_EQ(main.MyList.ItemIcon(main.MyList.SelectedItem()), "singlelogo");
            EXPECT_EQ(MiddleOf(main.Imag[0]), kGreenScreen);
        }
    });
}

TEST_F(Duplicating, SaysWhereItCannotAndLeavesNothing) {
    const OpenFile open(logos + "Red\\LOGOW.SYS");
    const auto before = NamesIn(logos);
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        StartCommand(main, ID_ToolDuplicate);
        EXPECT_EQ(user::AnswerBox(IDOK).text,
                  "Red cannot be copied. The disk may be full, its name too long for a copy of "
                  "it, or a file in use.");
        EXPECT_EQ(main.MyList.Count(), 3);
        EXPECT_FALSE(main.MyList.EditingLabel());
    });
    EXPECT_EQ(NamesIn(logos), before);
}

class Copying : public MainWindow98 {
 protected:
    static Names OnTheClipboard() {
        Names paths;
        if (!OpenClipboard(nullptr)) return paths;
        if (const auto list = static_cast<HDROP>(GetClipboardData(CF_HDROP))) paths = PathsOf(list);
        CloseClipboard();
        return paths;
    }
};

TEST_F(Copying, PutsTheSelectedSetsOnTheClipboardAsTheFileManagerDoes) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        user::Press('C', {VK_CONTROL});
        EXPECT_TRUE(WaitUntil([&] { return OnTheClipboard() == Names{logos + "Red"}; }));
        user::Press('A', {VK_CONTROL});
        user::OpenMenuByLetter('L', 0);
        user::Press('C');
        EXPECT_TRUE(WaitUntil([&] {
            return OnTheClipboard() == Names{logos + "Blue", logos + "Green.SLS", logos + "Red"};
        }));
    });
    // It is there when the program is not any more.
    EXPECT_EQ(OnTheClipboard().size(), 3u);
}

TEST_F(Copying, LeavesCtrlCToTheBoxThatIsTypedIn) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        user::Press('C', {VK_CONTROL});
        EXPECT_TRUE(WaitUntil([&] { return OnTheClipboard() == Names{logos + "Red"}; }));
        ClickSet(main, "Blue");
        user::Press('F', {VK_CONTROL});
        EXPECT_TRUE(
            WaitUntil([&] { return seen::FocusIn(main.handle()) == main.FindBox.handle(); }));
        user::Press('C', {VK_CONTROL});
        user::Press('A', {VK_CONTROL});
        Settle(main);
        EXPECT_EQ(OnTheClipboard(), Names{logos + "Red"});
        EXPECT_EQ(main.MyList.SelectedCount(), 1);
    });
}

TEST_F(Copying, SaysThatTheSetIsGone) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        RemoveTree(logos + "Red");
        StartCommand(main, ID_ToolCopy);
        EXPECT_EQ(user::AnswerBox(IDOK).text,
                  "The selected logo sets cannot be copied. They may have been deleted, or another "
                  "program uses the clipboard.");
    });
}

/// Sets that are dragged to another program's folder.
class DraggingOut : public MainWindow98 {
 protected:
    DraggingOut() { MakeFolders(given); }

    void WithFolder(const std::function<void(Principale& main, FileDropWindow& folder)>& act) {
        OleInitialize(nullptr);
        {
            FileDropWindow folder({4, 4}, given);
            WithMainWindow([&](Principale& main) { act(main, folder); });
        }
        OleUninitialize();
    }
    /// Drags a set to the folder, with the others that `select` selects: the drop of this number.
    /// Down within the list first, which sees only there that this is a drag; where it had no time
    /// to, then once more.
    bool Dragged(
        Principale& main, const FileDropWindow& folder, int drops, const std::string& set,
        const std::function<void()>& select = [] {},
        const std::function<void()>& underWay = [] {}) {
        constexpr int kTries = 3;
        for (int i = 0; i < kTries; ++i) {
            select();
            const POINT from = PointOfSet(main, set);
            user::DragThrough({from, {from.x + 40, from.y + 60}, user::CentreOf(folder.window())},
                              underWay);
            if (WaitUntil([&] { return folder.drops() == drops; }, 5000)) return true;
        }
        return false;
    }

    const std::string given = root + "given\\";
};

TEST_F(DraggingOut, CopiesASetThere) {
    WithFolder([&](Principale& main, FileDropWindow& folder) {
        EXPECT_TRUE(Dragged(main, folder, 1, "Red"));
        Settle(main);
        EXPECT_EQ(folder.paths(), Names{logos + "Red"});
        EXPECT_EQ(folder.allowed(), DWORD{DROPEFFECT_COPY});
        EXPECT_EQ(Selected(main), "Red");
        EXPECT_EQ(main.MyList.Count(), 3);
        // The mouse is the list's again.
        ClickSet(main, "Blue");
        EXPECT_EQ(Selected(main), "Blue");
    });
    EXPECT_TRUE(Contents(given + "Red\\LOGOW.SYS") == ScreenFile(255, 0, 0));
    EXPECT_TRUE(Exists(logos + "Red\\LOGOW.SYS"));
}

TEST_F(DraggingOut, CopiesAllThatAreSelectedInEveryView) {
    WithFolder([&](Principale& main, FileDropWindow& folder) {
        int drops = 0;
        for (const int view :
             {ID_ToolListView, ID_ToolReportView, ID_ToolThumbnailView, ID_ToolDetailsView}) {
            Command(main, view);
            const auto select = [&] { ClickAlso(main, "Blue", VK_CONTROL, "Red", 2); };
            EXPECT_TRUE(Dragged(main, folder, ++drops, "Blue", select)) << view;
            EXPECT_EQ(folder.paths(), (Names{logos + "Blue", logos + "Red"})) << view;
            Settle(main);
        }
    });
    EXPECT_EQ(NamesIn(given), (Names{"Blue", "Red"}));
}

TEST_F(DraggingOut, OntoTheListItselfDoesNothing) {
    WithFolder([&](Principale& main, FileDropWindow& folder) {
        const POINT middle = user::CentreOf(main.MyList.handle());
        user::Drag(PointOfSet(main, "Red"), {middle.x, middle.y + 40});
        user::Drag(PointOfSet(main, "Red"), user::CentreOf(main.Imag[0].handle()));
        Settle(main);
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
        EXPECT_EQ(main.MyList.Count(), 3);
        // Its own list takes folders from elsewhere again afterwards.
        EXPECT_TRUE(Dragged(main, folder, 1, "Red"));
    });
    EXPECT_EQ(NamesIn(logos), (Names{"Blue", "Green.SLS", "LOGOS.SYS", "LOGOW.SYS", "Red"}));
}

TEST_F(DraggingOut, LosesNothingWhereASetIsDeletedMeanwhile) {
    WithFolder([&](Principale& main, FileDropWindow& folder) {
        // Before the drag: what is there is copied.
        const auto selectAndDelete = [&] {
            ClickAlso(main, "Blue", VK_CONTROL, "Red", 2);
            RemoveTree(logos + "Red");
        };
        EXPECT_TRUE(Dragged(main, folder, 1, "Blue", selectAndDelete));
        EXPECT_EQ(folder.paths(), Names{logos + "Blue"});
        // While it goes on.
        const auto remove = [&] { RemoveTree(logos + "Green.SLS"); };
        EXPECT_TRUE(Dragged(main, folder, 2, "Green.SLS", [] {}, remove));
        Settle(main);
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
        EXPECT_TRUE(Exists(logos + "Blue\\LOGO.SYS"));
        Command(main, ID_ToolRefresh);
        EXPECT_EQ(main.SetNames(), Names{"Blue"});
    });
    EXPECT_EQ(NamesIn(given), Names{"Blue"});
}

}  // namespace
}  // namespace vistrel::test
