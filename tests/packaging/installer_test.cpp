// The installer and the uninstaller, without windows and with them.
#include <gtest/gtest.h>
#include <windows.h>
// The shell's headers need windows.h first.
#include <shlobj.h>

#include <algorithm>

#include "tests/stories/installed_program.h"
#include "tests/support/machine/machine.h"
#include "tests/support/user/started_program.h"
#include "tests/support/user/user.h"

namespace vistrel::test {
namespace {

constexpr const char* kUninstallKey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Vistrel";
const Names kFiles = {"Mirrorkin.exe", "Rotaline.exe", "Rotaline.lnk",
                      "Shufflet.exe",  "Shufflet.lnk", "readme.txt",
                      "uninst.exe",    "vistrel.exe",  "vistrl.hlp"};

const std::string kConverter = "logo-convert.exe";
const Names kFilesWithConverter = [] {
    Names names = kFiles;
    names.push_back(kConverter);
    std::sort(names.begin(), names.end());
    return names;
}();

std::string ShellFolder(int which) {
    char path[MAX_PATH] = "";
    SHGetSpecialFolderPathA(nullptr, path, which, TRUE);
    return std::string(path) + "\\";
}

std::string TextIn(const std::string& key, const std::string& name) {
    const auto value = StoredIn(key, name);
    return value ? std::string(value->bytes.c_str()) : "(none)";
}

/// The last three names of a folder's path, such as "Start Menu\Programs\StartUp\".
std::string LastNamesOf(const std::string& folder) {
    std::size_t at = folder.size() - 1;
    for (int i = 0; i < 3; ++i) at = folder.rfind('\\', at - 1);
    return folder.substr(at + 1);
}

/// A machine without the program.
class Installer : public testing::Test {
 protected:
    Installer() {
        if (Exists(kProgramFolder + "uninst.exe")) UninstallSilently();
        RemoveTree(kProgramFolder);
        RemoveTree("C:\\Tools\\");
        ForgetSettings();
    }
    static void PutSet(const std::string& folder) {
        MakeFolders(folder);
        for (const char* name : {"LOGO.SYS", "LOGOW.SYS", "LOGOS.SYS"}) Put(folder + name, name);
    }

