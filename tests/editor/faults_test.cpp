// Every command of the Logo browser with each of its operations made to fail in turn: whatever
// fails, no screen and no picture is lost that the command was not asked to replace or delete.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <algorithm>
#include <atomic>
#include <map>

#include "platform/fault.h"
#include "tests/editor/editor_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace core;
using namespace editor;
using namespace main_window;
using namespace platform;

namespace {

const std::string kRedScreen = ScreenFile(255, 0, 0);
const std::string kDarkScreen = ScreenFile(128, 0, 0);
const std::string kNewScreen = ScreenFile(10, 20, 30);

using Files = std::map<std::string, std::string>;

void Collect(const std::string& folder, Files& files) {
    for (const std::string& name : NamesIn(folder)) {
        const std::string path = folder + name;
        if (GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_DIRECTORY)
            Collect(path + "\\", files);
        else
            files[path] = Contents(path).value_or("");
    }
}

class Faults : public LogoBrowser {
 protected:
    Faults() {
        Put(logos + "Red\\LOGOS.SYS", kDarkScreen);
        Put(pictures + "new.sys", kNewScreen);
        Put(pictures + "a.bmp", BmpOf(TestPicture(16, 12)));
        before_ = OnDisk();
    }

    Files OnDisk() const {
        Files files;
        Collect(logos, files);
        Collect(pictures, files);
        return files;
    }

    /// Puts library and pictures back as they were, and the browser into this folder.
    void StartAgain(SelPictureForm& editor, const std::string& folder) {
        for (const auto& [path, contents] : OnDisk())
            if (!before_.contains(path)) DeleteFileA(path.c_str());
        for (const std::string& name : NamesIn(logos))
            if (name != "Blue" && name != "Green.SLS" && name != "Red") RemoveFolderIfOne(name);
        for (const auto& [path, contents] : before_) {
            if (Contents(path) == contents) continue;
            MakeFolders(path.substr(0, path.rfind('\\') + 1));
            Put(path, contents);
        }
        editor.CurrentFolder = folder;
        Run(editor, ID_BrowserRefresh);
        if (editor.NameLogoSet.FindItem("Red") < 0) editor.NameLogoSet.AddItem("Red");
        const int crimson = editor.NameLogoSet.FindItem("Crimson");
        if (crimson >= 0) editor.NameLogoSet.RemoveItem(crimson);
    }
    void RemoveFolderIfOne(const std::string& name) { RemoveDirectoryA((logos + name).c_str()); }

    /// Runs `act` and answers everything that is asked meanwhile with its Yes or OK.
    static void Answering(const std::function<void()>& act) {
        std::atomic<bool> done = false;
        user::Meanwhile answering([&] {
            while (!done) {
                const HWND box = user::FindTop("#32770");
                if (!box) {
                    MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
                    continue;
                }
                for (const int button : {IDYES, IDOK, IDCANCEL})
                    if (HWND wanted = GetDlgItem(box, button)) {
                        SendMessageA(wanted, BM_CLICK, 0, 0);
                        break;
                    }
            }
        });
        act();
        done = true;
        answering.Finish();
    }

    /// Runs a command with each operation failing. What `changeable` does not say of a file is to
    /// stay as it was.
    void ExpectNothingElseLost(SelPictureForm& editor, const std::function<void()>& prepare,
                               const std::function<void()>& command,
                               const std::vector<std::string>& changeable) {
        const auto start = [&] {
            StartAgain(editor, pictures);
            prepare();
            Settle(editor);
        };
        const auto check = [&](int failed) {
            const Files after = OnDisk();
            for (const auto& [path, contents] : before_) {
                if (MayChange(path, changeable)) continue;
                const auto found = after.find(path);
                EXPECT_TRUE(found != after.end() && found->second == contents)
                    << path << " with operation " << failed << " failing";
            }
            EXPECT_TRUE(editor.IsOpen());
        };
        WithEachOperationFailing(start, [&] { Answering(command); }, check);
    }

    static bool MayChange(const std::string& path, const std::vector<std::string>& changeable) {
        return std::any_of(changeable.begin(), changeable.end(),
                           [&](const std::string& part) { return path.starts_with(part); });
    }

 private:
    Files before_;
};

TEST_F(Faults, LookingAndConvertingChangeNothing) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const auto nothing = [] {};
        ExpectNothingElseLost(editor, nothing, [&] { Pick(editor, "a.bmp"); }, {});
        ExpectNothingElseLost(editor, nothing, [&] { Run(editor, ID_BrowserRefresh); }, {});
        ExpectNothingElseLost(
            editor, [&] { Pick(editor, "a.bmp"); }, [&] { Press(editor.AddButton[1]); }, {});
    });
}

TEST_F(Faults, CreatingASetTouchesNoOther) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const auto fill = [&] {
            ChooseSet(editor, "Red");
            Fill(editor, "new.sys", 0);
            editor.NameLogoSet.SetText("Fresh");
        };
        ExpectNothingElseLost(editor, fill, [&] { Run(editor, ID_OkButton); }, {});
    });
}

TEST_F(Faults, AnUpdateTouchesOnlyTheScreenThatItReplaces) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const auto fill = [&] {
            ChooseSet(editor, "Red");
            Fill(editor, "new.sys", 1);
        };
        ExpectNothingElseLost(editor, fill, [&] { Run(editor, ID_OkButton + 1); },
                              {logos + "Red\\LOGOW.SYS"});
    });
}

