// What the slots keep, and which file of a set each of them is written from and to.
#include "tests/editor/editor_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace editor;
using namespace main_window;

namespace {

using Slots = LogoBrowser;
const std::string kRedScreen = ScreenFile(255, 0, 0);
const std::string kNewScreen = ScreenFile(10, 20, 30);

TEST_F(Slots, KeepTheirPicturesOverTheThreeTypesAndBack) {
    Put(pictures + "new.sys", kNewScreen);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Fill(editor, "new.sys", 2);
        Press(editor.OptDefShut);
        Press(editor.OptOnlyStart);
        Press(editor.OptDefShut);
        Press(editor.OptCompSet);
        EXPECT_EQ(editor.ImgPreview[1].Tag(), logos + "Red\\LOGOW.SYS");
        EXPECT_EQ(editor.ImgPreview[2].Tag(), pictures + "new.sys");
        EXPECT_EQ(MiddleOf(editor.ImgPreview[1]), kRed);
        Run(editor, ID_OkButton + 1);
        EXPECT_EQ(Contents(logos + "Red\\LOGOW.SYS"), kRedScreen);
        EXPECT_EQ(Contents(logos + "Red\\LOGOS.SYS"), kNewScreen);
    });
}

TEST_F(Slots, OfTheSharedScreensCanBeEmptiedWhatTheLoadedSetLacks) {
    DeleteFileA((logos + "Red\\LOGOS.SYS").c_str());
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        EXPECT_FALSE(IsWindowEnabled(editor.DeleteButton[2].handle()));
        Press(editor.OptDefShut);
        EXPECT_TRUE(IsWindowEnabled(editor.DeleteButton[2].handle()));
        Press(editor.OptCompSet);
        EXPECT_FALSE(IsWindowEnabled(editor.DeleteButton[2].handle()));
    });
}

/// Which slots' "Delete" buttons can be pressed.
std::vector<bool> CanBeEmptied(SelPictureForm& editor) {
    std::vector<bool> enabled;
    for (const Button& button : editor.DeleteButton)
        enabled.push_back(IsWindowEnabled(button.handle()) != 0);
    return enabled;
}

TEST_F(Slots, CanBeEmptiedWhereALoadedSetHasAScreenAndAfterOneWasAdded) {
    Put(pictures + "new.sys", kNewScreen);
    DeleteFileA((logos + "Red\\LOGOW.SYS").c_str());
    Put(logos + "Red\\LOGOS.SYS", "This is no picture.");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        EXPECT_EQ(CanBeEmptied(editor), (std::vector<bool>{true, false, false}));
        Fill(editor, "new.sys", 1);
        EXPECT_EQ(CanBeEmptied(editor), (std::vector<bool>{true, true, false}));
        Press(editor.DeleteButton[1]);
        ChooseSet(editor, "Blue");
        EXPECT_EQ(CanBeEmptied(editor), (std::vector<bool>{true, true, true}));
    });
}

TEST_F(Slots, SayThatTheyHoldNothingBeforeASetIsChosen) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        for (const PictureBox& slot : editor.ImgPreview) EXPECT_TRUE(Says(slot, "no picture"));
        EXPECT_TRUE(Says(editor.CurView, "no picture"));
        user::TakeShot("editor_nothing_chosen");
    });
}

TEST_F(Slots, ThatNameAMissingFileEndTheUpdate) {
    DeleteFileA((logos + "Red\\LOGOW.SYS").c_str());
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        const user::Box box = RunAndAnswer(editor, ID_OkButton + 1, IDOK);
        EXPECT_EQ(box.text, "A directory named " + logos +
                                "Red\\LOGOW.SYS already exist or bad directory name!");
        EXPECT_EQ(NamesIn(logos + "Red\\"), (Names{"LOGO.SYS", "LOGOS.SYS"}));
        DeleteFileA((logos + "LOGOS.SYS").c_str());
        Press(editor.OptDefShut);
        const user::Box shared = PressAndAnswer(editor.ActButton, IDOK);
        EXPECT_EQ(shared.text,
                  "A directory named " + logos + "LOGOS.SYS already exist or bad directory name!");
    });
}

TEST_F(Slots, AreSwappedByAnUpdate) {
    Put(logos + "Red\\LOGOS.SYS", kNewScreen);
    Store("SearchLogoPath", TextValue(logos + "Red\\"));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Fill(editor, "LOGOS.SYS", 0);
        Fill(editor, "LOGO.SYS", 2);
        Run(editor, ID_OkButton + 1);
        EXPECT_EQ(Contents(logos + "Red\\LOGO.SYS"), kNewScreen);
        EXPECT_EQ(Contents(logos + "Red\\LOGOS.SYS"), kRedScreen);
        EXPECT_EQ(Contents(logos + "Red\\LOGOW.SYS"), kRedScreen);
    });
}

