// A main window whose sets are seen as thumbnails.
#pragma once

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <functional>
#include <string>

#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

class ThumbnailView : public MainWindow98 {
 protected:
    /// Opens the main window with its sets seen as thumbnails.
    void WithThumbnails(const std::function<void(main_window::Principale& main)>& user) {
        Store("Thumbnails", TextValue("1"));
        WithMainWindow(user);
    }

    /// The part of the screen that a set's picture takes.
    static RECT PictureOf(main_window::Principale& main, const std::string& set) {
        const HWND list = main.MyList.handle();
        RECT r{};
        r.left = LVIR_ICON;
        SendMessageA(list, LVM_GETITEMRECT, static_cast<WPARAM>(main.MyList.FindItem(set)),
                     reinterpret_cast<LPARAM>(&r));
        MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&r), 2);
        const controls::Size size = main.MyList.PictureSize();
        const LONG left = (r.left + r.right - size.width) / 2;
        const LONG top = (r.top + r.bottom - size.height) / 2;
        return {left, top, left + size.width, top + size.height};
    }
    static POINT MiddleOfPicture(main_window::Principale& main, const std::string& set) {
        const RECT r = PictureOf(main, set);
        return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    }
    /// Whether a set is seen in this colour, soon.
    static bool IsSeen(main_window::Principale& main, const std::string& set, COLORREF color) {
        return WaitUntil([&] { return seen::PixelAt(MiddleOfPicture(main, set)) == color; });
    }
};

}  // namespace vistrel::test
