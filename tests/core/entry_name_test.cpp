// Names that a user types for sets, files and folders.
#include "core/entry_name.h"

#include <windows.h>

#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace core;

namespace {

constexpr const char* kParent = "C:\\Logos\\";

TEST(EntryNameTest, AnOrdinaryNameIsTakenAsTyped) {
    for (const char* name : {"Blue", "Scarlet.SLS", " Blue", "a.b.c", "Blue & Green", "COM0",
                             "COM10", "CONSOLE", "It's {odd}", "\xC4rger", ".hidden"})
        EXPECT_EQ(SetFolderName(name, kParent), name);
}

TEST(EntryNameTest, BlanksAndDotsAtTheEndAreCut) {
    EXPECT_EQ(SetFolderName("Beep ", kParent), "Beep");
    EXPECT_EQ(SetFolderName("Beep. . .", kParent), "Beep");
    EXPECT_EQ(SetFolderName("Scarlet.SLS ", kParent), "Scarlet.SLS");
    EXPECT_EQ(EntryName("photo.bmp. ", kParent), "photo.bmp");
}

TEST(EntryNameTest, ANameOfNothingElseIsNone) {
    for (const char* name : {"", " ", ".", "..", ". .", "   "})
        EXPECT_EQ(SetFolderName(name, kParent), std::nullopt) << '"' << name << '"';
}

TEST(EntryNameTest, APathIsNoName) {
    for (const char* name :
         {"..\\Out", "Blue\\Inner", "Blue/Inner", "C:", "C:\\Out", "\\", "Blue\\"})
        EXPECT_EQ(SetFolderName(name, kParent), std::nullopt) << name;
}

TEST(EntryNameTest, CharactersThatTheFileSystemRefusesMakeNoName) {
    for (const char* name : {"a*", "a?", "a\"", "a<", "a>", "a|", "a:b", "a\tb", "a\x1F"})
        EXPECT_EQ(SetFolderName(name, kParent), std::nullopt) << name;
}

TEST(EntryNameTest, ADeviceIsNoNameWhateverItsEnding) {
    for (const char* name :
         {"CON", "con", "nul.SLS", "Aux .txt", "PRN.", "COM1", "lpt9.old", "CLOCK$"})
        EXPECT_EQ(SetFolderName(name, kParent), std::nullopt) << name;
}

TEST(EntryNameTest, ASetNameLeavesRoomForItsScreens) {
    const std::string parent = kParent;
    const std::string longest(247 - parent.size(), 'x');
    EXPECT_EQ(SetFolderName(longest, parent), longest);
    EXPECT_EQ(SetFolderName(longest + "x", parent), std::nullopt);
}

TEST(EntryNameTest, AFileNameMayFillThePath) {
    const std::string parent = kParent;
    const std::string longest(259 - parent.size(), 'x');
    EXPECT_EQ(EntryName(longest, parent), longest);
    EXPECT_EQ(EntryName(longest + "x", parent), std::nullopt);
}

}  // namespace
}  // namespace vistrel::test