TEST_F(Slots, TakeAScreenWhoseOwnSlotWasEmptied) {
    Put(logos + "Red\\LOGO.SYS", kNewScreen);
    Store("SearchLogoPath", TextValue(logos + "Red\\"));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Fill(editor, "LOGO.SYS", 1);
        Press(editor.DeleteButton[0]);
        RunAndAnswer(editor, ID_OkButton + 1, IDOK);  // an empty slot ends the update
        Pick(editor, "LOGOS.SYS");
        Press(editor.AddButton[0]);
        Run(editor, ID_OkButton + 1);
        EXPECT_EQ(Contents(logos + "Red\\LOGOW.SYS"), kNewScreen);
        EXPECT_EQ(Contents(logos + "Red\\LOGO.SYS"), kRedScreen);
    });
}

TEST_F(Slots, OfTheSharedScreensAreSwapped) {
    Put(logos + "LOGOS.SYS", kNewScreen);
    Store("SearchLogoPath", TextValue(logos));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Press(editor.OptDefShut);
        Fill(editor, "LOGOS.SYS", 1);
        Fill(editor, "LOGOW.SYS", 2);
        Press(editor.ActButton);
        EXPECT_EQ(Contents(logos + "LOGOW.SYS"), kNewScreen);
        EXPECT_EQ(Contents(logos + "LOGOS.SYS"), ScreenFile(255, 255, 255));
    });
}

TEST_F(Slots, AreEmptiedBeforeAnyOfTheTwoIsCopied) {
    Put(pictures + "new.sys", kNewScreen);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Fill(editor, "new.sys", 0);
        Fill(editor, "new.sys", 1);
        Press(editor.DeleteButton[2]);
        DeleteFileA((logos + "Red\\LOGOS.SYS").c_str());
        RunAndAnswer(editor, ID_OkButton + 1, IDOK);
        // The startup screen came first; then the third could not be deleted.
        EXPECT_EQ(Contents(logos + "Red\\LOGO.SYS"), kNewScreen);
        EXPECT_EQ(Contents(logos + "Red\\LOGOW.SYS"), kRedScreen);
    });
}

TEST_F(Slots, TheStartupSlotIsEmptiedFirstOfAll) {
    Put(pictures + "new.sys", kNewScreen);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Fill(editor, "new.sys", 1);
        Press(editor.DeleteButton[0]);
        RunAndAnswer(editor, ID_OkButton + 1, IDOK);
        EXPECT_EQ(NamesIn(logos + "Red\\"), (Names{"LOGOS.SYS", "LOGOW.SYS"}));
        EXPECT_EQ(Contents(logos + "Red\\LOGOW.SYS"), kRedScreen);
    });
}

TEST_F(Slots, OfTheSharedScreensAreEmptiedBeforeTheyAreCopied) {
    Put(pictures + "new.sys", kNewScreen);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Press(editor.OptDefShut);
        Fill(editor, "new.sys", 1);
        Press(editor.DeleteButton[2]);
        DeleteFileA((logos + "LOGOS.SYS").c_str());
        PressAndAnswer(editor.ActButton, IDOK);
        EXPECT_EQ(Contents(logos + "LOGOW.SYS"), ScreenFile(255, 255, 255));
    });
}

TEST_F(Slots, SaveUnderTheNameThatTheFolderGets) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        TypeName(editor, "Fresh. ");
        Run(editor, ID_OkButton);
        EXPECT_TRUE(Exists(logos + "Fresh"));
        EXPECT_EQ(editor.NameLogoSet.Text(), "Fresh");
        EXPECT_EQ(editor.NameLogoSet.Item(3), "Fresh");
        ChooseSet(editor, "Red");
        TypeName(editor, "Crimson .");
        Run(editor, ID_OkButton + 1);
        EXPECT_EQ(editor.NameLogoSet.Text(), "Crimson");
        TypeName(editor, "Scarlet.SLS ");
        Press(editor.OptOnlyStart);
        Run(editor, ID_OkButton + 1);
        EXPECT_EQ(editor.NameLogoSet.Text(), "Scarlet.SLS");
        EXPECT_EQ(NamesIn(logos + "Scarlet.SLS\\"), (Names{"LOGO.SYS"}));
    });
}

