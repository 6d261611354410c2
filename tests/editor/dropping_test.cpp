// Pictures, screens and folders dropped on the Logo browser from another program.
#include <ole2.h>

#include "tests/editor/editor_fixture.h"
#include "tests/main_window/file_drag_source.h"

namespace vistrel::test {

using namespace controls;
using namespace editor;
using namespace main_window;

namespace {

class Dropping : public LogoBrowser {
 protected:
    Dropping() {
        MakeFolders(elsewhere);
        MakeFolders(elsewhere + "more\\");
        Put(elsewhere + "photo.bmp", BmpOf(TestPicture(40, 30)));
        Put(elsewhere + "screen.sys", ScreenFile(0, 255, 0));
        Put(elsewhere + "other.sys", ScreenFile(255, 0, 0));
        Put(elsewhere + "note.txt", "no picture");
        Put(pictures + "here.bmp", BmpOf(TestPicture(20, 20)));
    }

    /// Drags these paths from another window onto a control of the Logo browser; then `look` looks.
    void Drop(const Names& paths,
              const std::function<const Control&(SelPictureForm& editor)>& target,
              const std::function<void(SelPictureForm& editor)>& look) {
        OleInitialize(nullptr);
        {
            FileDragSource source({4, 4}, paths);
            WithEditor([&](Principale&, SelPictureForm& editor) {
                user::Drag(user::CentreOf(source.window()),
                           user::CentreOf(target(editor).handle()));
                Await([&] { return source.effect() != ~DWORD{0}; }, "dropped");
                effect_ = source.effect();
                Settle(editor);
                look(editor);
            });
        }
        OleUninitialize();
    }
    static const Control& List(SelPictureForm& editor) { return editor.LogoList; }
    static const Control& Slot0(SelPictureForm& editor) { return editor.ImgPreview[0]; }
    static const Control& Slot2(SelPictureForm& editor) { return editor.ImgPreview[2]; }
    static Names SelectedIn(SelPictureForm& editor) {
        Names names;
        for (const int item : editor.LogoList.SelectedItems())
            names.push_back(editor.LogoList.ItemText(item));
        return names;
    }

    const std::string elsewhere = root + "elsewhere\\";
    DWORD effect_ = 0;
};

TEST_F(Dropping, AScreenOnASlotFillsItAsItIs) {
    Drop({elsewhere + "screen.sys"}, Slot2, [&](SelPictureForm& editor) {
        user::TakeShot("dropped_on_slot", editor.handle());
        EXPECT_EQ(editor.ImgPreview[2].Tag(), elsewhere + "screen.sys");
        EXPECT_EQ(MiddleOf(editor.ImgPreview[2]), kGreenScreen);
        EXPECT_EQ(editor.ImgPreview[0].Tag(), "");
        EXPECT_TRUE(editor.SetChanged);
        // The browser stays where it is, and shows what was dropped beside it.
        EXPECT_EQ(editor.CurrentFolder, pictures);
        EXPECT_EQ(SelectedIn(editor), Names{});
        EXPECT_EQ(editor.CurView.Tag(), elsewhere + "screen.sys");
    });
    EXPECT_EQ(effect_, DWORD{DROPEFFECT_COPY});
    EXPECT_TRUE(Exists(elsewhere + "screen.sys"));
}

TEST_F(Dropping, APictureOnASlotIsConverted) {
    Drop({pictures + "here.bmp"}, Slot0, [&](SelPictureForm& editor) {
        Await([&] { return editor.ImgPreview[0].HasPicture(); }, "slot filled");
        EXPECT_NE(editor.ImgPreview[0].Tag(), pictures + "here.bmp");
        EXPECT_EQ(Contents(editor.ImgPreview[0].Tag()).value_or("").size(),
                  ScreenFile(0, 0, 0).size());
        EXPECT_EQ(SelectedIn(editor), Names{"here.bmp"});
    });
}

TEST_F(Dropping, WhatIsNoPictureLeavesASlotAsItIs) {
    for (const char* name : {"note.txt", "more"})
        Drop({elsewhere + name}, Slot0, [&](SelPictureForm& editor) {
            EXPECT_EQ(editor.ImgPreview[0].Tag(), "") << name;
            EXPECT_EQ(editor.ImageInfo.Text(), "No logo selected") << name;
            EXPECT_FALSE(editor.SetChanged) << name;
        });
}

TEST_F(Dropping, APictureOnTheListIsSelectedInItsFolder) {
    Drop({elsewhere + "screen.sys", elsewhere + "other.sys"}, List, [&](SelPictureForm& editor) {
        user::TakeShot("dropped_on_list", editor.handle());
        EXPECT_EQ(editor.CurrentFolder, elsewhere);
        EXPECT_EQ(editor.CurPath.Text(), elsewhere);
        EXPECT_EQ(SelectedIn(editor), (Names{"other.sys", "screen.sys"}));
        EXPECT_EQ(editor.CurView.Tag(), elsewhere + "screen.sys");
        EXPECT_EQ(editor.ImageInfo.Text(), "320 x  400 x  256");
        EXPECT_TRUE(editor.AddButton[0].Enabled());
        EXPECT_FALSE(editor.SetChanged);
    });
}

TEST_F(Dropping, AFolderOnTheListIsBrowsed) {
    Drop({root + "elsewhere"}, List, [&](SelPictureForm& editor) {
        EXPECT_EQ(editor.CurrentFolder, elsewhere);
        EXPECT_EQ(Listed(editor), (Names{"..", "more", "other.sys", "photo.bmp", "screen.sys"}));
    });
}

TEST_F(Dropping, AFileOfAnotherKindOnTheListIsNoLogo) {
    Drop({elsewhere + "note.txt"}, List, [&](SelPictureForm& editor) {
        EXPECT_EQ(editor.CurrentFolder, elsewhere);
        EXPECT_EQ(editor.ImageInfo.Text(), "No logo selected");
        EXPECT_EQ(SelectedIn(editor), Names{});
    });
}

}  // namespace
}  // namespace vistrel::test
