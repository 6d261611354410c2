// How a session of the Logo browser begins, which commands it offers, and how it ends.
#include "tests/editor/editor_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;

namespace {

using Session = LogoBrowser;

std::vector<std::string> NamesOffered(SelPictureForm& editor) {
    std::vector<std::string> names;
    for (int i = 0; i < editor.NameLogoSet.Count(); ++i)
        names.push_back(editor.NameLogoSet.Item(i));
    return names;
}

TEST_F(Session, OffersTheMainWindowsSetsAndItsSelectedOne) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_EQ(NamesOffered(editor), (std::vector<std::string>{"Blue", "Green.SLS", "Red"}));
        EXPECT_EQ(editor.NameLogoSet.ListIndex(), 0);
        EXPECT_EQ(editor.NameLogoSet.Text(), "Blue");
        EXPECT_TRUE(editor.OptCompSet.Value());
    });
}

TEST_F(Session, BeginsWithNothingLoadedAndNothingChanged) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_EQ(editor.LoadedSet, "");
        EXPECT_FALSE(editor.SetChanged || editor.NameChanged || editor.LibraryChanged ||
                     editor.OptionSetByCode || editor.SlotsEnabled);
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(editor.ImgPreview[i].Tag(), "");
            EXPECT_FALSE(editor.AddButton[i].Enabled());
        }
        EXPECT_FALSE(editor.OkButton[0].Enabled());
        EXPECT_FALSE(editor.OkButton[1].Enabled());
        EXPECT_FALSE(editor.EliminaSetBtn.Enabled());
        EXPECT_EQ(editor.ImageInfo.Text(), "No logo selected");
        EXPECT_EQ(editor.ImageInfo.ForeColor(), 255);
    });
}

TEST_F(Session, TakesASetForStartupOnlyByItsEndingInAnyCase) {
    PutSingleSet("Sunset.sls", 255, 0, 0);
    Store("DefaultLogoSet", TextValue("Sunset.sls"));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_TRUE(editor.OptOnlyStart.Value());
        EXPECT_FALSE(editor.OptCompSet.Value());
        EXPECT_FALSE(editor.ImgPreview[1].Visible());
        EXPECT_FALSE(editor.SetChanged);
    });
}

TEST_F(Session, BrowsesTheFolderOfTheLastSession) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_EQ(editor.CurrentFolder, pictures);
        EXPECT_EQ(editor.CurPath.Text(), pictures);
        EXPECT_EQ(editor.Drive1.Drive().substr(0, 2), "C:");
    });
}

TEST_F(Session, BrowsesTheProgramFolderWhenThatFolderIsNoMore) {
    for (const char* lost : {"", "C:\\machine\\lost\\"}) {
        Store("SearchLogoPath", TextValue(lost));
        WithEditor(
            [&](Principale&, SelPictureForm& editor) { EXPECT_EQ(editor.CurrentFolder, program); });
    }
}

TEST_F(Session, KeepsTheFolderForTheNextSession) {
    MakeFolders(pictures + "holidays\\");
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        Open(editor, "holidays");
        Await([&] { return editor.CurrentFolder == pictures + "holidays\\"; }, "folder opened");
        Press(editor.CloseButton);
        Await([&] { return !editor.IsOpen(); }, "closed");
        EXPECT_EQ(main.Preferences().searchLogoPath, pictures + "holidays\\");
    });
}

TEST_F(Session, CreatesOnlyUnderAName) {
    Store("DefaultLogoSet", TextValue("none"));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_EQ(editor.NameLogoSet.Text(), "");
        EXPECT_FALSE(editor.OkButton[0].Enabled());
        TypeName(editor, "N");
        Await([&] { return editor.OkButton[0].Enabled(); }, "create enabled");
        EXPECT_TRUE(editor.NameChanged);
        EXPECT_FALSE(editor.OkButton[1].Enabled());
        TypeName(editor, "");
        Await([&] { return !editor.OkButton[0].Enabled(); }, "create disabled");
        EXPECT_FALSE(editor.OkButton[1].Enabled());
    });
}

