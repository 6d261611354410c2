// A logo set on disk as a whole, without a window.
#include "core/logo_set.h"

#include <windows.h>

#include "platform/fault.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace platform;
using namespace core;

namespace {

using Screens = std::array<std::string, 3>;
TEST(LogoSetTest, ASingleLogoSetTakesTwoScreensFromTheLogoFolder) {
    EXPECT_EQ(
        (LogoSet{"D:\\L\\", "Blue"}.Screens()),
        (Screens{"D:\\L\\Blue\\LOGO.SYS", "D:\\L\\Blue\\LOGOW.SYS", "D:\\L\\Blue\\LOGOS.SYS"}));
    EXPECT_EQ((LogoSet{"D:\\L\\", "Blue.sls"}.Screens()),
              (Screens{"D:\\L\\Blue.sls\\LOGO.SYS", "D:\\L\\LOGOW.SYS", "D:\\L\\LOGOS.SYS"}));
}

class SetOnDisk : public Machine {
 protected:
    SetOnDisk() { PutScreens(blue.Folder(), "blue"); }
    Names Sets() const { return NamesIn(logos); }

    const LogoSet blue{logos, "Blue"};
};

TEST_F(SetOnDisk, IsRenamedWithAllThatItHolds) {
    EXPECT_TRUE(RenameSet(blue, "Night"));
    EXPECT_EQ(Sets(), Names{"Night"});
    EXPECT_EQ(Contents(logos + "Night\\LOGOS.SYS"), "blue LOGOS.SYS");
}

TEST_F(SetOnDisk, ChangesItsKindWithItsEnding) {
    EXPECT_TRUE(RenameSet(blue, "Blue.sls"));
    EXPECT_TRUE((LogoSet{logos, "Blue.sls"}.IsSingle()));
    EXPECT_EQ(Contents(logos + "Blue.sls\\LOGOW.SYS"), "blue LOGOW.SYS");
}

TEST_F(SetOnDisk, IsLeftAloneUnderTheSameName) {
    fault::FailOperation(1);
    EXPECT_TRUE(RenameSet(blue, "Blue"));
    fault::FailOperation(0);
    EXPECT_EQ(Sets(), Names{"Blue"});
}

TEST_F(SetOnDisk, IsNotRenamedToWhatNoSetCanBeNamed) {
    for (const char* name : {"", "..", "..\\Out", "a/b", "CON", "Blue?"}) {
        EXPECT_FALSE(RenameSet(blue, name)) << name;
        EXPECT_EQ(Sets(), Names{"Blue"}) << name;
    }
}

TEST_F(SetOnDisk, IsNotRenamedOntoAnother) {
    PutScreens(logos + "Red\\", "red");
    EXPECT_FALSE(RenameSet(blue, "Red"));
    EXPECT_EQ(Contents(logos + "Red\\LOGO.SYS"), "red LOGO.SYS");
    EXPECT_EQ(Contents(logos + "Blue\\LOGO.SYS"), "blue LOGO.SYS");
}

TEST_F(SetOnDisk, WithoutANameIsNotTheLogoFolderToBeRenamed) {
    EXPECT_FALSE(RenameSet({logos, ""}, "Night"));
    EXPECT_EQ(Sets(), Names{"Blue"});
}

TEST_F(SetOnDisk, IsDeletedWithItsFolder) {
    PutScreens(logos + "Red\\", "red");
    DeleteSet(nullptr, blue.Path(), Bin::Destroy);
    EXPECT_EQ(Sets(), Names{"Red"});
}

TEST_F(SetOnDisk, KeepsAFolderInsideItAndSoItself) {
    MakeFolders(blue.Folder() + "more\\");
    Put(blue.Folder() + "more\\picture.bmp", "picture");
    DeleteSet(nullptr, blue.Path(), Bin::Destroy);
    EXPECT_EQ(NamesIn(blue.Folder()), Names{"more"});
    EXPECT_EQ(Contents(blue.Folder() + "more\\picture.bmp"), "picture");
}

TEST_F(SetOnDisk, IsDeletedAsFarAsItGoes) {
    WithEachOperationFailing([&] { PutScreens(blue.Folder(), "blue"); },
                             [&] { DeleteSet(nullptr, blue.Path(), Bin::Destroy); },
                             [&](int) { EXPECT_TRUE(Exists(logos)); });
}

TEST_F(SetOnDisk, IsDeletedWithOthersAndSaysWhichAreLeft) {
    PutScreens(logos + "Red\\", "red");
    PutScreens(logos + "Held\\", "held");
    MakeFolders(logos + "Held\\more\\");
    MakeFolders(logos + "Empty\\");
    EXPECT_EQ(DeleteSets(nullptr, logos, {"Empty", "gone", "Held", "Red"}, Bin::Destroy),
              Names{"Held"});
    EXPECT_EQ(Sets(), (Names{"Blue", "Held"}));
}

TEST_F(SetOnDisk, CanBeADroppedFolderButNoDriveAndNoFile) {
    EXPECT_TRUE(CanBeImported(logos + "Blue", logos));
    EXPECT_TRUE(CanBeImported(blue.Folder(), logos));
    EXPECT_FALSE(CanBeImported(blue.Folder() + "LOGO.SYS", logos));
    EXPECT_FALSE(CanBeImported("C:", logos));
    EXPECT_FALSE(CanBeImported("C:\\", logos));
    EXPECT_FALSE(CanBeImported(logos + "Red", logos));
}

TEST_F(SetOnDisk, IsNeverTheLogoFolderItself) {
    const std::string library = root + "A logo folder\\";
    MakeFolders(library);
    const std::string folder = library.substr(0, library.size() - 1);
    std::string capitals = folder;
    CharUpperA(capitals.data());
    char shortName[MAX_PATH] = "";
    GetShortPathNameA(folder.c_str(), shortName, sizeof shortName);
    EXPECT_NE(shortName, folder);
    for (const std::string& path : {folder, library, capitals, std::string(shortName)})
        EXPECT_FALSE(CanBeImported(path, library)) << path;
    EXPECT_TRUE(CanBeImported(folder, logos));
}

TEST_F(SetOnDisk, IsImportedWithAllThatTheFolderHolds) {
    const std::string dropped = root + "dropped\\Sea";
    PutScreens(dropped + "\\", "sea");
    Put(dropped + "\\notes.txt", "notes");
    ImportSet(nullptr, dropped, logos);
    EXPECT_EQ(Sets(), (Names{"Blue", "Sea"}));
    EXPECT_EQ(Contents(logos + "Sea\\LOGOW.SYS"), "sea LOGOW.SYS");
    EXPECT_EQ(Contents(logos + "Sea\\notes.txt"), "notes");
    EXPECT_EQ(Contents(dropped + "\\LOGO.SYS"), "sea LOGO.SYS");
}

TEST_F(SetOnDisk, IsImportedOverTheFilesOfItsNamesake) {
    const std::string dropped = root + "dropped\\Blue";
    MakeFolders(dropped + "\\");
    Put(dropped + "\\LOGO.SYS", "new");
    ImportSet(nullptr, dropped, logos);
    EXPECT_EQ(Contents(blue.Folder() + "LOGO.SYS"), "new");
    EXPECT_EQ(Contents(blue.Folder() + "LOGOS.SYS"), "blue LOGOS.SYS");
}

}  // namespace
}  // namespace vistrel::test
