// Installing a set at random.
#include "tests/support/main_window/main_window_fixture.h"

namespace vistrel::test {

using namespace main_window;

namespace {

using RandomChange = MainWindow98;

TEST_F(RandomChange, OfTwoSetsInstallsTheOneThatIsNotSelectedAndThenTheFirstAgain) {
    RemoveTree(logos + "Green.SLS");
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ToolRandom);
        EXPECT_EQ(main.DefaultLogo.Text(), "Red");
        EXPECT_EQ(main.MyList.SelectedItem(), 1);
        EXPECT_TRUE(Contents(boot + "LOGO.SYS") == Contents(logos + "Red\\LOGO.SYS"));
        Command(main, ID_ItmRandomSpin);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        EXPECT_EQ(main.MyList.SelectedItem(), 0);
    });
}

TEST_F(RandomChange, DoesNothingWithOneSetOrNone) {
    RemoveTree(logos + "Green.SLS");
    RemoveTree(logos + "Red");
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ToolRandom);
        EXPECT_EQ(main.MyList.SelectedItem(), 0);
    });
    RemoveTree(logos + "Blue");
    WithMainWindow([&](Principale& main) { Command(main, ID_ToolRandom); });
    EXPECT_FALSE(Exists(boot + "LOGO.SYS"));
}

TEST_F(RandomChange, LeavesOutTheSelectedSetAndNotTheInstalledOne) {
    RemoveTree(logos + "Green.SLS");
    WithMainWindow([&](Principale& main) {
        // "Blue" is the installed set all the time.
        for (int i = 0; i < 5; ++i) {
            main.SelItem("Red");
            Command(main, ID_ToolRandom);
            EXPECT_EQ(Selected(main), "Blue");
            EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        }
    });
}

TEST_F(RandomChange, NeverInstallsTheSelectedSet) {
    WithMainWindow([&](Principale& main) {
        for (int i = 0; i < 30; ++i) {
            const int before = main.MyList.SelectedItem();
            Command(main, ID_ToolRandom);
            EXPECT_NE(main.MyList.SelectedItem(), before);
            EXPECT_EQ(main.DefaultLogo.Text(), main.MyList.ItemText(main.MyList.SelectedItem()));
        }
    });
}

}  // namespace
}  // namespace vistrel::test
