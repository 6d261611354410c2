// Mirrorkin: the real program, and its copying with failures and power cuts.
#include <windows.h>

#include "companions/mirror_screens.h"
#include "core/synchronizing.h"
#include "platform/fault.h"
#include "tests/companions/boot.h"
#include "tests/support/user/user.h"

namespace vistrel::test {

using namespace companions;
using namespace core;
using namespace platform;

namespace {

/// A time of long ago, by which a file that was not written is known.
constexpr FILETIME kLongAgo = {0, 0x01B00000};

void SetWriteTime(const std::string& path) {
    HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_TRUE(SetFileTime(file, nullptr, nullptr, &kLongAgo)) << path;
    CloseHandle(file);
}

bool WasWritten(const std::string& path) {
    WIN32_FIND_DATAA found = {};
    FindClose(FindFirstFileA(path.c_str(), &found));
    return CompareFileTime(&found.ftLastWriteTime, &kLongAgo) != 0;
}

/// Runs a command of the system below Wine; nothing tells when it has ended. There are no handles
/// of such a process: what Wine leaves in their place may be anybody's, and is not closed.
void RunBelow(const std::string& command) {
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    std::string line = "Z:\\bin\\sh -c \"" + command + "\"";
    ASSERT_TRUE(CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                               &startup, &process));
}

/// Takes the right to make and remove files in the Windows directory away for as long as it lives.
class ClosedWindowsDirectory {
 public:
    ClosedWindowsDirectory() {
        RunBelow("chmod a-w ../windows");
        closed_ = WaitUntil([] { return !CanWrite(); });
    }
    ~ClosedWindowsDirectory() {
        RunBelow("chmod u+w ../windows");
        WaitUntil([] { return CanWrite(); });
    }
    bool IsClosed() const { return closed_; }

 private:
    /// Each probe has a name of its own: one that the directory has been closed over stays.
    static bool CanWrite() {
        static int probes = 0;
        const std::string probe = "C:\\windows\\probe" + std::to_string(++probes);
        HANDLE file = CreateFileA(probe.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                  FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        if (file == INVALID_HANDLE_VALUE) return false;
        CloseHandle(file);
        return true;
    }

    bool closed_ = false;
};

class MirrorkinTest : public Boot {
 protected:
    Outcome Mirrorkin() { return static_cast<Outcome>(RunUnseen("Mirrorkin.exe /auto")); }
    void NamePath(const std::string& path) {
        Put(bin + "Mirrorkin.ini", "[Settings]\r\nPath=" + path + "\r\n");
    }
    /// What lies in the Windows directory beside the screens themselves.
    Names Leftovers() const {
        Names names;
        for (const std::string& name : NamesIn(windows)) {
            if (name.starts_with("~LOGO")) names.push_back(name);
        }
        return names;
    }

