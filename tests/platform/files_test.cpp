// Files and folders, drives and the system's own folders.
#include "platform/files.h"

#include <windows.h>

#include <algorithm>

#include "platform/drives.h"
#include "platform/fault.h"
#include "platform/file_contents.h"
#include "platform/system_folders.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace platform;

namespace {

Names Matching(const std::string& pattern) {
    Names names;
    ForEachEntry(pattern, [&](const FolderEntry& entry) {
        names.push_back(entry.name);
        return true;
    });
    std::sort(names.begin(), names.end());
    return names;
}

TEST_F(Machine, ASearchGivesEachEntryWithSizeAndAttributes) {
    Put(logos + "a.sys", "12345");
    GiveAttributes(logos + "a.sys", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    MakeFolders(logos + "set\\");
    EXPECT_EQ(Matching(logos + "*.*"), (Names{".", "..", "a.sys", "set"}));
    ForEachEntry(logos + "a*", [](const FolderEntry& entry) {
        EXPECT_EQ(entry.size, 5u);
        EXPECT_FALSE(entry.IsFolder());
        EXPECT_EQ(entry.attributes & 7, kHiddenFile | kSystemFile);
        return true;
    });
    ForEachEntry(logos + "set", [](const FolderEntry& entry) {
        EXPECT_TRUE(entry.IsFolder());
        return true;
    });
}

TEST_F(Machine, ASearchEndsWhenItIsTold) {
    Put(logos + "a", "");
    Put(logos + "b", "");
    int visited = 0;
    EXPECT_TRUE(ForEachEntry(logos + "*", [&](const FolderEntry&) { return ++visited < 3; }));
    EXPECT_EQ(visited, 3);
}

TEST_F(Machine, ASearchThatFindsNothingSaysWhy) {
    const auto never = [](const FolderEntry&) { return true; };
    Error error;
    EXPECT_FALSE(ForEachEntry(logos + "*.sys", never, &error));
    EXPECT_EQ(error.code, static_cast<unsigned long>(ERROR_FILE_NOT_FOUND));
    EXPECT_TRUE(error.IsFileNotFound());
    EXPECT_FALSE(ForEachEntry(root + "gone\\*", never, &error));
    EXPECT_EQ(error.code, static_cast<unsigned long>(ERROR_PATH_NOT_FOUND));
    EXPECT_FALSE(error.IsFileNotFound());
}

TEST_F(Machine, AFolderIsKnownWithAndWithoutABackslash) {
    Put(logos + "file", "");
    EXPECT_TRUE(IsFolder(logos));
    EXPECT_TRUE(IsFolder(root + "logos"));
    EXPECT_TRUE(IsFolder("C:\\"));
    EXPECT_FALSE(IsFolder(logos + "file"));
    EXPECT_FALSE(IsFolder(root + "gone\\"));
    EXPECT_FALSE(IsFolder("Q:\\"));
    EXPECT_FALSE(IsFolder(""));
    EXPECT_FALSE(IsFolder(std::string(4000, 'x')));
    EXPECT_EQ(FileAttributes(root + "gone"), std::nullopt);
}

TEST_F(Machine, AttributesAreSetAndTakenAway) {
    Put(logos + "a", "");
    for (const std::uint32_t attributes : {7u, kReadOnlyFile, 7u, kHiddenFile, kSystemFile}) {
        EXPECT_TRUE(SetAttributes(logos + "a", attributes));
        EXPECT_EQ(AttributesOf(logos + "a"), attributes);
        EXPECT_EQ(FileAttributes(logos + "a").value_or(0) & 7, attributes);
    }
    EXPECT_TRUE(SetAttributes(logos + "a", kNormalFile));
    EXPECT_EQ(AttributesOf(logos + "a") & 7, 0u);
    Error error;
    EXPECT_FALSE(SetAttributes(logos + "gone", kNormalFile, &error));
    EXPECT_TRUE(error.IsFileNotFound());
}

TEST_F(Machine, CopyingReplacesButNotAReadOnlyFile) {
    Put(logos + "from", "new");
    Put(logos + "to", "old");
    EXPECT_TRUE(CopyOver(logos + "from", logos + "to"));
    EXPECT_EQ(Contents(logos + "to"), "new");
    Put(logos + "to", "old");
    GiveAttributes(logos + "to", FILE_ATTRIBUTE_READONLY);
    Error error;
    EXPECT_FALSE(CopyOver(logos + "from", logos + "to", &error));
    EXPECT_EQ(error.code, static_cast<unsigned long>(ERROR_ACCESS_DENIED));
    EXPECT_EQ(Contents(logos + "to"), "old");
    EXPECT_FALSE(CopyOver(logos + "gone", logos + "to", &error));
    EXPECT_TRUE(error.IsFileNotFound());
}

TEST_F(Machine, AReadOnlyFileIsNotDeleted) {
    Put(logos + "a", "");
    GiveAttributes(logos + "a", FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(Remove(logos + "a"));
    GiveAttributes(logos + "a", FILE_ATTRIBUTE_NORMAL);
    EXPECT_TRUE(Remove(logos + "a"));
    EXPECT_FALSE(Exists(logos + "a"));
    EXPECT_FALSE(Remove(logos + "a"));
}

TEST_F(Machine, DeletingByPatternLeavesSubFoldersAndSaysWhatStayed) {
    Put(logos + "a.sys", "");
    Put(logos + "b.sys", "");
    Put(logos + "c.bmp", "");
    MakeFolders(logos + "d.sys\\");
    EXPECT_TRUE(RemoveMatching(logos + "*.sys"));
    EXPECT_EQ(NamesIn(logos), (Names{"c.bmp", "d.sys"}));
    EXPECT_FALSE(RemoveMatching(logos + "*.gif"));
    Put(logos + "a.sys", "");
    GiveAttributes(logos + "c.bmp", FILE_ATTRIBUTE_READONLY);
    Error error;
    EXPECT_FALSE(RemoveMatching(logos + "*.*", &error));
    EXPECT_EQ(error.code, static_cast<unsigned long>(ERROR_ACCESS_DENIED));
    EXPECT_EQ(NamesIn(logos), (Names{"c.bmp", "d.sys"}));
}

TEST_F(Machine, RenamingFailsOnANameThatIsTakenButMayChangeCase) {
    MakeFolders(logos + "Blue\\");
    MakeFolders(logos + "Red\\");
    Error error;
    EXPECT_FALSE(Rename(logos + "Blue", logos + "Red", &error));
    EXPECT_NE(error.code, 0u);
    EXPECT_TRUE(Rename(logos + "Red", logos + "Red.SLS"));
    EXPECT_EQ(NamesIn(logos), (Names{"Blue", "Red.SLS"}));
    EXPECT_FALSE(Rename(logos + "Blue", logos + "a?b"));
    EXPECT_TRUE(Rename(logos + "Blue", logos + "BLUE"));
    EXPECT_EQ(NamesIn(logos), (Names{"BLUE", "Red.SLS"}));
}

TEST_F(Machine, FoldersAreMadeOnceAndRemovedWhenEmpty) {
    EXPECT_TRUE(MakeFolder(logos + "Blue"));
    EXPECT_FALSE(MakeFolder(logos + "Blue"));
    Put(logos + "Blue\\a", "");
    EXPECT_FALSE(RemoveFolder(logos + "Blue"));
    RemoveTree(logos + "Blue\\a");
    EXPECT_TRUE(RemoveFolder(logos + "Blue"));
    EXPECT_FALSE(Exists(logos + "Blue"));
}

TEST_F(Machine, SameContentsComparesEveryByte) {
    // Around the size in which the files are read.
    for (const std::size_t size : {0u, 1u, 32767u, 32768u, 32769u, 129077u}) {
        const std::string bytes(size, 'x');
        Put(logos + "a", bytes);
        Put(logos + "b", bytes);
        EXPECT_TRUE(SameContents(logos + "a", logos + "b")) << size;
        Put(logos + "b", bytes + "y");
        EXPECT_FALSE(SameContents(logos + "a", logos + "b")) << size;
        EXPECT_FALSE(SameContents(logos + "b", logos + "a")) << size;
        if (size == 0) continue;
        std::string changed = bytes;
        changed.back() = 'y';
        Put(logos + "b", changed);
        EXPECT_FALSE(SameContents(logos + "a", logos + "b")) << size;
    }
    EXPECT_FALSE(SameContents(logos + "a", logos + "gone"));
    EXPECT_FALSE(SameContents(logos + "gone", logos + "gone"));
}

TEST_F(Machine, FlushingNeedsAFileThatCanBeWritten) {
    Put(logos + "a", "x");
    EXPECT_TRUE(FlushToDisk(logos + "a"));
    EXPECT_FALSE(FlushToDisk(logos + "gone"));
    GiveAttributes(logos + "a", FILE_ATTRIBUTE_READONLY);
    Error error;
    EXPECT_FALSE(FlushToDisk(logos + "a", &error));
    EXPECT_EQ(error.code, static_cast<unsigned long>(ERROR_ACCESS_DENIED));
}

TEST_F(Machine, EveryFileOperationFailsWhenAFailureIsInjectedAndDoesNothing) {
    Put(logos + "a", "x");
    MakeFolders(logos + "empty\\");
    const std::vector<std::function<bool(Error*)>> operations = {
        [&](Error* e) { return SetAttributes(logos + "a", kReadOnlyFile, e); },
        [&](Error* e) { return CopyOver(logos + "a", logos + "b", e); },
        [&](Error* e) { return Remove(logos + "a", e); },
        [&](Error* e) { return RemoveMatching(logos + "*", e); },
        [&](Error* e) { return Rename(logos + "a", logos + "b", e); },
        [&](Error* e) { return MakeFolder(logos + "new", e); },
        [&](Error* e) { return RemoveFolder(logos + "empty", e); },
        [&](Error* e) { return FlushToDisk(logos + "a", e); },
        [&](Error* e) {
            return ForEachEntry(logos + "*", [](const FolderEntry&) { return true; }, e);
        },
    };
    for (std::size_t i = 0; i < operations.size(); ++i) {
        SCOPED_TRACE(i);
        Error error;
        fault::FailOperation(1);
        EXPECT_FALSE(operations[i](&error));
        EXPECT_NE(error.code, 0u);
        fault::FailOperation(1);
        EXPECT_FALSE(operations[i](nullptr));
    }
    fault::Reset();
    EXPECT_EQ(NamesIn(logos), (Names{"a", "empty"}));
    EXPECT_EQ(AttributesOf(logos + "a") & 7, 0u);
}

TEST(SystemFoldersTest, AreThoseOfTheSystem) {
    EXPECT_EQ(ProgramFolder(), "C:\\test");
    char folder[MAX_PATH];
    GetWindowsDirectoryA(folder, sizeof folder);
    EXPECT_EQ(SystemWindowsDirectory(), folder);
    GetTempPathA(sizeof folder, folder);
    EXPECT_EQ(SystemTempFolder(), folder);
}

TEST_F(Machine, ATempFileIsNewAndInTheGivenFolder) {
    const std::string file = MakeTempFile(logos, "~tm");
    EXPECT_TRUE(file.starts_with(logos + "~tm")) << file;
    EXPECT_EQ(Contents(file), "");
    EXPECT_EQ(MakeTempFile(root + "gone", "~tm"), "");
}

TEST(DrivesTest, RootsComeInTheOrderOfTheirLettersWithTheirKind) {
    const Names roots = DriveRoots();
    EXPECT_TRUE(std::is_sorted(roots.begin(), roots.end()));
    for (const std::string& root : roots) {
        EXPECT_EQ(root.size(), 3u) << root;
        EXPECT_EQ(root.substr(1), ":\\");
    }
    ASSERT_NE(std::find(roots.begin(), roots.end(), "C:\\"), roots.end());
    EXPECT_EQ(KindOfDrive("C:\\"), DriveKind::Fixed);
    EXPECT_EQ(KindOfDrive("Q:\\"), DriveKind::NoRoot);
}

TEST(DrivesTest, ADriveThatIsGoneHasNoLabel) {
    EXPECT_EQ(VolumeLabel("Q:\\"), "");
    char label[MAX_PATH] = {};
    GetVolumeInformationA("C:\\", label, sizeof label, nullptr, nullptr, nullptr, nullptr, 0);
    EXPECT_EQ(VolumeLabel("C:\\"), label);
}

}  // namespace
}  // namespace vistrel::test
