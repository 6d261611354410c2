// A screen whose colours move, adjusted: it goes on moving as far as it can, and the hint says so.
#include "tests/adjust/adjust_fixture.h"
#include "tests/pictures/screen/broken_screens.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;

namespace {

constexpr unsigned char kFirstMoving = 236;

class MovingScreenAdjusted : public Adjusting {
 protected:
    MovingScreenAdjusted() {
        const Bytes file = MovingScreen();
        Put(pictures + "moving.sys", std::string(file.begin(), file.end()));
    }

    static std::string Hint(HWND window) { return user::TextOf(Item(window, ID_LblHint)); }
    /// Where the screen that was made begins to move; 0 when it stands still.
    static unsigned char FirstMovingOf(const std::string& path) {
        const std::string file = Contents(path).value_or("");
        EXPECT_EQ(file.size(), 129078u);
        return file.size() > kFirstMovingOffset
                   ? static_cast<unsigned char>(file[kFirstMovingOffset])
                   : 0;
    }
};

TEST_F(MovingScreenAdjusted, GoesOnMovingWithTextOnIt) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "moving.sys");
        EXPECT_EQ(Hint(window), "The colours of this screen go on moving.");
        TurnTo(window, 2);
        AddLine(window, "Good morning");
        EXPECT_EQ(Hint(window), "The colours go on moving, but not under the text.");
        user::TakeShot("adjust-moving");
        CloseBy(editor, window, IDOK);
        EXPECT_EQ(FirstMovingOf(editor.SelectedPicture), kFirstMoving);
        // From there into a slot as it is.
        LogoBrowser::Press(editor.AddButton[0]);
        EXPECT_EQ(FirstMovingOf(editor.ImgPreview[0].Tag()), kFirstMoving);
    });
}

TEST_F(MovingScreenAdjusted, SaysBeforeOkThatItWillStandStill) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "moving.sys");
        Press(window, ID_ChkMirror);
        EXPECT_EQ(Hint(window), "Turned or framed like this, the colours stand still.");
        user::TakeShot("adjust-standing");
        Press(window, ID_ChkMirror);
        EXPECT_EQ(Hint(window), "The colours of this screen go on moving.");
        Press(window, ID_ChkMirror);
        CloseBy(editor, window, IDOK);
        EXPECT_EQ(FirstMovingOf(editor.SelectedPicture), 0);
    });
}

TEST_F(MovingScreenAdjusted, HasTheHintOfAnyPictureWhereNothingMoves) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        EXPECT_EQ(Hint(window), "All of the picture, in the shape of the screen.");
        CloseBy(editor, window, IDCANCEL);
    });
}

}  // namespace
}  // namespace vistrel::test