TEST_F(Slots, AreNotSavedUnderANameThatLeadsElsewhere) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        for (const char* name : {"..\\Out", "Blue\\Inner", "Blue/Inner", "NUL", ".."}) {
            TypeName(editor, name);
            const user::Box created = RunAndAnswer(editor, ID_OkButton, IDOK);
            EXPECT_EQ(created.text, std::string("A directory named ") + name +
                                        " already exist or bad directory name!");
            ChooseSet(editor, "Red");
            TypeName(editor, name);
            const user::Box updated = RunAndAnswer(editor, ID_OkButton + 1, IDOK);
            EXPECT_EQ(updated.text, created.text);
            EXPECT_EQ(NamesIn(logos),
                      (Names{"Blue", "Green.SLS", "LOGOS.SYS", "LOGOW.SYS", "Red"}));
            EXPECT_FALSE(Exists(root + "Out") || Exists(logos + "Blue\\Inner"));
        }
    });
}

TEST_F(Slots, AChangeOfCaseRenamesTheSetOnTheDisk) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        TypeName(editor, "RED");
        Run(editor, ID_OkButton + 1);
        EXPECT_EQ(NamesIn(logos), (Names{"Blue", "Green.SLS", "LOGOS.SYS", "LOGOW.SYS", "RED"}));
        EXPECT_EQ(editor.NameLogoSet.Text(), "RED");
    });
}

TEST_F(Slots, AreReportedInALineWhenTheyAreWritten) {
    Put(pictures + "new.sys", kNewScreen);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const auto line = [&] { return user::TextOf(editor.LblWritten.handle()); };
        EXPECT_EQ(line(), "");
        ChooseSet(editor, "Red");
        Run(editor, ID_OkButton + 1);
        EXPECT_EQ(line(), "Updated Red: LOGO.SYS, LOGOW.SYS, LOGOS.SYS");
        Fill(editor, "new.sys", 0);
        EXPECT_EQ(line(), "");
        Run(editor, ID_ClearAllButton);
        TypeName(editor, "Fresh");
        Fill(editor, "new.sys", 1);
        Run(editor, ID_OkButton);
        EXPECT_EQ(line(), "Created Fresh: LOGOW.SYS");
        TypeName(editor, "Bare");
        EXPECT_EQ(line(), "");
        Press(editor.DeleteButton[1]);
        Run(editor, ID_OkButton);
        EXPECT_EQ(line(), "Created Bare: no screens");
        Press(editor.OptDefShut);
        Press(editor.ActButton);
        EXPECT_EQ(line(), "Saved the default screens: LOGOW.SYS, LOGOS.SYS");
        Press(editor.OptCompSet);
        TypeName(editor, "Red");
        RunAndAnswer(editor, ID_OkButton, IDOK);
        EXPECT_EQ(line(), "");
    });
}

TEST_F(Slots, ASetWithoutANameIsNeverDeleted) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        TypeName(editor, "");
        EXPECT_FALSE(seen::RowOf(ActionMenu(editor), ID_EliminaSetBtn).enabled);
        Press(editor.OptDefShut);
        Press(editor.ActButton);
        Press(editor.OptCompSet);
        EXPECT_FALSE(seen::RowOf(ActionMenu(editor), ID_EliminaSetBtn).enabled);
    });
}

TEST_F(Slots, LoadingASetForgetsThatANameWasTyped) {
    Put(pictures + "new.sys", kNewScreen);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        TypeName(editor, "Typed");
        ChooseSet(editor, "Red");
        Fill(editor, "new.sys", 1);
        const HMENU menu = ActionMenu(editor);
        EXPECT_FALSE(seen::RowOf(menu, ID_OkButton).enabled);
        EXPECT_TRUE(seen::RowOf(menu, ID_OkButton + 1).enabled);
    });
}

TEST_F(Slots, WhatWasCreatedUpdatedOrDeletedIsSeenInTheListAtOnce) {
    Store("SearchLogoPath", TextValue(logos));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        main.Preferences().deleteInTheRecycleBin = 0;
        TypeName(editor, "Fresh");
        Run(editor, ID_OkButton);
        EXPECT_GE(editor.LogoList.FindItem("Fresh"), 0);
        ChooseSet(editor, "Red");
        TypeName(editor, "Crimson");
        Run(editor, ID_OkButton + 1);
        EXPECT_GE(editor.LogoList.FindItem("Crimson"), 0);
        Run(editor, ID_EliminaSetBtn);
        EXPECT_EQ(editor.LogoList.FindItem("Crimson"), -1);
    });
}

TEST_F(Slots, ACommandThatFailsRefreshesTheMainWindowAtClosingToo) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        PutSet("Behind", 1, 1, 1);
        TypeName(editor, "Red");
        RunAndAnswer(editor, ID_OkButton, IDOK);
        PressAndAnswer(editor.CloseButton, IDYES);
        Await([&] { return !editor.IsOpen(); }, "closed");
        EXPECT_EQ(user::TextOf(main.NumLogo.handle()), " 4 logo sets");
    });
}

}  // namespace
}  // namespace vistrel::test
