// Saving a set from the files in the editor's slots, without a window.
#include "core/save_set.h"

#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace core;

namespace {

class SaveSet : public Machine {
 protected:
    SaveSet() {
        MakeFolders(pictures);
        for (const char* file : {"one", "two", "three"}) Put(pictures + file, file);
        PutScreens(blue.Folder(), "blue");
        PutScreens(logos, "shared");
    }

    /// What stands as startup, wait and shutdown screen in a folder; "-" where there is none.
    Names In(const std::string& folder) const {
        Names screens;
        for (const std::string& path : ScreensIn(folder))
            screens.push_back(Contents(path).value_or("-"));
        return screens;
    }
    NewSessionFile NewFile() {
        return [this] {
            const std::string file = pictures + "kept" + std::to_string(++kept);
            Put(file, "");
            return file;
        };
    }
    SaveResult Update(const LogoSet& set, SetKind kind, Slots slots) {
        return UpdateSet(set, kind, slots, NewFile());
    }

    const std::string pictures = root + "pictures\\";
    const LogoSet blue{logos, "Blue"};
    const LogoSet fresh{logos, "New"};
    const Slots three = {pictures + "one", pictures + "two", pictures + "three"};
    int kept = 0;
};

TEST_F(SaveSet, CreatesACompleteSet) {
    const SaveResult result = CreateSet(fresh, SetKind::Complete, three);
    EXPECT_TRUE(result.saved);
    EXPECT_EQ(In(fresh.Folder()), (Names{"one", "two", "three"}));
}

TEST_F(SaveSet, CreatesAStartupOnlySetOfTheFirstSlot) {
    EXPECT_TRUE(CreateSet(fresh, SetKind::StartupOnly, three).saved);
    EXPECT_EQ(In(fresh.Folder()), (Names{"one", "-", "-"}));
}

TEST_F(SaveSet, CreatesWithoutTheScreensOfEmptyMissingAndUnreadableSlots) {
    Put(pictures + "empty", "");
    EXPECT_TRUE(
        CreateSet(fresh, SetKind::Complete, {"", pictures + "gone", pictures + "empty"}).saved);
    EXPECT_EQ(In(fresh.Folder()), (Names{"-", "-", "-"}));
    EXPECT_TRUE(Exists(fresh.Path()));
}

TEST_F(SaveSet, CreatesNothingWhereAFolderStandsOrNoneCan) {
    for (const char* name : {"Blue", "", "..", "a\\b", "NUL"}) {
        const SaveResult result = CreateSet({logos, name}, SetKind::Complete, three);
        EXPECT_FALSE(result.saved) << name;
        EXPECT_EQ(result.lastRead, name);
    }
    EXPECT_EQ(In(blue.Folder())[0], "blue LOGO.SYS");
    EXPECT_EQ(In(logos)[0], "shared LOGO.SYS");
}

TEST_F(SaveSet, UpdatesAllScreens) {
    EXPECT_TRUE(Update(blue, SetKind::Complete, three).saved);
    EXPECT_EQ(In(blue.Folder()), (Names{"one", "two", "three"}));
}

TEST_F(SaveSet, LeavesAScreenAloneThatIsItsOwnSlots) {
    Slots slots = ScreensIn(blue.Folder());
    slots[1] = pictures + "two";
    EXPECT_TRUE(Update(blue, SetKind::Complete, slots).saved);
    EXPECT_EQ(In(blue.Folder()), (Names{"blue LOGO.SYS", "two", "blue LOGOS.SYS"}));
    EXPECT_EQ(kept, 0);
}

TEST_F(SaveSet, SwapsScreensByWayOfSessionFilesWhichTheSlotsNameThen) {
    const auto screens = ScreensIn(blue.Folder());
    Slots slots = {screens[2], screens[1], screens[0]};
    EXPECT_TRUE(UpdateSet(blue, SetKind::Complete, slots, NewFile()).saved);
    EXPECT_EQ(In(blue.Folder()), (Names{"blue LOGOS.SYS", "blue LOGOW.SYS", "blue LOGO.SYS"}));
    EXPECT_EQ(slots[0], pictures + "kept1");
    EXPECT_EQ(slots[2], pictures + "kept2");
    EXPECT_EQ(Contents(slots[0]), "blue LOGOS.SYS");
}

TEST_F(SaveSet, WithoutASessionFileSwapsNothing) {
    const auto screens = ScreensIn(blue.Folder());
    Slots slots = {screens[2], screens[1], screens[0]};
    const SaveResult result =
        UpdateSet(blue, SetKind::Complete, slots, [] { return std::string(); });
    EXPECT_FALSE(result.saved);
    EXPECT_EQ(result.lastRead, "Blue");
    EXPECT_EQ(In(blue.Folder()), (Names{"blue LOGO.SYS", "blue LOGOW.SYS", "blue LOGOS.SYS"}));
}

TEST_F(SaveSet, AnEmptySlotEndsTheUpdateBehindTheDeletionOfItsScreen) {
    const SaveResult result = Update(blue, SetKind::Complete, {"", three[1], three[2]});
    EXPECT_FALSE(result.saved);
    EXPECT_EQ(result.lastRead, "");
    EXPECT_EQ(In(blue.Folder()), (Names{"-", "blue LOGOW.SYS", "blue LOGOS.SYS"}));
}

TEST_F(SaveSet, EmptySlotsOfBothOtherScreensAreEmptiedBeforeEitherIsCopied) {
    EXPECT_FALSE(Update(blue, SetKind::Complete, {three[0], three[1], ""}).saved);
    EXPECT_EQ(In(blue.Folder()), (Names{"one", "two", "-"}));
    EXPECT_FALSE(Update(blue, SetKind::Complete, {three[1], "", three[2]}).saved);
    EXPECT_EQ(In(blue.Folder()), (Names{"two", "-", "-"}));
}

TEST_F(SaveSet, AnUpdateEndsAtASlotWhoseFileIsGone) {
    const SaveResult result =
        Update(blue, SetKind::Complete, {three[0], pictures + "gone", three[2]});
    EXPECT_FALSE(result.saved);
    EXPECT_EQ(result.lastRead, pictures + "gone");
    EXPECT_EQ(In(blue.Folder()), (Names{"one", "blue LOGOW.SYS", "blue LOGOS.SYS"}));
}

TEST_F(SaveSet, TakesTheOtherScreensFromASetThatBecomesStartupOnly) {
    EXPECT_TRUE(Update(blue, SetKind::StartupOnly, three).saved);
    EXPECT_EQ(In(blue.Folder()), (Names{"one", "-", "-"}));
}

TEST_F(SaveSet, KeepsAsideAScreenThatIsAboutToGoAndIsTheNewStartupScreen) {
    EXPECT_TRUE(Update(blue, SetKind::StartupOnly, {blue.Folder() + "LOGOW.SYS", "", ""}).saved);
    EXPECT_EQ(In(blue.Folder()), (Names{"blue LOGOW.SYS", "-", "-"}));
}

TEST_F(SaveSet, AnUpdateOfAStartupOnlySetEndsAtTheScreensThatAreNotThere) {
    const LogoSet single{logos, "Blue.sls"};
    MakeFolders(single.Folder());
    Put(single.Folder() + "LOGO.SYS", "single");
    const SaveResult result = Update(single, SetKind::StartupOnly, three);
    EXPECT_FALSE(result.saved);
    EXPECT_EQ(result.lastRead, three[0]);
    EXPECT_EQ(In(single.Folder()), (Names{"one", "-", "-"}));
}

TEST_F(SaveSet, SavesTheSharedScreensAndNoStartupScreen) {
    Slots slots = three;
    EXPECT_TRUE(SaveSharedScreens(logos, slots, NewFile()).saved);
    EXPECT_EQ(In(logos), (Names{"shared LOGO.SYS", "two", "three"}));
}

TEST_F(SaveSet, SwapsTheSharedScreens) {
    Slots slots = {"", logos + "LOGOS.SYS", logos + "LOGOW.SYS"};
    EXPECT_TRUE(SaveSharedScreens(logos, slots, NewFile()).saved);
    EXPECT_EQ(In(logos), (Names{"shared LOGO.SYS", "shared LOGOS.SYS", "shared LOGOW.SYS"}));
}

TEST_F(SaveSet, LosesNoPictureOfTheUsersWhicheverStepFails) {
    const auto prepare = [&] {
        PutScreens(blue.Folder(), "blue");
        kept = 0;
    };
    const auto swap = [&] {
        const auto screens = ScreensIn(blue.Folder());
        Update(blue, SetKind::Complete, {screens[2], pictures + "two", screens[0]});
    };
    WithEachOperationFailing(prepare, swap, [&](int failed) {
        EXPECT_EQ(Contents(pictures + "two"), "two") << failed;
        // Each of the screens that change places stands somewhere: in the set or kept aside.
        for (const char* screen : {"blue LOGO.SYS", "blue LOGOS.SYS"}) {
            bool found = false;
            for (const std::string& path : {blue.Folder() + "LOGO.SYS", blue.Folder() + "LOGOS.SYS",
                                            pictures + "kept1", pictures + "kept2"})
                found = found || Contents(path) == screen;
            EXPECT_TRUE(found) << screen << ", operation " << failed;
        }
    });
}

}  // namespace
}  // namespace vistrel::test
