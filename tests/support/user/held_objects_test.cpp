#include "tests/support/user/held_objects.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace vistrel::test {
namespace {

void ExpectMore(const HeldObjects& before, int handles, int drawing, int windows) {
    const HeldObjects now = CountHeldObjects();
    EXPECT_EQ(now.handles - before.handles, handles);
    EXPECT_EQ(now.drawing - before.drawing, drawing);
    EXPECT_EQ(now.windows - before.windows, windows);
}

TEST(HeldObjectsTest, AreMoreByEachThatIsNotGivenBack) {
    const HeldObjects before = CountHeldObjects();
    ExpectMore(before, 0, 0, 0);
    const HANDLE event = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    ExpectMore(before, 1, 0, 0);
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    ExpectMore(before, 1, 1, 0);
    const HMENU menu = CreateMenu();
    ExpectMore(before, 1, 1, 1);
    CloseHandle(event);
    DeleteObject(brush);
    DestroyMenu(menu);
    ExpectMore(before, 0, 0, 0);
}

TEST(HeldObjectsTest, AreFoundInPlacesThatOthersLeft) {
    HBRUSH brushes[8];
    HMENU menus[8];
    HANDLE events[8];
    const HeldObjects before = CountHeldObjects();
    for (int i = 0; i < 8; ++i) {
        brushes[i] = CreateSolidBrush(RGB(1, 2, i));
        menus[i] = CreateMenu();
        events[i] = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    }
    for (int i = 0; i < 7; ++i) {
        DeleteObject(brushes[i]);
        DestroyMenu(menus[i]);
        CloseHandle(events[i]);
    }
    ExpectMore(before, 1, 1, 1);
    DeleteObject(brushes[7]);
    DestroyMenu(menus[7]);
    CloseHandle(events[7]);
    ExpectMore(before, 0, 0, 0);
}

TEST(HeldObjectsTest, AreWindowsAndIconsAsWell) {
    const HICON icon = CopyIcon(LoadIconA(nullptr, reinterpret_cast<const char*>(IDI_APPLICATION)));
    HWND window =
        CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr);
    const int held = CountHeldObjects().windows;
    DestroyWindow(window);
    EXPECT_EQ(CountHeldObjects().windows, held - 1);
    DestroyIcon(icon);
    EXPECT_EQ(CountHeldObjects().windows, held - 2);
}

}  // namespace
}  // namespace vistrel::test