TEST_F(Session, OffersBothWaysOfSavingALoadedSetAsItIs) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        EXPECT_EQ(editor.LoadedSet, "Red");
        EXPECT_TRUE(editor.OkButton[0].Enabled());
        EXPECT_TRUE(editor.OkButton[1].Enabled());
        EXPECT_TRUE(editor.EliminaSetBtn.Enabled());
    });
}

TEST_F(Session, OffersOnlyTheUpdateOfALoadedSetWithAnotherPicture) {
    Put(pictures + "New.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Fill(editor, "New.sys", 1);
        EXPECT_FALSE(editor.OkButton[0].Enabled());
        EXPECT_TRUE(editor.OkButton[1].Enabled());
        EXPECT_FALSE(editor.EliminaSetBtn.Enabled());
        TypeName(editor, "Redder");
        Await([&] { return editor.OkButton[0].Enabled(); }, "create enabled by another name");
        EXPECT_TRUE(editor.OkButton[1].Enabled());
    });
}

TEST_F(Session, DisablesBothWaysOfSavingWhenTheNameOfALoadedSetIsErased) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        TypeName(editor, "");
        Await([&] { return !editor.OkButton[0].Enabled(); }, "create disabled");
        EXPECT_FALSE(editor.OkButton[1].Enabled());
    });
}

TEST_F(Session, LoadsASetThatIsChosenAgainWithTheMouse) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        // "Blue" stands in the field already.
        RECT r{};
        GetWindowRect(editor.NameLogoSet.handle(), &r);
        user::ClickAt({r.right - 8, (r.top + r.bottom) / 2});
        Await(
            [&] {
                return SendMessageA(editor.NameLogoSet.handle(), CB_GETDROPPEDSTATE, 0, 0) != 0;
            },
            "list open");
        user::ClickAt({r.left + 20, r.bottom + 6});
        Await([&] { return editor.EliminaSetBtn.Enabled(); }, "set loaded");
        EXPECT_EQ(editor.LoadedSet, "Blue");
        EXPECT_TRUE(editor.ImgPreview[2].HasPicture());
    });
}

TEST_F(Session, AsksBeforeDiscardingWhatCouldBeSaved) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        const user::Box box = PressAndAnswer(editor.CloseButton, IDNO);
        EXPECT_EQ(box.text, "You haven't saved the last changes. Would you like to discard them?");
        EXPECT_EQ(box.title, "Vistrel");
        EXPECT_EQ(box.icon, static_cast<unsigned>(MB_ICONQUESTION));
        EXPECT_EQ(box.buttons, (std::vector<int>{IDYES, IDNO}));
        EXPECT_EQ(box.default_button, IDNO);
    });
}

TEST_F(Session, StaysAsItIsWhenTheUserDoesNotDiscard) {
    Put(pictures + "New.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Fill(editor, "New.sys", 1);
        TypeName(editor, "Other");
        PressAndAnswer(editor.CloseButton, IDNO);
        EXPECT_TRUE(editor.IsOpen());
        EXPECT_EQ(editor.NameLogoSet.Text(), "Other");
        EXPECT_EQ(editor.ImgPreview[1].Tag(), pictures + "New.sys");
        EXPECT_TRUE(editor.SetChanged);
        EXPECT_TRUE(editor.NameChanged);
        EXPECT_EQ(editor.LoadedSet, "Red");
    });
}

TEST_F(Session, AsksOnceWhenItIsClosedTwiceFast) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        const HWND window = editor.handle();
        PostMessageA(window, WM_CLOSE, 0, 0);
        PostMessageA(window, WM_CLOSE, 0, 0);
        user::AnswerBox(IDYES);
        EXPECT_TRUE(user::WaitUntilGone(window));
    });
}

TEST_F(Session, ClosesOnceWhenItIsClosedTwiceFastWithNothingToSave) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        const HWND window = editor.handle();
        PostMessageA(editor.CloseButton.handle(), BM_CLICK, 0, 0);
        PostMessageA(editor.CloseButton.handle(), BM_CLICK, 0, 0);
        EXPECT_TRUE(user::WaitUntilGone(window));
        EXPECT_TRUE(IsWindowEnabled(main.handle()));
    });
}