TEST_F(Faults, ARenamedSetHasAllItsScreensUnderTheOldNameOrTheNew) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        int renamed = 0;
        WithEachOperationFailing(
            [&] {
                StartAgain(editor, pictures);
                ChooseSet(editor, "Red");
                editor.NameLogoSet.SetText("Crimson");
            },
            [&] { Answering([&] { Run(editor, ID_OkButton + 1); }); },
            [&](int failed) {
                const bool moved = Exists(logos + "Crimson");
                renamed += moved;
                const std::string folder = logos + (moved ? "Crimson\\" : "Red\\");
                EXPECT_EQ(Contents(folder + "LOGO.SYS"), kRedScreen) << failed;
                EXPECT_EQ(Contents(folder + "LOGOW.SYS"), kRedScreen) << failed;
                EXPECT_EQ(Contents(folder + "LOGOS.SYS"), kDarkScreen) << failed;
            });
        EXPECT_GT(renamed, 0);
    });
}

TEST_F(Faults, OfTwoScreensThatAreSwappedNoneIsLost) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const auto swap = [&] {
            StartAgain(editor, logos + "Red\\");
            ChooseSet(editor, "Red");
            Fill(editor, "LOGOS.SYS", 0);
            Fill(editor, "LOGO.SYS", 2);
        };
        WithEachOperationFailing(
            swap, [&] { Answering([&] { Run(editor, ID_OkButton + 1); }); },
            [&](int failed) {
                // In the set, or in what the slots hold until the session ends.
                std::vector<std::string> kept;
                for (const char* screen : kScreenFileNames)
                    kept.push_back(Contents(logos + "Red\\" + screen).value_or(""));
                for (const PictureBox& slot : editor.ImgPreview)
                    kept.push_back(Contents(slot.Tag()).value_or(""));
                for (const std::string& screen : {kRedScreen, kDarkScreen})
                    EXPECT_NE(std::find(kept.begin(), kept.end(), screen), kept.end()) << failed;
                EXPECT_EQ(Contents(logos + "Red\\LOGOW.SYS"), kRedScreen) << failed;
            });
    });
}

TEST_F(Faults, ATypeThatChangesCostsTheTwoScreensThatItDrops) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const auto turn = [&] {
            ChooseSet(editor, "Green.SLS");
            Fill(editor, "new.sys", 0);
        };
        ExpectNothingElseLost(editor, turn, [&] { Run(editor, ID_OkButton + 1); },
                              {logos + "Green.SLS\\"});
    });
}

TEST_F(Faults, SavingTheSharedScreensTouchesTheOneThatWasReplaced) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const auto fill = [&] {
            Press(editor.OptCompSet);
            Press(editor.OptDefShut);
            Fill(editor, "new.sys", 2);
        };
        ExpectNothingElseLost(editor, fill, [&] { Press(editor.ActButton); },
                              {logos + "LOGOS.SYS"});
    });
}

TEST_F(Faults, DeletingASetTouchesNoOther) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        main.Preferences().deleteInTheRecycleBin = 0;
        const auto load = [&] { ChooseSet(editor, "Red"); };
        ExpectNothingElseLost(editor, load, [&] { Run(editor, ID_EliminaSetBtn); },
                              {logos + "Red\\"});
        main.Preferences().deleteInTheRecycleBin = 1;
        ExpectNothingElseLost(editor, load, [&] { Run(editor, ID_EliminaSetBtn); },
                              {logos + "Red\\"});
        const auto pick = [&] { Pick(editor, "new.sys"); };
        ExpectNothingElseLost(editor, pick, [&] { Run(editor, ID_BrowserDelete); },
                              {pictures + "new.sys"});
    });
}

TEST_F(Faults, ARenamedPictureIsThereUnderTheOldNameOrTheNew) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        WithEachOperationFailing(
            [&] {
                StartAgain(editor, pictures);
                Pick(editor, "new.sys");
                Run(editor, ID_BrowserRename);
                Await([&] { return editor.LogoList.EditingLabel(); }, "label edited");
                user::Type("other.sys");
                const auto edit = reinterpret_cast<HWND>(
                    SendMessageA(editor.LogoList.handle(), LVM_GETEDITCONTROL, 0, 0));
                Await([&] { return user::TextOf(edit) == "other.sys"; }, "typed");
            },
            [&] {
                Answering([&] {
                    user::Press(VK_RETURN);
                    Await([&] { return !editor.LogoList.EditingLabel(); }, "edit ended");
                    Await([] { return user::FindTop("#32770") == nullptr; }, "answered");
                    Settle(editor);
                });
            },
            [&](int failed) {
                const auto old = Contents(pictures + "new.sys");
                EXPECT_EQ(old ? old : Contents(pictures + "other.sys"), kNewScreen) << failed;
            });
    });
}

TEST_F(Faults, TheBrowserClosesWhateverFails) {
    for (int failing = 1; failing <= 6; ++failing) {
        Store("SearchLogoPath", TextValue(pictures));
        WithEditor([&](Principale&, SelPictureForm& editor) {
            Fill(editor, "a.bmp", 0);
            fault::FailOperation(failing);
            Answering([&] {
                PostMessageA(editor.handle(), WM_CLOSE, 0, 0);
                Await([&] { return !editor.IsOpen(); }, "closed");
            });
            fault::Reset();
        });
    }
}

}  // namespace
}  // namespace vistrel::test
