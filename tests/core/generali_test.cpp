// General helpers on paths and files.
#include "core/generali.h"

#include <windows.h>

#include "core/locations.h"
#include "platform/fault.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace core;
using namespace platform;

namespace {

constexpr const char* kShellFolders =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\explorer\\Shell folders";

/// Sets the user's Startup folder for as long as it lives.
class StartupValue {
 public:
    explicit StartupValue(const std::string& bytes) {
        RegCreateKeyExA(HKEY_CURRENT_USER, kShellFolders, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                        &key_, nullptr);
        old_.resize(1000);
        auto size = static_cast<DWORD>(old_.size());
        had_ = RegQueryValueExA(key_, "Startup", nullptr, nullptr, Bytes(old_), &size) == 0;
        old_.resize(size);
        std::string copy = bytes;
        RegSetValueExA(key_, "Startup", 0, REG_SZ, Bytes(copy), static_cast<DWORD>(copy.size()));
    }
    ~StartupValue() {
        if (had_) {
            RegSetValueExA(key_, "Startup", 0, REG_SZ, Bytes(old_),
                           static_cast<DWORD>(old_.size()));
        } else {
            Remove();
        }
        RegCloseKey(key_);
    }
    void Remove() { RegDeleteValueA(key_, "Startup"); }

 private:
    static BYTE* Bytes(std::string& text) { return reinterpret_cast<BYTE*>(text.data()); }

