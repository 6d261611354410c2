#include "tests/support/user/held_objects.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace vistrel::test {
namespace {

TEST(HeldObjectsTest, AreAsManyAsBeforeWhenAllIsGivenBack) {
    const HeldObjects before = CountHeldObjects();
    CloseHandle(CreateEventA(nullptr, FALSE, FALSE, nullptr));
    DeleteObject(CreateSolidBrush(RGB(1, 2, 3)));
    DestroyMenu(CreateMenu());
    EXPECT_FALSE(CountHeldObjects().AreMoreThan(before));
}

TEST(HeldObjectsTest, AreMoreByEachThatIsNotGivenBack) {
    HeldObjects before = CountHeldObjects();
    const HANDLE event = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    EXPECT_TRUE(CountHeldObjects().AreMoreThan(before));
    CloseHandle(event);
    before = CountHeldObjects();
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    EXPECT_TRUE(CountHeldObjects().AreMoreThan(before));
    EXPECT_FALSE(CountHeldObjects().AreMoreThan(before, 1));
    DeleteObject(brush);
    before = CountHeldObjects();
    const HMENU menu = CreateMenu();
    EXPECT_TRUE(CountHeldObjects().AreMoreThan(before));
    DestroyMenu(menu);
}

}  // namespace
}  // namespace vistrel::test
