// What counts as a click on a control.
#include <gtest/gtest.h>
#include <windows.h>

#include "controls/picture_box.h"
#include "controls/window.h"
#include "resources/ids.h"
#include "tests/support/user/poll.h"
#include "tests/support/user/user.h"

namespace vistrel::test {

using namespace controls;

namespace {

class Clicked : public Window {
 public:
    Clicked() : Window("Principale", IDD_Principale) {
        const Part parts[] = {{box, ID_Imag}};
        AddParts(parts);
        box.MouseDown = [this](int, Point) { ++presses; };
        box.MouseUp = [this](int, Point) { ++clicks; };
    }

    /// Shows it and brings it there.
    bool ComesToFront() {
        if (!Create(nullptr)) return false;
        Show();
        return user::Activate(handle());
    }

    PictureBox box;
    int presses = 0;
    int clicks = 0;
};

TEST(Clicks, ADoubleClickOnAPictureIsOneClickAndTheNextOneCountsAgain) {
    Clicked window;
    ASSERT_TRUE(window.ComesToFront());
    const POINT middle = user::CentreOf(window.box.handle());
    user::DoubleClickAt(middle);
    EXPECT_TRUE(WaitUntil([&] { return window.presses == 2; }));
    EXPECT_TRUE(WaitUntil([&] { return GetKeyState(VK_LBUTTON) >= 0; }));
    // A third press at once is the first of a next click.
    user::ClickAt(middle);
    EXPECT_TRUE(WaitUntil([&] { return window.presses == 3 && window.clicks > 1; }));
    EXPECT_EQ(window.clicks, 2);
}

TEST(Clicks, AKeyCountsThatWasHeldWhenTheButtonWentDownAlsoWhenItIsUpBeforeThatIsHeardOf) {
    Clicked window;
    ASSERT_TRUE(window.ComesToFront());
    const POINT middle = user::CentreOf(window.box.handle());
    user::WhileHolding(VK_SHIFT, [&] { user::ClickAt(middle); });
    EXPECT_TRUE(WaitUntil([&] { return window.presses == 1; }));
    EXPECT_TRUE(window.box.PressedWithShift());
    EXPECT_FALSE(window.box.PressedWithControl());
    user::WhileHolding(VK_CONTROL, [&] { user::ClickAt(middle); });
    EXPECT_TRUE(WaitUntil([&] { return window.presses == 2; }));
    EXPECT_FALSE(window.box.PressedWithShift());
    EXPECT_TRUE(window.box.PressedWithControl());
}

}  // namespace
}  // namespace vistrel::test
