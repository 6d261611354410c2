// Dragging pictures onto the slots.
#include "tests/editor/editor_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace editor;
using namespace main_window;

namespace {

using Dragging = LogoBrowser;

TEST_F(Dragging, PutsThePreviewIntoASlot) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "new.sys");
        for (int i = 0; i < 3; ++i) {
            user::Drag(user::CentreOf(editor.CurView.handle()),
                       user::CentreOf(editor.ImgPreview[i].handle()));
            Await([&] { return editor.ImgPreview[i].Tag() == pictures + "new.sys"; },
                  "slot filled");
        }
        Settle(editor);
        EXPECT_EQ(user::FindTop("FrmView"), nullptr);  // letting go was no click
    });
}

TEST_F(Dragging, PutsAPictureOfTheListIntoASlot) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        user::Drag(PointOfItem(editor, "new.sys"), user::CentreOf(editor.ImgPreview[2].handle()));
        Await([&] { return editor.ImgPreview[2].Tag() == pictures + "new.sys"; }, "slot filled");
    });
}

TEST_F(Dragging, DroppingElsewhereOrBreakingOffFillsNothing) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "new.sys");
        user::Drag(user::CentreOf(editor.CurView.handle()),
                   user::CentreOf(editor.LogoList.handle()));
        user::Drag(user::CentreOf(editor.CurView.handle()),
                   {user::CentreOf(editor.CurView.handle()).x + 30,
                    user::CentreOf(editor.CurView.handle()).y});
        Settle(editor);
        for (PictureBox& slot : editor.ImgPreview) EXPECT_EQ(slot.Tag(), "");
        EXPECT_FALSE(editor.SetChanged);
        EXPECT_EQ(user::FindTop("FrmView"), nullptr);
    });
}

TEST_F(Dragging, DoesNothingWhileNoPictureIsSelected) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        user::Drag(user::CentreOf(editor.CurView.handle()),
                   user::CentreOf(editor.ImgPreview[0].handle()));
        Settle(editor);
        EXPECT_EQ(editor.ImgPreview[0].Tag(), "");
    });
}

}  // namespace
}  // namespace vistrel::test
