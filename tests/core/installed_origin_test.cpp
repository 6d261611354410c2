// Which sets the installed screens are of.
#include "core/installed_origin.h"

#include <windows.h>

#include "core/library.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace core;

namespace {

class WhatIsInstalled : public Machine {
 protected:
    WhatIsInstalled() {
        PutScreens(logos + "Blue\\", "Blue");
        PutScreens(logos + "Red\\", "Red");
    }
    void Install(const std::string& startup, const std::string& wait, const std::string& shutdown) {
        Put(boot + "LOGO.SYS", startup);
        Put(windows + "LOGOW.SYS", wait);
        Put(windows + "LOGOS.SYS", shutdown);
    }
    void InstallSet(const std::string& set) { InstallLogoSet({logos, boot, windows}, set, false); }
    std::string Sentence() {
        InstalledOrigin origin({logos, boot, windows}, LogoSetNames(logos));
        while (origin.CompareFor(0)) ++rounds_;
        return origin.Sentence();
    }

    int rounds_ = 0;
};

TEST_F(WhatIsInstalled, IsTheSetThatHasAllScreens) {
    InstallSet("Red");
    EXPECT_EQ(Sentence(), "Installed: Red");
}

TEST_F(WhatIsInstalled, IsTheSetThatLacksTheSameScreens) {
    DeleteFileA((logos + "Red\\LOGOW.SYS").c_str());
    InstallSet("Red");
    EXPECT_EQ(Sentence(), "Installed: Red");
    Put(logos + "Red\\LOGOW.SYS", "another");
    EXPECT_EQ(Sentence(), "Startup and shutdown screens of Red");
}

TEST_F(WhatIsInstalled, IsToldScreenByScreenWhereTheyAreOfSeveralSets) {
    Install("Blue LOGO.SYS", "Red LOGOW.SYS", "own");
    EXPECT_EQ(Sentence(), "Startup screen of Blue, wait screen of Red, shutdown screen of none");
    Install("Blue LOGO.SYS", "own", "Blue LOGOS.SYS");
    EXPECT_EQ(Sentence(), "Startup and shutdown screens of Blue, wait screen of none");
    Install("own", "own", "own");
    EXPECT_EQ(Sentence(), "Startup, wait and shutdown screens of none");
}

TEST_F(WhatIsInstalled, PassesOverScreensThatAreNotInstalled) {
    Install("Blue LOGO.SYS", "x", "own");
    DeleteFileA((windows + "LOGOW.SYS").c_str());
    EXPECT_EQ(Sentence(), "Startup screen of Blue, shutdown screen of none");
    for (const std::string& screen : InstalledScreenPaths(boot, windows))
        DeleteFileA(screen.c_str());
    EXPECT_EQ(Sentence(), "No screens are installed");
}

TEST_F(WhatIsInstalled, IsASingleLogoSetWithTheScreensOfTheLogoFolder) {
    PutScreens(logos + "Dawn.sls\\", "Dawn");
    PutScreens(logos + "Dusk.SLS\\", "Dusk");
    Put(logos + "LOGOW.SYS", "shared wait");
    Put(logos + "LOGOS.SYS", "shared shutdown");
    InstallSet("Dusk.SLS");
    EXPECT_EQ(Sentence(), "Installed: Dusk.SLS");
    Put(boot + "LOGO.SYS", "Red LOGO.SYS");
    EXPECT_EQ(Sentence(),
              "Startup screen of Red, wait and shutdown screens of the single-logo sets");
    // What lies in such a set beside its startup screen counts for nothing.
    Install("Dawn LOGO.SYS", "Dawn LOGOW.SYS", "shared shutdown");
    EXPECT_EQ(Sentence(),
              "Startup screen of Dawn.sls, wait screen of none, shutdown screen of the single-logo "
              "sets");
}

TEST_F(WhatIsInstalled, IsOfTheSetThatHasMostAndOfTheFirstOfEqualOnes) {
    Put(logos + "Blue\\LOGO.SYS", "Red LOGO.SYS");
    Install("Red LOGO.SYS", "Red LOGOW.SYS", "own");
    EXPECT_EQ(Sentence(), "Startup and wait screens of Red, shutdown screen of none");
    Install("Red LOGO.SYS", "own", "own");
    EXPECT_EQ(Sentence(), "Startup screen of Blue, wait and shutdown screens of none");
}

TEST_F(WhatIsInstalled, IsComparedToTheLastByte) {
    const std::string screen(20000, 'x');
    std::string other = screen;
    other.back() = 'y';
    PutScreens(logos + "Blue\\", "");
    Put(logos + "Blue\\LOGO.SYS", other);
    Put(logos + "Red\\LOGO.SYS", screen);
    Install(screen, "own", "own");
    EXPECT_EQ(Sentence(), "Startup screen of Red, wait and shutdown screens of none");
    Put(boot + "LOGO.SYS", screen + "x");
    EXPECT_EQ(Sentence(), "Startup, wait and shutdown screens of none");
}

TEST_F(WhatIsInstalled, IsLookedForOneSetAfterTheOtherUntilItIsFound) {
    PutScreens(logos + "Zebra\\", "Zebra");
    InstallSet("Zebra");
    Sentence();
    EXPECT_EQ(rounds_, 2);
    rounds_ = 0;
    InstallSet("Blue");
    Sentence();
    EXPECT_EQ(rounds_, 0);
}

}  // namespace
}  // namespace vistrel::test