    const Screens blue_ = {old[0], "Blue LOGOW.SYS", "Blue LOGOS.SYS"};
};

TEST_F(MirrorkinTest, BringsTheWaitAndShutdownScreensOfTheNamedFolder) {
    PutSet("Blue");
    for (const std::string& path : {logos + "Blue", logos + "Blue\\"}) {
        PutInstalled();
        NamePath(path);
        EXPECT_EQ(Mirrorkin(), Outcome::Done);
        EXPECT_EQ(Installed(), blue_);
        EXPECT_EQ(Leftovers(), Names{});
    }
}

TEST_F(MirrorkinTest, BringsScreensThatAreNotThereYet) {
    PutSet("Blue");
    NamePath(logos + "Blue");
    RemoveTree(windows + "LOGOW.SYS");
    RemoveTree(windows + "LOGOS.SYS");
    EXPECT_EQ(Mirrorkin(), Outcome::Done);
    EXPECT_EQ(Installed(), blue_);
}

TEST_F(MirrorkinTest, WritesOnlyWhatDiffers) {
    PutSet("Blue");
    NamePath(logos + "Blue");
    Put(windows + "LOGOW.SYS", "Blue LOGOW.SYS");
    SetWriteTime(windows + "LOGOW.SYS");
    EXPECT_EQ(Mirrorkin(), Outcome::Done);
    EXPECT_EQ(Installed(), blue_);
    EXPECT_FALSE(WasWritten(windows + "LOGOW.SYS"));
    SetWriteTime(windows + "LOGOS.SYS");
    EXPECT_EQ(Mirrorkin(), Outcome::Done);
    EXPECT_FALSE(WasWritten(windows + "LOGOS.SYS"));
}

TEST_F(MirrorkinTest, FilesOfTheSameLengthThatDifferAreReplaced) {
    PutSet("Blue");
    NamePath(logos + "Blue");
    const std::string large(100000, 'a');
    Put(logos + "Blue\\LOGOW.SYS", large + "x");
    Put(windows + "LOGOW.SYS", large + "y");
    EXPECT_EQ(Mirrorkin(), Outcome::Done);
    EXPECT_EQ(Installed()[1], large + "x");
    Put(windows + "LOGOW.SYS", large + "xz");
    EXPECT_EQ(Mirrorkin(), Outcome::Done);
    EXPECT_EQ(Installed()[1], large + "x");
}

TEST_F(MirrorkinTest, ReadOnlyAndHiddenScreensAreReplaced) {
    PutSet("Blue");
    NamePath(logos + "Blue");
    GiveAttributes(windows + "LOGOW.SYS", FILE_ATTRIBUTE_READONLY);
    GiveAttributes(windows + "LOGOS.SYS", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    GiveAttributes(logos + "Blue\\LOGOW.SYS", FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(Mirrorkin(), Outcome::Done);
    EXPECT_EQ(Installed(), blue_);
    EXPECT_EQ(AttributesOf(windows + "LOGOW.SYS") & 7, 0u);
}

TEST_F(MirrorkinTest, AScreenThatTheFolderLacksEndsUpAbsent) {
    PutSet("Blue");
    RemoveTree(logos + "Blue\\LOGOW.SYS");
    NamePath(logos + "Blue");
    EXPECT_EQ(Mirrorkin(), Outcome::ScreenNotCopied);
    EXPECT_EQ(Installed(), (Screens{old[0], "-", "Blue LOGOS.SYS"}));
}

TEST_F(MirrorkinTest, WithoutAFolderTheScreensStay) {
    EXPECT_EQ(Mirrorkin(), Outcome::NoFolderNamed);
    NamePath("");
    EXPECT_EQ(Mirrorkin(), Outcome::NoFolderNamed);
    Put(bin + "Mirrorkin.ini", std::string(3000, '\xFF'));
    EXPECT_EQ(Mirrorkin(), Outcome::NoFolderNamed);
    NamePath(logos + "gone");
    EXPECT_EQ(Mirrorkin(), Outcome::FolderNotThere);
    NamePath("Q:\\LOGOS");
    EXPECT_EQ(Mirrorkin(), Outcome::FolderNotThere);
    NamePath(std::string(1500, 'x'));
    EXPECT_EQ(Mirrorkin(), Outcome::FolderNotThere);
    EXPECT_EQ(Installed(), old);
}

TEST_F(MirrorkinTest, WithoutAKnownSetNeitherTheScreensNorTheirSharedOnesChange) {
    PutScreens(logos, "shared");
    RegisterMirrorkin(bin, logos, "");
    EXPECT_EQ(Mirrorkin(), Outcome::FolderNotThere);
    EXPECT_EQ(Installed(), old);
}

TEST_F(MirrorkinTest, AFolderThatIsNamedLikeAScreenLeavesTheInstalledOne) {
    PutSet("Blue");
    RemoveTree(logos + "Blue\\LOGOW.SYS");
    MakeFolders(logos + "Blue\\LOGOW.SYS\\");
    NamePath(logos + "Blue");
    EXPECT_EQ(Mirrorkin(), Outcome::ScreenNotCopied);
    EXPECT_EQ(Installed(), (Screens{old[0], old[1], "Blue LOGOS.SYS"}));
    EXPECT_EQ(Leftovers(), Names{});
}

TEST_F(MirrorkinTest, ADiskThatTakesNoMoreLeavesTheOldScreen) {
    PutSet("Blue");
    NamePath(logos + "Blue");
    Put(logos + "Blue\\LOGOW.SYS", std::string(129078, 'x'));
    // No file can grow beyond 64 blocks of 512 bytes: writing fails as on a full disk.
    RunBelow("trap '' XFSZ; ulimit -f 64; wine Mirrorkin.exe /auto; echo $? > result");
    ASSERT_TRUE(WaitUntil([&] { return !Contents(bin + "result").value_or("").empty(); }));
    EXPECT_EQ(Contents(bin + "result"), "3\n");
    EXPECT_EQ(Installed(), (Screens{old[0], old[1], "Blue LOGOS.SYS"}));
    EXPECT_EQ(Leftovers(), Names{});
    RemoveTree(bin + "result");
}

TEST_F(MirrorkinTest, AClosedWindowsDirectoryKeepsItsScreens) {
    PutSet("Blue");
    NamePath(logos + "Blue");
    const ClosedWindowsDirectory closed;
    ASSERT_TRUE(closed.IsClosed());
    EXPECT_EQ(Mirrorkin(), Outcome::ScreenNotCopied);
    EXPECT_EQ(Installed(), old);
}

TEST_F(MirrorkinTest, FollowsRotaline) {
    PutSet("Blue");
    Store("Synchronize logos", TextValue("1"));
    EXPECT_EQ(RunUnseen("Rotaline.exe"), 0u);
    EXPECT_EQ(Mirrorkin(), Outcome::Done);
    EXPECT_EQ(Installed(), (Screens{"Blue LOGO.SYS", blue_[1], blue_[2]}));
}

TEST_F(MirrorkinTest, WithoutAutoItSaysWhatItIsAndChangesNothing) {
    PutSet("Blue");
    NamePath(logos + "Blue");
    user::Box box;
    user::Meanwhile user([&] {
        // The box of another process: found by its title.
        box.window = user::WaitForTop("#32770", "Mirrorkin");
        DWORD process = 0;
        GetWindowThreadProcessId(box.window, &process);
        box = user::AnswerBox(IDOK, process);
    });
    const Start start = Run("Mirrorkin.exe");
    user.Finish();
    EXPECT_TRUE(start.ended);
    EXPECT_EQ(start.exitCode, 0u);
    EXPECT_EQ(box.title, "Mirrorkin");
    EXPECT_EQ(
        box.text,
        "Mirrorkin brings the wait and shutdown screens of your logo set into place each "
        "time Windows starts. Vistrel starts it by itself while \"Synchronize logos\" is on.");
    EXPECT_EQ(box.buttons, std::vector<int>{IDOK});
    EXPECT_EQ(Installed(), old);
}

TEST_F(MirrorkinTest, TheSwitchMayBeInCapitals) {
    PutSet("Blue");
    NamePath(logos + "Blue");
    EXPECT_EQ(RunUnseen("Mirrorkin.exe /AUTO"), 0u);
    EXPECT_EQ(Installed(), blue_);
}

/// Copying with failures, into a folder that stands for the Windows directory.
class MirrorScreensTest : public Machine {
 protected:
    void Prepare() {
        RemoveTree(windows);
        MakeFolders(windows);
        Put(windows + "LOGOW.SYS", "old LOGOW.SYS");
        Put(windows + "LOGOS.SYS", "old LOGOS.SYS");
        GiveAttributes(windows + "LOGOW.SYS", FILE_ATTRIBUTE_READONLY);
        PutScreens(logos + "Blue\\", "Blue");
    }
    Outcome Mirror() { return MirrorScreens(logos + "Blue", windows); }

    /// Whether a screen is there, complete, by its own name.
    bool IsOldOrNew(const std::string& name) const {
        const auto contents = Contents(windows + name);
        return contents == "old " + name || contents == "Blue " + name;
    }
};

TEST_F(MirrorScreensTest, OneFailureLeavesTheOldOrTheNewFile) {
    Outcome outcome = Outcome::Done;
    WithEachOperationFailing([&] { Prepare(); }, [&] { outcome = Mirror(); },
                             [&](int) {
                                 EXPECT_TRUE(IsOldOrNew("LOGOW.SYS"));
                                 EXPECT_TRUE(IsOldOrNew("LOGOS.SYS"));
                                 EXPECT_EQ(Mirror(), Outcome::Done);
                                 EXPECT_EQ(Contents(windows + "LOGOW.SYS"), "Blue LOGOW.SYS");
                                 EXPECT_EQ(NamesIn(windows), (Names{"LOGOS.SYS", "LOGOW.SYS"}));
                             });
}

TEST_F(MirrorScreensTest, AFailureWithOneScreenDoesNotStopTheOther) {
    // The question for the folder comes first; a failure after it concerns one screen only.
    WithEachOperationFailing(
        [&] { Prepare(); }, [&] { Mirror(); },
        [&](int failed) {
            const bool wait = Contents(windows + "LOGOW.SYS") == "Blue LOGOW.SYS";
            const bool shutdown = Contents(windows + "LOGOS.SYS") == "Blue LOGOS.SYS";
            EXPECT_TRUE(failed == 1 || wait || shutdown);
        });
}

TEST_F(MirrorScreensTest, APowerCutAnywhereLeavesNoHalfFileAndTheNextRunRepairs) {
    Prepare();
    fault::Reset();
    Mirror();
    const int operations = fault::Counted();
    int between = 0;
    for (int cut = 1; cut <= operations; ++cut) {
        SCOPED_TRACE("power cut before operation " + std::to_string(cut));
        Prepare();
        fault::FailFromOperation(cut);
        Mirror();
        fault::Reset();
        for (const std::string name : {"LOGOW.SYS", "LOGOS.SYS"}) {
            if (Exists(windows + name)) {
                EXPECT_TRUE(IsOldOrNew(name));
                continue;
            }
            // Between the two renames both files are complete, by other names.
            ++between;
            const std::string stem = windows + "~" + name.substr(0, 5);
            EXPECT_EQ(Contents(stem + ".OLD"), "old " + name);
            EXPECT_EQ(Contents(stem + ".NEW"), "Blue " + name);
        }
        EXPECT_EQ(Mirror(), Outcome::Done);
        EXPECT_EQ(Contents(windows + "LOGOW.SYS"), "Blue LOGOW.SYS");
        EXPECT_EQ(Contents(windows + "LOGOS.SYS"), "Blue LOGOS.SYS");
        EXPECT_EQ(NamesIn(windows), (Names{"LOGOS.SYS", "LOGOW.SYS"}));
    }
    EXPECT_EQ(between, 2);  // one moment for each screen
}

TEST_F(MirrorScreensTest, AnOldFileThatACutLeftAsideComesBackWhereTheNewOneCannotBeHad) {
    Prepare();
    MoveFileA((windows + "LOGOW.SYS").c_str(), (windows + "~LOGOW.OLD").c_str());
    RemoveTree(logos + "Blue\\LOGOW.SYS");
    MakeFolders(logos + "Blue\\LOGOW.SYS\\");  // cannot be read
    EXPECT_EQ(Mirror(), Outcome::ScreenNotCopied);
    EXPECT_EQ(Contents(windows + "LOGOW.SYS"), "old LOGOW.SYS");
}

TEST_F(MirrorScreensTest, NobodyIsAskedForADisk) {
    Prepare();
    SetErrorMode(0);
    EXPECT_EQ(Mirror(), Outcome::Done);
    EXPECT_NE(SetErrorMode(0) & SEM_FAILCRITICALERRORS, 0u);
}

TEST_F(MirrorScreensTest, AnOldFileThatACutLeftBesideTheNewOneIsNotInTheWay) {
    Prepare();
    Put(windows + "~LOGOW.OLD", "older LOGOW.SYS");
    GiveAttributes(windows + "~LOGOW.OLD", FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(Mirror(), Outcome::Done);
    EXPECT_EQ(Contents(windows + "LOGOW.SYS"), "Blue LOGOW.SYS");
    EXPECT_EQ(NamesIn(windows), (Names{"LOGOS.SYS", "LOGOW.SYS"}));
}

TEST_F(MirrorScreensTest, HalfAFileThatACutLeftIsThrownAway) {
    Prepare();
    Put(windows + "~LOGOW.NEW", "Blue LO");
    GiveAttributes(windows + "~LOGOW.NEW", FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(Mirror(), Outcome::Done);
    EXPECT_EQ(Contents(windows + "LOGOW.SYS"), "Blue LOGOW.SYS");
    EXPECT_EQ(NamesIn(windows), (Names{"LOGOS.SYS", "LOGOW.SYS"}));
}

}  // namespace
}  // namespace vistrel::test
