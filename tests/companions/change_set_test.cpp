// Rotaline and Shufflet: the real programs on real files and the real registry.
#include "companions/change_set.h"

#include <windows.h>

#include <algorithm>
#include <set>

#include "core/startup_action.h"
#include "tests/companions/boot.h"
#include "tests/support/user/poll.h"

namespace vistrel::test {

using namespace companions;
using namespace core;

namespace {

class ChangeSetTest : public Boot {
 protected:
    Outcome Rotaline() { return static_cast<Outcome>(RunUnseen("Rotaline.exe")); }
    Outcome Shufflet() { return static_cast<Outcome>(RunUnseen("Shufflet.exe")); }

    static Screens ScreensOf(const std::string& set) {
        return {set + " LOGO.SYS", set + " LOGOW.SYS", set + " LOGOS.SYS"};
    }
    void ExpectInstalled(const std::string& set) {
        EXPECT_EQ(Installed(), ScreensOf(set));
        EXPECT_EQ(InstalledSet(), set);
    }
    void ExpectNothingChanged() {
        EXPECT_EQ(Installed(), old);
        EXPECT_FALSE(Exists(bin + "Mirrorkin.ini"));
    }
    std::optional<std::string> Ini() const { return Contents(bin + "Mirrorkin.ini"); }
};

TEST_F(ChangeSetTest, TenStartsOfRotalineOnTenSetsInstallEachOnce) {
    for (char letter = 'a'; letter <= 'j'; ++letter) PutSet(std::string("Set ") + letter);
    const Names order = SetsInOrder();
    ASSERT_EQ(order.size(), 10u);
    for (const std::string& expected : order) {
        EXPECT_EQ(Rotaline(), Outcome::Done);
        ExpectInstalled(expected);
    }
    EXPECT_EQ(Rotaline(), Outcome::Done);  // the first after the last
    ExpectInstalled(order[0]);
}

TEST_F(ChangeSetTest, WithoutSetsNothingChanges) {
    EXPECT_EQ(Rotaline(), Outcome::NoSets);
    EXPECT_EQ(Shufflet(), Outcome::NoSets);
    ExpectNothingChanged();
    EXPECT_EQ(InstalledSet(), "(none)");
}

TEST_F(ChangeSetTest, TheOnlySetIsInstalledAgain) {
    PutSet("Blue");
    EXPECT_EQ(Rotaline(), Outcome::Done);
    ExpectInstalled("Blue");
    PutInstalled();
    EXPECT_EQ(Rotaline(), Outcome::Done);
    ExpectInstalled("Blue");
    PutInstalled();
    EXPECT_EQ(Shufflet(), Outcome::Done);
    ExpectInstalled("Blue");
}

TEST_F(ChangeSetTest, OfTwoSetsEachStartInstallsTheOther) {
    PutSet("Blue");
    PutSet("Red");
    Store("DefaultLogoSet", TextValue("Blue"));
    for (const char* expected : {"Red", "Blue", "Red"}) {
        EXPECT_EQ(Rotaline(), Outcome::Done);
        ExpectInstalled(expected);
    }
    for (const char* expected : {"Blue", "Red", "Blue"}) {
        EXPECT_EQ(Shufflet(), Outcome::Done);
        ExpectInstalled(expected);
    }
}

TEST_F(ChangeSetTest, ShuffletChoosesAmongTheOthers) {
    PutSet("a");
    PutSet("b");
    PutSet("c");
    std::set<std::string> chosen;
    for (int start = 0; start < 200 && chosen.size() < 2; ++start) {
        Store("DefaultLogoSet", TextValue("b"));
        ASSERT_EQ(Shufflet(), Outcome::Done);
        ASSERT_NE(InstalledSet(), "b");
        chosen.insert(InstalledSet());
        ExpectInstalled(InstalledSet());
    }
    EXPECT_EQ(chosen.size(), 2u);
}

TEST_F(ChangeSetTest, FiveThousandSetsAreNoTrouble) {
    for (int set = 1000; set < 6000; ++set) {
        CreateDirectoryA((logos + "Set " + std::to_string(set)).c_str(), nullptr);
    }
    const Names order = SetsInOrder();
    ASSERT_EQ(order.size(), 5000u);
    Store("DefaultLogoSet", TextValue(order[2499]));
    PutSet(order[2500]);
    PutSet(order[7]);
    EXPECT_EQ(Rotaline(), Outcome::Done);
    ExpectInstalled(order[2500]);
    // The only other set that has a startup screen.
    EXPECT_EQ(Shufflet(), Outcome::Done);
    ExpectInstalled(order[7]);
}

TEST_F(ChangeSetTest, ASetWithoutAStartupScreenIsPassedOver) {
    for (const char* name : {"a", "b", "c"}) PutSet(name);
    const Names order = SetsInOrder();
    RemoveTree(logos + order[1] + "\\LOGO.SYS");
    Store("DefaultLogoSet", TextValue(order[0]));
    EXPECT_EQ(Rotaline(), Outcome::Done);
    ExpectInstalled(order[2]);
    for (int start = 0; start < 10; ++start) {
        EXPECT_EQ(Shufflet(), Outcome::Done);
        ASSERT_NE(InstalledSet(), order[1]);
        ExpectInstalled(InstalledSet());
    }
    // One that the system hides counts.
    Put(logos + order[1] + "\\LOGO.SYS", order[1] + " LOGO.SYS");
    GiveAttributes(logos + order[1] + "\\LOGO.SYS", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    Store("DefaultLogoSet", TextValue(order[0]));
    EXPECT_EQ(Rotaline(), Outcome::Done);
    ExpectInstalled(order[1]);
}

TEST_F(ChangeSetTest, SetsOfWhichNoneHasAStartupScreenChangeNothing) {
    MakeFolders(logos + "Blue\\");
    Put(logos + "Blue\\LOGOW.SYS", "Blue LOGOW.SYS");
    MakeFolders(logos + "Red\\LOGO.SYS\\");
    EXPECT_EQ(Rotaline(), Outcome::NoSets);
    EXPECT_EQ(Shufflet(), Outcome::NoSets);
    ExpectNothingChanged();
    EXPECT_EQ(InstalledSet(), "(none)");
}

TEST_F(ChangeSetTest, AStoredLogoFolderThatIsNotThereChangesNothing) {
    PutScreens(bin + "Original Logos\\", "Original");
    Store("DefaultLogoSet", TextValue("Blue"));
    for (const std::string& gone : {root + "gone\\", root + "gone", std::string("Q:\\LOGOS\\")}) {
        Store("LogoPath", TextValue(gone));
        StoreIn(kRunKey, "Mirrorkin", TextValue("as it was"));
        EXPECT_EQ(Rotaline(), Outcome::LogoFolderNotThere);
        EXPECT_EQ(Shufflet(), Outcome::LogoFolderNotThere);
        ExpectNothingChanged();
        EXPECT_EQ(InstalledSet(), "Blue");
        EXPECT_EQ(StoredIn(kRunKey, "Mirrorkin"), TextValue("as it was"));
    }
    RemoveTree(bin + "Original Logos");
}

TEST_F(ChangeSetTest, AfterASetThatWasDeletedComesTheFirst) {
    PutSet("Blue");
    PutSet("Red");
    Store("DefaultLogoSet", TextValue("Deleted"));
    EXPECT_EQ(Rotaline(), Outcome::Done);
    ExpectInstalled(SetsInOrder()[0]);
    Store("DefaultLogoSet", TextValue("Deleted"));
    EXPECT_EQ(Shufflet(), Outcome::Done);
    EXPECT_EQ(Installed(), ScreensOf(InstalledSet()));
}

TEST_F(ChangeSetTest, WithoutAKeyTheSetsBesideTheProgramCount) {
    ForgetSettings();
    PutScreens(bin + "Blue\\", "Blue");
    const Outcome outcome = Rotaline();
    RemoveTree(bin + "Blue");
    EXPECT_EQ(outcome, Outcome::Done);
    ExpectInstalled("Blue");
}

TEST_F(ChangeSetTest, SettingsFullOfGarbageAreNoTrouble) {
    PutSet("Blue");
    Store("Synchronize logos", {REG_BINARY, std::string("\xFF\0\xFF", 3)});
    Store("DefaultLogoSet", TextValue(std::string(4000, '\xFF')));
    Store("StartUpDrive", {REG_BINARY, std::string(100, '\0')});
    Store("View", TextValue("99999999999999999999"));
    EXPECT_EQ(Rotaline(), Outcome::Done);
    ExpectInstalled("Blue");
    Store("LogoPath", TextValue(std::string("\0\xFF:*?", 5)));
    EXPECT_EQ(Shufflet(), Outcome::NoSets);
    ExpectInstalled("Blue");
}

TEST_F(ChangeSetTest, EveryOtherValueStaysAsItWas) {
    PutSet("Blue");
    const std::vector<std::pair<std::string, StoredValue>> values = {
        {"SearchLogoPath", TextValue("C:\\PICS")},
        {"View", {REG_BINARY, "garbage"}},
        {"Synchronize logos", TextValueWithNul("0")},
        {"StartUpDrive", TextValueWithNul("C")},
        {"DefaultAction", TextValue("7")},
        {"CustomProgName", TextValue("")},
        {"DeleteInTheRecycleBin", TextValue("0")},
        {"ShowSplashScreen", TextValue("x")},
        {"ActionOnDoubleClick", {REG_DWORD, std::string("\1\0\0\0", 4)}},
        {"Not ours", TextValue("kept")}};
    for (const auto& [name, value] : values) Store(name, value);
    EXPECT_EQ(Rotaline(), Outcome::Done);
    EXPECT_EQ(Shufflet(), Outcome::Done);
    for (const auto& [name, value] : values) EXPECT_EQ(Stored(name), value) << name;
    EXPECT_EQ(Stored("LogoPath"), TextValue(logos));
    for (const char* absent : {"CustomProgPath", "ConfirmLogosetDelete", "ConfirmLogoTypeChange"}) {
        EXPECT_FALSE(Stored(absent)) << absent;
    }
}

TEST_F(ChangeSetTest, WhileSynchronizingMirrorkinIsRegisteredAsClosingWould) {
    PutSet("Blue");
    PutScreens(logos, "shared");
    Store("Synchronize logos", TextValue("1"));
    EXPECT_EQ(Rotaline(), Outcome::Done);
    EXPECT_EQ(Installed(), (Screens{"Blue LOGO.SYS", old[1], old[2]}));
    EXPECT_EQ(StoredIn(kRunKey, "Mirrorkin"), SavedText(bin + "Mirrorkin.exe /auto"));
    EXPECT_EQ(Ini(), "[Settings]\r\nPath=" + logos + "Blue\r\n");

    RemoveTree(logos + "Blue");
    PutSet("Sunset.sls");
    EXPECT_EQ(Shufflet(), Outcome::Done);
    EXPECT_EQ(Installed(), (Screens{"Sunset.sls LOGO.SYS", old[1], old[2]}));
    EXPECT_EQ(Ini(), "[Settings]\r\nPath=" + logos + "\r\n");
}

TEST_F(ChangeSetTest, WithoutSynchronizingMirrorkinIsRemoved) {
    PutSet("Blue");
    for (const char* program : {"Rotaline.exe", "Shufflet.exe"}) {
        StoreIn(kRunKey, "Mirrorkin", TextValue("old"));
        Put(bin + "Mirrorkin.ini", "old");
        EXPECT_EQ(RunUnseen(program), 0u);
        EXPECT_FALSE(StoredIn(kRunKey, "Mirrorkin"));
        EXPECT_FALSE(Ini());
    }
}

TEST_F(ChangeSetTest, ASetThatLacksScreensIsInstalledAndTold) {
    MakeFolders(logos + "Blue\\");
    Put(logos + "Blue\\LOGO.SYS", "Blue LOGO.SYS");
    EXPECT_EQ(Rotaline(), Outcome::ScreenNotCopied);
    EXPECT_EQ(Installed(), (Screens{"Blue LOGO.SYS", "-", "-"}));
    EXPECT_EQ(InstalledSet(), "Blue");
}

TEST_F(ChangeSetTest, ReadOnlyHiddenAndSystemTargetsAreReplaced) {
    PutSet("Blue");
    for (const std::string& screen :
         {std::string("C:\\LOGO.SYS"), windows + "LOGOW.SYS", windows + "LOGOS.SYS"}) {
        GiveAttributes(screen,
                       FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    }
    EXPECT_EQ(Rotaline(), Outcome::Done);
    ExpectInstalled("Blue");
}

TEST_F(ChangeSetTest, AStartupScreenThatCannotBeReadLeavesTheInstalledOne) {
    PutSet("Blue");
    const HANDLE taken = CreateFileA((logos + "Blue\\LOGO.SYS").c_str(), GENERIC_READ, 0, nullptr,
                                     OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(Rotaline(), Outcome::ScreenNotCopied);
    CloseHandle(taken);
    EXPECT_EQ(Installed(), (Screens{old[0], "Blue LOGOW.SYS", "Blue LOGOS.SYS"}));
}

TEST_F(ChangeSetTest, WhileVistrelRunsNothingChanges) {
    PutSet("Blue");
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.lpszClassName = "Principale";
    RegisterClassA(&windowClass);
    HWND window = CreateWindowA("Principale", "Vistrel", WS_OVERLAPPED, 0, 0, 10, 10, nullptr,
                                nullptr, nullptr, nullptr);
    EXPECT_EQ(Rotaline(), Outcome::VistrelRuns);
    EXPECT_EQ(Shufflet(), Outcome::VistrelRuns);
    ExpectNothingChanged();
    EXPECT_EQ(InstalledSet(), "(none)");
    DestroyWindow(window);
    EXPECT_EQ(Rotaline(), Outcome::Done);
    ExpectInstalled("Blue");
    UnregisterClassA("Principale", nullptr);
}

TEST_F(ChangeSetTest, OnNtTheNameIsStoredWithoutANul) {
    PutSet("Blue");
    const char* key = "Software\\Wine\\AppDefaults\\Rotaline.exe";
    HKEY open = nullptr;
    ASSERT_EQ(RegCreateKeyExA(HKEY_CURRENT_USER, key, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &open,
                              nullptr),
              ERROR_SUCCESS);
    RegSetValueExA(open, "Version", 0, REG_SZ, reinterpret_cast<const BYTE*>("winxp"), 6);
    EXPECT_EQ(Rotaline(), Outcome::Done);
    RegDeleteValueA(open, "Version");
    RegCloseKey(open);
    RegDeleteKeyA(HKEY_CURRENT_USER, key);
    EXPECT_EQ(Stored("DefaultLogoSet"), TextValue("Blue"));
}

TEST_F(ChangeSetTest, TheLinkInTheStartupFolderStartsTheChosenCompanion) {
    PutSet("Blue");
    MakeMissingLinks(bin, startup);
    ApplyStartUpAction(StartUpActionKind::Rotaline, bin, startup);
    ASSERT_EQ(NamesIn(startup), Names{"Rotaline.lnk"});
    const auto result = reinterpret_cast<INT_PTR>(ShellExecuteA(
        nullptr, nullptr, (startup + "Rotaline.lnk").c_str(), nullptr, nullptr, SW_SHOWNORMAL));
    EXPECT_GT(result, 32);
    EXPECT_TRUE(WaitUntil([&] { return InstalledSet() == "Blue"; }));
    EXPECT_EQ(Installed(), ScreensOf("Blue"));
}

TEST(OutcomeTest, TheNumbersThatACompanionReturnsStay) {
    const std::vector<Outcome> outcomes = {Outcome::Done,
                                           Outcome::VistrelRuns,
                                           Outcome::NoSets,
                                           Outcome::ScreenNotCopied,
                                           Outcome::SetNotRecorded,
                                           Outcome::NotRegistered,
                                           Outcome::NoFolderNamed,
                                           Outcome::FolderNotThere,
                                           Outcome::LogoFolderNotThere};
    for (std::size_t i = 0; i < outcomes.size(); ++i)
        EXPECT_EQ(static_cast<std::size_t>(outcomes[i]), i);
}

}  // namespace
}  // namespace vistrel::test