    HKEY key_ = nullptr;
    bool had_ = false;
    std::string old_;
};

TEST(SystemLocationsTest, FoldersEndInABackslash) {
    const SystemLocations locations = FindSystemLocations();
    EXPECT_EQ(locations.programFolder, "C:\\test\\");
    EXPECT_EQ(UpperCase(locations.windowsDirectory), "C:\\WINDOWS\\");
    EXPECT_EQ(locations.startupFolder, "");
    EXPECT_EQ(locations.HelpFile(), "C:\\test\\vistrl.hlp");
}

TEST(SystemLocationsTest, TheBootConfigurationFileLiesOnTheDriveOfTheWindowsDirectory) {
    EXPECT_EQ((SystemLocations{"E:\\P\\", "D:\\WIN98\\", ""}).BootConfigurationFile(),
              "D:\\msdos.sys");
}

TEST(GetWindowsDirTest, HasNoTrailingBackslash) {
    EXPECT_EQ(UpperCase(GetWindowsDir()), "C:\\WINDOWS");
}

TEST(GetTempFileTest, MakesANewFileEachTime) {
    char folder[MAX_PATH];
    GetTempPathA(sizeof folder, folder);
    const std::string first = GetTempFile();
    const std::string second = GetTempFile();
    EXPECT_TRUE(UpperCase(first).starts_with(UpperCase(folder) + "~TM")) << first;
    EXPECT_NE(first, second);
    EXPECT_EQ(Contents(first), "");
    EXPECT_EQ(Contents(second), "");
    RemoveTree(first);
    RemoveTree(second);
}

TEST(GetTempFileTest, IsEmptyWhenNoneCanBeMade) {
    fault::FailOperation(2);
    EXPECT_EQ(GetTempFile(), "");
    fault::Reset();
}

TEST_F(Machine, GetShortPathGivesAnEightDotThreeNameAndTheBuffersNuls) {
    const std::string file = logos + "A rather long file name.sys";
    Put(file, "x");
    const std::string path = GetShortPath(file);
    EXPECT_EQ(path.size(), 255u);
    const std::string cut = CutAtNul(path);
    EXPECT_EQ(Contents(cut), "x");
    std::string copy = cut;
    EXPECT_LE(GetFileName(copy).size(), 12u) << cut;
    EXPECT_EQ(path.find_first_not_of('\0', cut.size()), std::string::npos);
}

TEST(GetShortPathTest, OfAMissingFileIsNothingButNuls) {
    EXPECT_EQ(CutAtNul(GetShortPath("C:\\there is none")), "");
}

TEST(GetStartupFolderTest, IsCutAtTheFirstNulAndEndsInABackslash) {
    const StartupValue value(std::string("C:\\Start\0menu\0", 14));
    EXPECT_EQ(GetStartupFolder(), "C:\\Start\\");
}

TEST(GetStartupFolderTest, KeepsABackslashThatIsThere) {
    const StartupValue value("C:\\Start\\");
    EXPECT_EQ(GetStartupFolder(), "C:\\Start\\");
}

TEST(GetStartupFolderTest, IsABackslashWithoutTheValue) {
    StartupValue value("x");
    value.Remove();
    EXPECT_EQ(GetStartupFolder(), "\\");
}

TEST(AddBackslashTest, OnlyAFinalBackslashCounts) {
    EXPECT_EQ(AddBackslash("C:\\TEMP"), "C:\\TEMP\\");
    EXPECT_EQ(AddBackslash("C:\\TEMP\\"), "C:\\TEMP\\");
    EXPECT_EQ(AddBackslash("C:\\TEMP "), "C:\\TEMP\\");
    EXPECT_EQ(AddBackslash("C:\\TEMP\\ "), "C:\\TEMP\\\\");
    EXPECT_EQ(AddBackslash("  C:\\TEMP"), "C:\\TEMP\\");
    EXPECT_EQ(AddBackslash("  C:\\TEMP\\"), "  C:\\TEMP\\");
    EXPECT_EQ(AddBackslash(""), "\\");
}

TEST(FileExistsTest, TheEmptyPathIsFalseWithoutTouchingTheDisk) {
    fault::Reset();
    EXPECT_FALSE(FileExists("", FILE_ATTRIBUTE_DIRECTORY));
    EXPECT_EQ(fault::Counted(), 0);
}

TEST_F(Machine, FileExistsFindsPlainAndReadOnlyFilesUnasked) {
    Put(logos + "a.sys", "");
    EXPECT_TRUE(FileExists(logos + "a.sys"));
    GiveAttributes(logos + "a.sys", FILE_ATTRIBUTE_READONLY);
    EXPECT_TRUE(FileExists(logos + "a.sys"));
    EXPECT_FALSE(FileExists(logos + "b.sys"));
    EXPECT_FALSE(FileExists(root + "no folder\\a.sys"));
}

TEST_F(Machine, FileExistsFindsHiddenAndSystemFilesOnlyWhenAsked) {
    Put(logos + "a.sys", "");
    GiveAttributes(logos + "a.sys", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    EXPECT_FALSE(FileExists(logos + "a.sys"));
    EXPECT_FALSE(FileExists(logos + "a.sys", FILE_ATTRIBUTE_HIDDEN));
    EXPECT_TRUE(FileExists(logos + "a.sys", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM));
}

TEST_F(Machine, FileExistsFindsFoldersOnlyWhenAsked) {
    EXPECT_FALSE(FileExists(root + "logos"));
    EXPECT_TRUE(FileExists(root + "logos", FILE_ATTRIBUTE_DIRECTORY));
    EXPECT_TRUE(FileExists(logos, FILE_ATTRIBUTE_DIRECTORY));
    EXPECT_FALSE(FileExists(root + "none\\", FILE_ATTRIBUTE_DIRECTORY));
}

TEST_F(Machine, FileExistsTakesWildcards) {
    EXPECT_FALSE(FileExists(logos + "*.sys"));
    Put(logos + "a.sys", "");
    EXPECT_TRUE(FileExists(logos + "*.sys"));
}

TEST_F(Machine, FileExistsIsFalseOnAnyError) {
    Put(logos + "a.sys", "");
    fault::FailOperation(1);
    EXPECT_FALSE(FileExists(logos + "a.sys"));
}

TEST(GetFileNameTest, TakesATrailingBackslashOffTheCallersText) {
    std::string path = "C:\\LOGOS\\SET1\\";
    EXPECT_EQ(GetFileName(path), "SET1");
    EXPECT_EQ(path, "C:\\LOGOS\\SET1");
}

TEST(GetFileNameTest, TakesOnlyOneBackslashOff) {
    std::string path = "C:\\LOGOS\\\\";
    EXPECT_EQ(GetFileName(path), "");
    EXPECT_EQ(path, "C:\\LOGOS\\");
}

TEST(GetFileNameTest, OfATextWithoutABackslashIsTheWholeText) {
    std::string path = "SET1";
    EXPECT_EQ(GetFileName(path), "SET1");
    std::string empty;
    EXPECT_EQ(GetFileName(empty), "");
    std::string drive = "C:\\";
    EXPECT_EQ(GetFileName(drive), "C:");
}

TEST(CompactPathTest, LeavesAPathThatFits) {
    const std::string path = "C:\\LOGOS\\SET1";
    EXPECT_EQ(CompactPath(path, 13), path);
    EXPECT_EQ(CompactPath(path, 1000), path);
}

TEST(CompactPathTest, KeepsTheHeadAndATailThatBeginsAtABackslash) {
    // 29 characters; the search begins at position 29 - (20 - 6) = 15, counted from 1.
    EXPECT_EQ(CompactPath("C:\\WINDOWS\\LOGOS\\SETS\\SUNSET1", 20), "C:\\...\\SETS\\SUNSET1");
    EXPECT_EQ(CompactPath("C:\\WINDOWS\\LOGOS\\SETS\\SUNSET1", 19), "C:\\...\\SETS\\SUNSET1");
    EXPECT_EQ(CompactPath("C:\\WINDOWS\\LOGOS\\SETS\\SUNSET1", 15), "C:\\...\\SUNSET1");
}

TEST(CompactPathTest, ABackslashAtTheStartPositionItselfCounts) {
    // 12 characters; the search begins at position 12 - (11 - 6) = 7, where a backslash is.
    EXPECT_EQ(CompactPath("C:\\ABC\\DEFGH", 11), "C:\\...\\DEFGH");
}

TEST(CompactPathTest, WithoutABackslashInTheTailOnlyTheHeadIsLeft) {
    EXPECT_EQ(CompactPath("C:\\WINDOWS\\AVERYLONGNAMEINDEED", 15), "C:\\...");
    EXPECT_EQ(CompactPath("C:\\WINDOWS\\SET", 3), "C:\\...");
    EXPECT_EQ(CompactPath("C:\\WINDOWS\\SET", -2147483647 - 1), "C:\\...");
    EXPECT_EQ(CompactPath("AB", 0), "AB...");
}

/// In code page 932 one character of two bytes, the second that of a backslash.
const std::string kLikeABackslash = "\x95\x5C";
/// In code page 932 one character of two bytes, the second that of a small letter.
const std::string kLikeASmallLetter = "\x83\x61";

bool HasPairs() { return GetACP() == 932; }

TEST(DoubleByteTest, AFolderThatEndsLikeABackslashGetsOne) {
    const std::string folder = "C:\\LOGOS" + kLikeABackslash;
    EXPECT_EQ(AddBackslash(folder), HasPairs() ? folder + "\\" : folder);
    EXPECT_EQ(AddBackslash(folder + "\\"), folder + "\\");
}

TEST(DoubleByteTest, TheFileNameOfAPathMayHoldTheByteOfABackslash) {
    const std::string name = "a" + kLikeABackslash;
    std::string path = "C:\\LOGOS\\" + name;
    EXPECT_EQ(GetFileName(path), HasPairs() ? name : "a\x95");
    EXPECT_EQ(path, HasPairs() ? "C:\\LOGOS\\" + name : "C:\\LOGOS\\a\x95");
}

TEST(DoubleByteTest, APathIsMadeCompactByCharacters) {
    std::string ten;
    for (int i = 0; i < 5; ++i) ten += kLikeABackslash + kLikeASmallLetter;
    if (!HasPairs()) return;
    const std::string path = "C:\\" + ten + "\\" + ten;  // 24 characters
    EXPECT_EQ(CompactPath(path, 24), path);
    // The search begins at position 24 - (23 - 6) = 7, among bytes of backslashes.
    EXPECT_EQ(CompactPath(path, 23), "C:\\...\\" + ten);
    EXPECT_EQ(CompactPath(path, 10), "C:\\...");
    EXPECT_EQ(CompactPath(kLikeABackslash + kLikeASmallLetter, 0),
              kLikeABackslash + kLikeASmallLetter + "...");
}

TEST(DoubleByteTest, ThePartOfAPairIsNoSmallLetter) {
    EXPECT_EQ(UpperCase("a" + kLikeASmallLetter), HasPairs() ? "A\x83\x61" : "A\x83\x41");
    EXPECT_EQ(UpperEnding(kLikeASmallLetter + ".sls"), ".SLS");
}

TEST_F(Machine, AFolderThatEndsLikeABackslashExistsAndHoldsWhatItHolds) {
    const std::string folder = logos + OddName();
    CreateDirectoryA(folder.c_str(), nullptr);
    EXPECT_TRUE(FileExists(folder, FILE_ATTRIBUTE_DIRECTORY));
    EXPECT_FALSE(FileExists(folder));
    Put(folder + "\\" + OddName(), "");
    EXPECT_TRUE(FileExists(folder + "\\" + OddName()));
}

TEST(TextTest, TrimTakesBlanksAndNothingElse) {
    EXPECT_EQ(Trim("  a b\t "), "a b\t");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
}

TEST(TextTest, CutAtNulKeepsATextWithoutNuls) {
    EXPECT_EQ(CutAtNul(std::string("ab\0cd", 5)), "ab");
    EXPECT_EQ(CutAtNul("abcd"), "abcd");
    EXPECT_EQ(CutAtNul(std::string("\0x", 2)), "");
}

TEST(TextTest, UpperEndingIsTheLastFourCharacters) {
    EXPECT_EQ(UpperEnding("Sunset.sls"), ".SLS");
    EXPECT_EQ(UpperEnding("sls"), "SLS");
    EXPECT_EQ(UpperEnding(""), "");
    EXPECT_EQ(UpperCase("\xE0.z{`A"), "\xE0.Z{`A");
}

}  // namespace
}  // namespace vistrel::test