TEST_F(Session, RefreshesTheMainWindowAfterTheLibraryChanged) {
    for (const char* set : {"Blue", "Green.SLS", "Red"}) RemoveTree(logos + set);
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        EXPECT_EQ(main.NumLogo.Text(), " 0 logo sets");
        TypeName(editor, "First");
        Run(editor, ID_OkButton);
        EXPECT_EQ(main.NumLogo.Text(), " 0 logo sets");  // not before the editor closes
        Press(editor.CloseButton);
        Await([&] { return !editor.IsOpen(); }, "closed");
        EXPECT_EQ(main.SetNames(), (std::vector<std::string>{"First"}));
        EXPECT_EQ(main.NumLogo.Text(), " 1 logo set");
    });
}

TEST_F(Session, LeavesTheMainWindowAloneWhenNothingWasWritten) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        PutSet("Behind", 1, 1, 1);
        Press(editor.CloseButton);
        Await([&] { return !editor.IsOpen(); }, "closed");
        EXPECT_EQ(main.NumLogo.Text(), " 3 logo sets");
    });
}

TEST_F(Session, ForgetsNothingWhenAPreviewWasLookedAt) {
    Put(pictures + "New.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        TypeName(editor, "Typed");
        Pick(editor, "New.sys");
        const HWND view = user::ClickToOpen(editor.CurView.handle(), "FrmView");
        ASSERT_NE(view, nullptr);
        EXPECT_TRUE(user::Click(view));
        EXPECT_TRUE(user::WaitUntilGone(view));
        Settle(editor);
        EXPECT_EQ(editor.NameLogoSet.Text(), "Typed");
        EXPECT_FALSE(editor.ActivateOnce);
    });
}

TEST_F(Session, EndsWithTheSystemsAfterALabelThatIsBeingEdited) {
    Put(pictures + "old.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "old.sys");
        Run(editor, ID_BrowserRename);
        Await([&] { return editor.LogoList.EditingLabel(); }, "label edited");
        const auto edit = reinterpret_cast<HWND>(
            SendMessageA(editor.LogoList.handle(), 0x1000 + 24 /* LVM_GETEDITCONTROL */, 0, 0));
        user::Type("new.sys");
        Await([&] { return user::TextOf(edit) == "new.sys"; }, "typed");
        EXPECT_NE(SendMessageA(editor.handle(), WM_QUERYENDSESSION, 0, 0), 0);
        SendMessageA(editor.handle(), WM_ENDSESSION, TRUE, 0);
        EXPECT_TRUE(Exists(pictures + "new.sys"));
        EXPECT_FALSE(Exists(pictures + "old.sys"));
    });
}

TEST_F(Session, KeepsItsTipsAndListsWhenEveryWindowIsAskedToClose) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const std::vector<HWND> helpers = seen::HelpersOf(editor.handle());
        for (const HWND helper : helpers) SendMessageA(helper, WM_CLOSE, 0, 0);
        EXPECT_EQ(seen::HelpersOf(editor.handle()), helpers);
        EXPECT_EQ(seen::TipOver(editor.ImgPreview[0].handle()), "LOGO.SYS: startup screen");
        SendMessageA(editor.NameLogoSet.handle(), CB_SHOWDROPDOWN, TRUE, 0);
        EXPECT_NE(user::FindTop("ComboLBox"), nullptr);
        SendMessageA(editor.NameLogoSet.handle(), CB_SHOWDROPDOWN, FALSE, 0);
    });
}

TEST_F(Session, TipsNameTheSlots) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_EQ(editor.ImgPreview[0].tip(), "LOGO.SYS: startup screen");
        EXPECT_EQ(editor.ImgPreview[1].tip(), "LOGOW.SYS: wait screen");
        EXPECT_EQ(editor.ImgPreview[2].tip(), "LOGOS.SYS: shutdown screen");
    });
}

TEST_F(Session, EveryControlHasItsHelp) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        for (const auto& [id, control] : editor.controls()) {
            if (!control->Visible() || id == ID_Label1 || id == ID_Label3 || id == ID_Frame1)
                continue;
            if (id >= ID_LblSlot && id < ID_LblSlot + 3) continue;
            EXPECT_NE(control->helpNumber(), 0) << id;
        }
    });
}

}  // namespace
}  // namespace vistrel::test