    const std::string menu = ShellFolder(CSIDL_PROGRAMS) + "Vistrel\\";
    const std::string startup = ShellFolder(CSIDL_STARTUP);
};

TEST_F(Installer, PutsTheProgramsTheHelpAndTheLinksIntoProgramFiles) {
    ASSERT_EQ(InstallSilently(), 0u);
    EXPECT_EQ(NamesIn(kProgramFolder), kFiles);
    EXPECT_EQ(TargetOf(kProgramFolder + "Rotaline.lnk"), kProgramFolder + "Rotaline.exe");
    EXPECT_EQ(TargetOf(kProgramFolder + "Shufflet.lnk"), kProgramFolder + "Shufflet.exe");
}

TEST_F(Installer, MakesStartMenuEntriesAndAnEntryAmongTheInstalledPrograms) {
    ASSERT_EQ(InstallSilently(), 0u);
    EXPECT_EQ(NamesIn(menu), (Names{"Read me.lnk", "Vistrel Help.lnk", "Vistrel.lnk"}));
    EXPECT_EQ(TargetOf(menu + "Vistrel.lnk"), kProgramFolder + "vistrel.exe");
    EXPECT_EQ(TargetOf(menu + "Vistrel Help.lnk"), kProgramFolder + "vistrl.hlp");
    EXPECT_EQ(TargetOf(menu + "Read me.lnk"), kProgramFolder + "readme.txt");
    EXPECT_EQ(TextIn(kUninstallKey, "DisplayName"),
              "Vistrel " + TextIn(kUninstallKey, "DisplayVersion"));
    EXPECT_EQ(TextIn(kUninstallKey, "UninstallString"), "\"" + kProgramFolder + "uninst.exe\"");
    EXPECT_EQ(TextIn(kUninstallKey, "DisplayIcon"), kProgramFolder + "vistrel.exe");
    const StoredValue one = {REG_DWORD, std::string("\1\0\0\0", 4)};
    EXPECT_EQ(StoredIn(kUninstallKey, "NoModify"), one);
    EXPECT_EQ(StoredIn(kUninstallKey, "NoRepair"), one);
}

TEST_F(Installer, PutsEverythingIntoTheFolderThatTheUserChooses) {
    const std::string chosen = "C:\\My Tools\\Logo changer\\";
    ASSERT_EQ(InstallSilently("/D=C:\\My Tools\\Logo changer"), 0u);
    EXPECT_EQ(NamesIn(chosen), kFiles);
    EXPECT_FALSE(Exists(kProgramFolder));
    EXPECT_EQ(TargetOf(chosen + "Rotaline.lnk"), chosen + "Rotaline.exe");
    EXPECT_EQ(TargetOf(menu + "Vistrel.lnk"), chosen + "vistrel.exe");

    // A newer version goes to the same place.
    Put(chosen + "vistrel.exe", "an older program");
    ASSERT_EQ(InstallSilently(), 0u);
    EXPECT_FALSE(Exists(kProgramFolder));
    EXPECT_NE(Contents(chosen + "vistrel.exe"), "an older program");

    EXPECT_TRUE(UninstallSilently(chosen));
    EXPECT_FALSE(Exists(chosen));
    RemoveTree("C:\\My Tools\\");
}

TEST_F(Installer, ANewerVersionInAnotherFolderTakesTheFormerOneAway) {
    ASSERT_EQ(InstallSilently(), 0u);
    Put(kProgramFolder + "Mirrorkin.ini", "[Settings]\r\nPath=C:\\Logos\\Blue\r\n");
    StoreIn(kRunKey, "Mirrorkin", TextValue(kProgramFolder + "Mirrorkin.exe /auto"));
    CopyFileA((kProgramFolder + "Rotaline.lnk").c_str(), (startup + "Rotaline.lnk").c_str(), FALSE);
    PutSet(kProgramFolder + "Original Logos\\");
    Store("LogoPath", TextValue(kProgramFolder));

    const std::string chosen = "C:\\Tools\\";
    ASSERT_EQ(InstallSilently("/D=C:\\Tools"), 0u);
    EXPECT_EQ(NamesIn(kProgramFolder), Names{"Original Logos"});
    EXPECT_TRUE(Exists(kProgramFolder + "Original Logos\\LOGO.SYS"));
    EXPECT_EQ(Stored("LogoPath"), TextValue(kProgramFolder));
    // What starts by itself starts from the new folder.
    EXPECT_EQ(TextIn(kRunKey, "Mirrorkin"), chosen + "Mirrorkin.exe /auto");
    EXPECT_EQ(Contents(chosen + "Mirrorkin.ini"), "[Settings]\r\nPath=C:\\Logos\\Blue\r\n");
    EXPECT_EQ(TargetOf(startup + "Rotaline.lnk"), chosen + "Rotaline.exe");
    EXPECT_EQ(NamesIn(startup), Names{"Rotaline.lnk"});
    EXPECT_EQ(TargetOf(menu + "Vistrel.lnk"), chosen + "vistrel.exe");
    EXPECT_EQ(TextIn(kUninstallKey, "InstallLocation"), "C:\\Tools");

    EXPECT_TRUE(UninstallSilently(chosen));
    EXPECT_FALSE(Exists(chosen));
    EXPECT_FALSE(Exists(menu));
}

TEST_F(Installer, AFileInUseEndsARunWithoutWindowsBeforeAnythingIsChanged) {
    ASSERT_EQ(InstallSilently(), 0u);
    Put(kProgramFolder + "vistrel.exe", "an older program");
    HANDLE inUse = CreateFileA((kProgramFolder + "Mirrorkin.exe").c_str(), GENERIC_READ,
                               FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(InstallSilently(), 2u);
    EXPECT_EQ(Contents(kProgramFolder + "vistrel.exe"), "an older program");
    EXPECT_FALSE(UninstallSilently());
    EXPECT_EQ(NamesIn(kProgramFolder), kFiles);
    CloseHandle(inUse);
    EXPECT_EQ(InstallSilently(), 0u);
    EXPECT_NE(Contents(kProgramFolder + "vistrel.exe"), "an older program");
}

TEST_F(Installer, ReadOnlyFilesOfAnOlderVersionAreReplaced) {
    ASSERT_EQ(InstallSilently(), 0u);
    Put(kProgramFolder + "vistrl.hlp", "an older help");
    GiveAttributes(kProgramFolder + "vistrl.hlp", FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(InstallSilently(), 0u);
    EXPECT_NE(Contents(kProgramFolder + "vistrl.hlp"), "an older help");
}

TEST_F(Installer, AReadMeOfAnotherProgramIsNeitherOverwrittenNorDeleted) {
    MakeFolders("C:\\Tools\\");
    Put("C:\\Tools\\readme.txt", "About other tools\r\n");
    ASSERT_EQ(InstallSilently("/D=C:\\Tools"), 0u);
    EXPECT_EQ(Contents("C:\\Tools\\readme.txt"), "About other tools\r\n");
    EXPECT_FALSE(Exists(menu + "Read me.lnk"));
    EXPECT_TRUE(UninstallSilently("C:\\Tools\\"));
    EXPECT_EQ(NamesIn("C:\\Tools\\"), Names{"readme.txt"});
    EXPECT_EQ(Contents("C:\\Tools\\readme.txt"), "About other tools\r\n");
    RemoveTree("C:\\Tools\\");
}

TEST_F(Installer, CleansTheStartupFoldersOfAllUsersWhenUninstalled) {
    ASSERT_EQ(InstallSilently(), 0u);
    // As Windows 98 has them: of everybody, of a machine without profiles, of another user.
    std::vector<std::string> folders;
    for (const char* whose : {"All Users\\", "", "Profiles\\Anna\\"})
        folders.push_back("C:\\windows\\" + std::string(whose) + LastNamesOf(startup));
    folders.push_back(ShellFolder(CSIDL_COMMON_STARTUP));
    for (const std::string& folder : folders) {
        MakeFolders(folder);
        Put(folder + "Rotaline.lnk", "a link");
        Put(folder + "Shufflet.lnk", "a link");
        Put(folder + "Clock.lnk", "somebody else's");
    }
    EXPECT_TRUE(UninstallSilently());
    for (const std::string& folder : folders) {
        EXPECT_EQ(NamesIn(folder), Names{"Clock.lnk"}) << folder;
        RemoveTree(folder + "Clock.lnk");
    }
    for (const char* left : {"All Users", "Profiles", "Start Menu"})
        RemoveTree(std::string("C:\\windows\\") + left);
}

TEST_F(Installer, LeavesNothingBehindWhenUninstalled) {
    const Snapshot before = TakeSnapshot();
    ASSERT_EQ(InstallSilently(), 0u);
    // What use leaves: settings, the help viewer's lists, Mirrorkin's notes.
    Store("DefaultLogoSet", TextValue("Sunny Day"));
    for (const char* name : {"vistrl.gid", "vistrl.fts", "Mirrorkin.ini", "thumbnails.dat"}) {
        Put(kProgramFolder + name, "notes");
        GiveAttributes(kProgramFolder + name, FILE_ATTRIBUTE_HIDDEN);
    }
    EXPECT_FALSE(Differences(before, TakeSnapshot(), NotOurs()).empty());
    EXPECT_TRUE(UninstallSilently());
    EXPECT_EQ(Differences(before, TakeSnapshot(), NotOurs()), Names{});
}

TEST_F(Installer, EndsTheChangingOfScreensAtEveryStartWhenUninstalled) {
    ASSERT_EQ(InstallSilently(), 0u);
    StoreIn(kRunKey, "Mirrorkin", TextValue(kProgramFolder + "Mirrorkin.exe"));
    StoreIn(kRunKey, "SystemTray", TextValue("SysTray.Exe"));
    CopyFileA((kProgramFolder + "Rotaline.lnk").c_str(), (startup + "Rotaline.lnk").c_str(), FALSE);
    CopyFileA((kProgramFolder + "Shufflet.lnk").c_str(), (startup + "Shufflet.lnk").c_str(), FALSE);
    Put(startup + "Clock.lnk", "somebody else's");
    EXPECT_TRUE(UninstallSilently());
    EXPECT_FALSE(StoredIn(kRunKey, "Mirrorkin").has_value());
    EXPECT_EQ(TextIn(kRunKey, "SystemTray"), "SysTray.Exe");
    EXPECT_EQ(NamesIn(startup), Names{"Clock.lnk"});
    ForgetValue(kRunKey, "SystemTray");
    RemoveTree(startup + "Clock.lnk");
}

TEST_F(Installer, KeepsTheUsersOwnSetsAndScreensWhenUninstalled) {
    ASSERT_EQ(InstallSilently(), 0u);
    Put("C:\\LOGO.SYS", "the installed screen");
    Put("C:\\msdos.sys", "[Options]\r\nLogo=1\r\n");
    MakeFolders(kProgramFolder + "Original Logos\\");
    Put(kProgramFolder + "Original Logos\\LOGO.SYS", "the old screen");
    MakeFolders("C:\\Logos\\Mine\\");
    Put("C:\\Logos\\Mine\\LOGO.SYS", "my screen");
    EXPECT_TRUE(UninstallSilently());
    EXPECT_EQ(NamesIn(kProgramFolder), Names{"Original Logos"});
    EXPECT_EQ(Contents(kProgramFolder + "Original Logos\\LOGO.SYS"), "the old screen");
    EXPECT_EQ(Contents("C:\\Logos\\Mine\\LOGO.SYS"), "my screen");
    EXPECT_EQ(Contents("C:\\LOGO.SYS"), "the installed screen");
    EXPECT_EQ(Contents("C:\\msdos.sys"), "[Options]\r\nLogo=1\r\n");
    for (const char* path : {"C:\\Logos\\", "C:\\LOGO.SYS", "C:\\msdos.sys"}) RemoveTree(path);
}

TEST_F(Installer, KeepsSettingsAndSetsWhenInstalledAgain) {
    ASSERT_EQ(InstallSilently(), 0u);
    Store("LogoPath", TextValue("C:\\Logos\\"));
    Store("View", TextValue("2"));
    MakeFolders(kProgramFolder + "Original Logos\\");
    Put(kProgramFolder + "Original Logos\\LOGO.SYS", "the old screen");
    Put(kProgramFolder + "vistrel.exe", "an older program");
    ASSERT_EQ(InstallSilently(), 0u);
    EXPECT_EQ(Stored("LogoPath"), TextValue("C:\\Logos\\"));
    EXPECT_EQ(Stored("View"), TextValue("2"));
    EXPECT_EQ(Contents(kProgramFolder + "Original Logos\\LOGO.SYS"), "the old screen");
    EXPECT_NE(Contents(kProgramFolder + "vistrel.exe"), "an older program");
}

TEST_F(Installer, ReplacesTheConverterOfAnOlderVersionWhereThatHasIt) {
    ASSERT_EQ(InstallSilently(), 0u);
    Put(kProgramFolder + kConverter, "an older converter");
    ASSERT_EQ(InstallSilently(), 0u);
    EXPECT_EQ(NamesIn(kProgramFolder), kFilesWithConverter);
    EXPECT_NE(Contents(kProgramFolder + kConverter), "an older converter");
    EXPECT_TRUE(UninstallSilently());
    EXPECT_FALSE(Exists(kProgramFolder));
}

/// The program, open.
class InstallerBesideTheProgram : public Installer {
 protected:
    ~InstallerBesideTheProgram() override { program_.Terminate(); }

    HWND OpenProgram() {
        program_ = StartedProgram(kOpenProgram);
        return user::WaitForTop("Principale", "", program_.id(), 60000);
    }

 private:
    StartedProgram program_;
};

TEST_F(InstallerBesideTheProgram, NeitherReplacesNorRemovesARunningProgram) {
    ASSERT_EQ(InstallSilently(), 0u);
    Put(kProgramFolder + "readme.txt", "an older text");
    Store("LogoPath", TextValue("C:\\test\\"));
    ASSERT_NE(OpenProgram(), nullptr);
    EXPECT_NE(InstallSilently(), 0u);
    EXPECT_EQ(Contents(kProgramFolder + "readme.txt"), "an older text");
    EXPECT_FALSE(UninstallSilently());
    EXPECT_EQ(Names(NamesIn(kProgramFolder)), kFiles);
}

/// The installer's windows, used by mouse and keyboard.
class InstallersWindows : public Installer {
 protected:
    HWND Open(const std::string& program, const std::string& title) {
        StartedProgram("\"" + program + "\"");
        const HWND window = user::WaitForTop("#32770", title);
        if (window) user::Activate(window);
        return window;
    }

    /// Presses the button that leads on, once it says so.
    static bool GoOn(HWND window, const std::string& label) {
        const HWND button = GetDlgItem(window, IDOK);
        return WaitUntil(
                   [&] { return user::TextOf(button) == label && IsWindowEnabled(button); }) &&
               user::Click(button);
    }
};

/// Takes the system's MSVCRT.DLL away for as long as it lives. It is in use, so that this happens
/// below Wine, whose own libraries then find it beside the installer.
class WithoutMsvcrt {
 public:
    WithoutMsvcrt() {
        CopyFileA(inUse_.c_str(), beside_.c_str(), FALSE);
        Move("msvcrt.dll", "msvcrt.away");
        gone_ = WaitUntil([&] { return !Exists(inUse_); });
    }
    ~WithoutMsvcrt() {
        Move("msvcrt.away", "msvcrt.dll");
        WaitUntil([&] { return Exists(inUse_); });
        RemoveTree(beside_);
    }
    bool IsGone() const { return gone_; }

 private:
    /// Nothing tells when a program below Wine has ended.
    static void Move(const std::string& from, const std::string& to) {
        const std::string folder = "../windows/system32/";
        StartedProgram("Z:\\bin\\mv " + folder + from + " " + folder + to);
    }

    const std::string inUse_ = ShellFolder(CSIDL_SYSTEM) + "msvcrt.dll";
    const std::string beside_ = "C:\\test\\msvcrt.dll";
    bool gone_ = false;
};

TEST_F(InstallersWindows, SayInWordsThatMsvcrtIsMissing) {
    const WithoutMsvcrt machine;
    ASSERT_TRUE(machine.IsGone());
    const StartedProgram setup("C:\\test\\vistrel-setup.exe");
    const user::Box box = user::AnswerBox(IDOK, setup.id());
    EXPECT_NE(box.text.find("MSVCRT.DLL"), std::string::npos) << box.text;
    EXPECT_NE(setup.WaitForEnd().value_or(0), 0u);
    EXPECT_FALSE(Exists(kProgramFolder));
}

TEST_F(InstallersWindows, OfferAFolderAndStartMenuEntriesAndTakeTheProgramAwayAgain) {
    HWND window = Open("C:\\test\\vistrel-setup.exe", "Vistrel Setup: Installation Options");
    ASSERT_NE(window, nullptr);
    user::TakeShot("setup_options");
    EXPECT_TRUE(GoOn(window, "&Next >"));

    // The folder's box has the focus, its text selected.
    window = user::WaitForTop("#32770", "Vistrel Setup: Installation Folder");
    ASSERT_NE(window, nullptr);
    user::TakeShot("setup_folder");
    user::Type("C:\\Vistrel");
    EXPECT_TRUE(GoOn(window, "&Install"));

    window = user::WaitForTop("#32770", "Vistrel Setup: Completed");
    ASSERT_NE(window, nullptr);
    user::TakeShot("setup_completed");
    EXPECT_EQ(NamesIn("C:\\Vistrel\\"), kFiles);
    EXPECT_TRUE(Exists(menu + "Vistrel.lnk"));
    EXPECT_TRUE(GoOn(window, "&Close"));
    EXPECT_TRUE(user::WaitUntilGone(window));

    window = Open("C:\\Vistrel\\uninst.exe", "Vistrel Uninstall: Confirmation");
    ASSERT_NE(window, nullptr);
    user::TakeShot("uninstall_confirm");
    EXPECT_TRUE(GoOn(window, "&Uninstall"));
    window = user::WaitForTop("#32770", "Vistrel Uninstall: Completed");
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(GoOn(window, "&Close"));
    EXPECT_TRUE(user::WaitUntilGone(window));
    EXPECT_FALSE(Exists("C:\\Vistrel\\"));
    EXPECT_FALSE(Exists(menu));
}

TEST_F(InstallersWindows, PutTheConverterThereWhereItIsChosenAndTakeItAwayAgain) {
    HWND window = Open("C:\\test\\vistrel-setup.exe", "Vistrel Setup: Installation Options");
    ASSERT_NE(window, nullptr);
    // The list of what can be installed; this is the last of it.
    const HWND page = FindWindowExA(window, nullptr, "#32770", nullptr);
    const HWND parts = FindWindowExA(page, nullptr, "SysTreeView32", nullptr);
    ASSERT_TRUE(user::Click(parts));
    user::Press(VK_END);
    user::Press(VK_SPACE);
    user::TakeShot("setup_converter");
    EXPECT_TRUE(GoOn(window, "&Next >"));
    window = user::WaitForTop("#32770", "Vistrel Setup: Installation Folder");
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(GoOn(window, "&Install"));
    window = user::WaitForTop("#32770", "Vistrel Setup: Completed");
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(NamesIn(kProgramFolder), kFilesWithConverter);
    EXPECT_TRUE(GoOn(window, "&Close"));
    EXPECT_TRUE(user::WaitUntilGone(window));
    EXPECT_TRUE(UninstallSilently());
    EXPECT_FALSE(Exists(kProgramFolder));
}

}  // namespace
}  // namespace vistrel::test
