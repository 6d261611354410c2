// Colours that begin to move, from the Logo browser's first slot to the bytes of the set's screen.
#include "animate/document.h"
#include "pictures/screen/check.h"
#include "tests/animate/animate_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;

namespace {

constexpr std::size_t kScreenFile = 129078;

std::vector<std::uint8_t> BytesOf(const std::string& file) { return {file.begin(), file.end()}; }

TEST_F(Moving, ABarIsAddedDraggedAndSavedIntoASet) {
    std::string made;
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        EXPECT_FALSE(Enabled(window, ID_BtnDeleteLayer));
        user::TakeShot("moving-empty");
        AddLayer(window, 0);
        user::TakeShot("moving-bar");
        // From the middle of the bar upwards, then its lower edge down.
        DragOver(window, {160, 382}, {160, 182});
        DragOver(window, {160, 191}, {160, 231});
        user::TakeShot("moving-dragged");
        CloseBy(editor, window, IDOK);
        made = editor.ImgPreview[0].Tag();
        EXPECT_NE(made, still);
        EXPECT_TRUE(editor.SetChanged);
        editor.OptOnlyStart.Click();
        TypeName(editor, "Mine.SLS");
        Run(editor, ID_OkButton);
    });
    const auto file = Contents(logos + "Mine.SLS\\LOGO.SYS");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->size(), kScreenFile);
    EXPECT_TRUE(screen::FaultsOfScreen(BytesOf(*file)).empty());
    const screen::IndexedScreen screen = ScreenOf(logos + "Mine.SLS\\LOGO.SYS");
    EXPECT_EQ(screen.firstAnimated, 236);
    const screen::ScreenBounds bar = MovingPart(screen);
    EXPECT_EQ(bar.left, 0);
    EXPECT_EQ(bar.right, 320);
    EXPECT_NEAR(bar.top, 172, 2);
    EXPECT_NEAR(bar.bottom, 232, 2);
}

}  // namespace
}  // namespace vistrel::test
