// Characters of one byte and of two. Where the code page has no pairs each byte is a character.
#include "platform/characters.h"

#include <windows.h>

#include "platform/files.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace platform;

namespace {

/// In code page 932 one character, whose second byte is that of a backslash; in 1252 two.
const std::string kPair = "\x95\x5C";

bool HasPairs() { return GetACP() == 932; }

TEST(CharactersTest, APairIsOneCharacter) {
    EXPECT_EQ(CharacterLength("a", 0), 1u);
    EXPECT_EQ(CharacterLength(kPair, 0), HasPairs() ? 2u : 1u);
    EXPECT_EQ(CharacterLength("a" + kPair, 1), HasPairs() ? 2u : 1u);
    EXPECT_EQ(CharacterLength("\x95", 0), 1u);  // a first byte alone
}

TEST(CharactersTest, TheLastBackslashIsACharacterOfItsOwn) {
    EXPECT_EQ(LastBackslash(""), std::string::npos);
    EXPECT_EQ(LastBackslash("C:"), std::string::npos);
    EXPECT_EQ(LastBackslash("C:\\a\\b"), 4u);
    EXPECT_EQ(LastBackslash("C:\\" + kPair), HasPairs() ? 2u : 4u);
    EXPECT_EQ(LastBackslash("C:\\" + kPair + "\\x"), 5u);
}

TEST(CharactersTest, APathEndsInABackslashThatIsACharacterOfItsOwn) {
    EXPECT_FALSE(EndsInBackslash(""));
    EXPECT_FALSE(EndsInBackslash("C:"));
    EXPECT_TRUE(EndsInBackslash("C:\\"));
    EXPECT_TRUE(EndsInBackslash("\\"));
    EXPECT_EQ(EndsInBackslash("C:\\" + kPair), !HasPairs());
    EXPECT_TRUE(EndsInBackslash("C:\\" + kPair + "\\"));
}

TEST_F(Machine, AFolderWhoseNameEndsInALetterLikeABackslashIsKnown) {
    const std::string folder = logos + OddName();
    ASSERT_TRUE(MakeFolder(folder));
    EXPECT_TRUE(IsFolder(folder));
    EXPECT_TRUE(IsFolder(folder + "\\"));
    EXPECT_FALSE(IsFolder(folder + "x"));
}

TEST_F(Machine, DeletingByPatternFindsAFolderWithSuchAName) {
    const std::string folder = logos + OddName() + "\\";
    CreateDirectoryA((logos + OddName()).c_str(), nullptr);
    Put(folder + OddName() + ".tmp", "");
    Put(folder + "b.bmp", "");
    EXPECT_TRUE(RemoveMatching(folder + OddName() + "*"));
    EXPECT_EQ(NamesIn(folder), std::vector<std::string>{"b.bmp"});
}

TEST_F(Machine, AnEntryWithLettersThatTheCodePageLacksHasItsShortName) {
    CreateDirectoryW(L"C:\\machine\\logos\\\x0E01\x0E02 and more", nullptr);
    std::string name;
    ForEachEntry(logos + "*", [&](const FolderEntry& entry) {
        if (entry.name != "." && entry.name != "..") name = entry.name;
        return true;
    });
    EXPECT_EQ(name.find('?'), std::string::npos) << name;
    EXPECT_TRUE(IsFolder(logos + name)) << name;
}

}  // namespace
}  // namespace vistrel::test
