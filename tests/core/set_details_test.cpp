// What the columns say of a set, as the disk has it.
#include "core/set_details.h"

#include <windows.h>

#include "core/found_sets.h"
#include "platform/file_time.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace core;

namespace {

class Details : public Machine {
 protected:
    /// A screen's head, in which the colours move from `first` on, and some more bytes.
    static std::string Screen(unsigned char first, std::size_t size = 1000) {
        std::string file(size, '\0');
        file[14] = 40;
        file[50] = static_cast<char>(first);
        return file;
    }
    void PutScreen(const std::string& place, const std::string& bytes) {
        MakeFolders(logos + place.substr(0, place.find('\\') + 1));
        Put(logos + place, bytes);
    }
    SetDetails Of(const std::string& name) { return DetailsOf({logos, name}); }
};

TEST_F(Details, AreTheScreensOfTheSetsOwnFolderTheirSizeAndTheDayOfTheNewest) {
    PutScreen("Sea\\LOGO.SYS", Screen(0, 1000));
    PutScreen("Sea\\logos.sys", Screen(0, 60));
    PutScreen("Sea\\LOGOX.SYS", "not one of them");
    PutScreen("Sea\\LOGO.SYS.txt", "nor this");
    MakeFolders(logos + "Sea\\LOGOW.SYS\\");
    const auto dayOf = [](unsigned year, unsigned month, unsigned day) {
        return ((year - 1980) << 9 | month << 5 | day) << 16;
    };
    platform::SetModifiedAt(logos + "Sea\\LOGO.SYS", dayOf(1998, 6, 25));
    platform::SetModifiedAt(logos + "Sea\\logos.sys", dayOf(1996, 12, 31));
    const SetDetails sea = Of("Sea");
    EXPECT_EQ(sea.has, (std::array<bool, 3>{true, false, true}));
    EXPECT_EQ(sea.Screens(), 2);
    EXPECT_EQ(sea.size, 1060u);
    EXPECT_EQ(sea.movingColors, 0);
    EXPECT_EQ(TextOfSet("Sea", sea, SetColumn::Name), "Sea");
    EXPECT_EQ(TextOfSet("Sea", sea, SetColumn::Kind), "Multi logo");
    EXPECT_EQ(TextOfSet("Sea", sea, SetColumn::Screens), "Startup, shutdown");
    EXPECT_EQ(TextOfSet("Sea", sea, SetColumn::MovingColors), "");
    EXPECT_EQ(TextOfSet("Sea", sea, SetColumn::Size), "2 KB");
    SYSTEMTIME day{};
    day.wYear = 1998;
    day.wMonth = 6;
    day.wDay = 25;
    char words[80];
    GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &day, nullptr, words, sizeof words);
    EXPECT_EQ(TextOfSet("Sea", sea, SetColumn::Date), words);
}

TEST_F(Details, OfASingleLogoSetAreThoseOfItsStartupScreen) {
    Put(logos + "LOGOW.SYS", Screen(0));
    PutScreen("Sea.sls\\LOGO.SYS", Screen(0, 500));
    PutScreen("Sea.sls\\LOGOW.SYS", Screen(0, 500));
    const SetDetails sea = Of("Sea.sls");
    EXPECT_EQ(sea.has, (std::array<bool, 3>{true, false, false}));
    EXPECT_EQ(sea.size, 500u);
    EXPECT_EQ(TextOfSet("Sea.sls", sea, SetColumn::Kind), "Single logo");
    EXPECT_EQ(TextOfSet("Sea.sls", sea, SetColumn::Screens), "Startup");
}

TEST_F(Details, OfASetWithoutScreensOrOfNoneAreEmpty) {
    MakeFolders(logos + "Empty\\");
    for (const char* name : {"Empty", "Gone"}) {
        const SetDetails none = Of(name);
        EXPECT_EQ(none.Screens(), 0);
        EXPECT_EQ(TextOfSet(name, none, SetColumn::Screens), "");
        EXPECT_EQ(TextOfSet(name, none, SetColumn::Date), "");
        EXPECT_EQ(TextOfSet(name, none, SetColumn::Size), "0 KB");
    }
}

TEST_F(Details, CountTheMovingColoursOfTheStartupScreen) {
    PutScreen("Sea\\LOGO.SYS", Screen(236));
    PutScreen("Sea\\LOGOW.SYS", Screen(100));
    EXPECT_EQ(TextOfSet("Sea", Of("Sea"), SetColumn::MovingColors), "20");
    // 256 colours from the first on: a count that stands where the number of one belongs.
    std::string counted = Screen(0);
    counted[51] = 1;
    PutScreen("Sea\\LOGO.SYS", counted);
    EXPECT_EQ(Of("Sea").movingColors, 0);
    std::string old = Screen(236);
    old[14] = 12;  // a header without that field
    PutScreen("Sea\\LOGO.SYS", old);
    EXPECT_EQ(Of("Sea").movingColors, 0);
    PutScreen("Sea\\LOGO.SYS", Screen(236).substr(0, 52));
    EXPECT_EQ(Of("Sea").movingColors, 0);
}

}  // namespace
}  // namespace vistrel::test
