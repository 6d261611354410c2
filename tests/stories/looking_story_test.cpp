// Looking through many sets: as thumbnails, and by a part of a name.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "resources/ids.h"
#include "tests/stories/running_program.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {
namespace {

class Looking : public RunningProgram {
 protected:
    static LRESULT Count(HWND main) {
        return SendMessageA(user::Control(main, ID_MyList), LVM_GETITEMCOUNT, 0, 0);
    }
    static bool ShowsThumbnails(HWND main) {
        return (GetWindowLongA(user::Control(main, ID_MyList), GWL_STYLE) & LVS_TYPEMASK) ==
               LVS_ICON;
    }
    /// Whether no picture in the first column of the list is grey any more, beside its marks.
    static bool HasItsPictures(HWND main) {
        RECT r{};
        GetWindowRect(user::Control(main, ID_MyList), &r);
        for (LONG y = r.top + 4; y < r.bottom - 4; y += 4)
            if (seen::PixelAt({r.left + 50, y}) == GetSysColor(COLOR_BTNFACE)) return false;
        return true;
    }
};

TEST_F(Looking, FindsASetAmongThumbnailsByItsNameAndPutsItInPlaceByTheKeyboard) {
    const std::string cache = kProgramFolder + "thumbnails.dat";
    DeleteFileA(cache.c_str());
    HWND main = Start();
    ASSERT_NE(main, nullptr);
    EXPECT_FALSE(Exists(cache));
    const LRESULT all = Count(main);
    EXPECT_NE(user::OpenMenuByLetter('O', process), nullptr);
    user::Press('T');
    EXPECT_TRUE(WaitUntil([&] { return ShowsThumbnails(main); }));
    EXPECT_TRUE(WaitUntil([&] { return Exists(cache); }));
    EXPECT_TRUE(WaitUntil([&] { return HasItsPictures(main); }));
    user::TakeShot("story_thumbnails", main);

    user::Press('F', {VK_CONTROL});
    user::Type("deep");
    EXPECT_TRUE(WaitUntil([&] { return Count(main) == 1; }));
    user::TakeShot("story_found");
    user::Press(VK_RETURN);
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_Imag) == logos + "Deep Sea\\LOGO.SYS"; }));
    user::Press(VK_RETURN);
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_DefaultLogo) == "Deep Sea"; }));
    user::Press(VK_ESCAPE);
    EXPECT_TRUE(WaitUntil([&] { return Count(main) == all; }));
    user::TakeShot("story_installed");
    Close();
    EXPECT_TRUE(Contents("C:\\LOGO.SYS") == Contents(logos + "Deep Sea\\LOGO.SYS"));

    main = Start();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(ShowsThumbnails(main));
    EXPECT_EQ(LabelOf(main, ID_DefaultLogo), "Deep Sea");
    // The mouse chooses another set there.
    RECT r{};
    GetWindowRect(user::Control(main, ID_MyList), &r);
    user::ClickAt({r.left + 40, r.top + 40});
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_Imag) != logos + "Deep Sea\\LOGO.SYS"; }));
    Close();
}

}  // namespace
}  // namespace vistrel::test
