// A copy of a set beside it.
#include "core/duplicate_set.h"

#include <windows.h>

#include <set>

#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace core;

namespace {

TEST(NameOfCopyTest, NumbersFromTheSecondOnAndKeepsTheEnding) {
    std::set<std::string> taken;
    for (const char* expected : {"Copy of Sea.sls", "Copy (2) of Sea.sls", "Copy (3) of Sea.sls"}) {
        const std::string name =
            NameOfCopy("Sea.sls", [&](const std::string& other) { return taken.contains(other); });
        EXPECT_EQ(name, expected);
        taken.insert(name);
    }
}

class DuplicateOnDisk : public Machine {
 protected:
    DuplicateOnDisk() { PutScreens(blue.Folder(), "blue"); }
    const LogoSet blue{logos, "Blue"};
};

TEST_F(DuplicateOnDisk, HoldsAllThatTheSetHolds) {
    MakeFolders(blue.Folder() + "more\\");
    Put(blue.Folder() + "more\\note.txt", "note");
    GiveAttributes(blue.Folder() + "LOGO.SYS", FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(DuplicateSet(blue), "Copy of Blue");
    EXPECT_EQ(Contents(logos + "Copy of Blue\\LOGOW.SYS"), "blue LOGOW.SYS");
    EXPECT_EQ(Contents(logos + "Copy of Blue\\more\\note.txt"), "note");
    EXPECT_EQ(AttributesOf(logos + "Copy of Blue\\LOGO.SYS"),
              static_cast<unsigned long>(FILE_ATTRIBUTE_READONLY));
    Put(logos + "copy (2) OF blue", "a file of that name");
    EXPECT_EQ(DuplicateSet(blue), "Copy (3) of Blue");
}

TEST_F(DuplicateOnDisk, IsNotMadeOfASetThatIsGoneOrWhoseNameIsTooLong) {
    EXPECT_EQ(DuplicateSet({logos, "gone"}), std::nullopt);
    const std::string name(247 - logos.size() - 3, 'n');
    MakeFolders(logos + name + "\\");
    EXPECT_EQ(DuplicateSet({logos, name}), std::nullopt);
    EXPECT_EQ(NamesIn(logos), (Names{"Blue", name}));
}

TEST_F(DuplicateOnDisk, IsWholeOrNotThereAtAll) {
    std::optional<std::string> copy;
    WithEachOperationFailing(
        [&] {
            RemoveTree(logos + "Copy (2) of Blue");
            PutScreens(logos + "Copy of Blue\\", "another");
            GiveAttributes(blue.Folder() + "LOGO.SYS", FILE_ATTRIBUTE_READONLY);
        },
        [&] { copy = DuplicateSet(blue); },
        [&](int failed) {
            EXPECT_EQ(Contents(logos + "Copy of Blue\\LOGOS.SYS"), "another LOGOS.SYS") << failed;
            if (!copy)
                EXPECT_EQ(NamesIn(logos), (Names{"Blue", "Copy of Blue"})) << failed;
            else
                EXPECT_EQ(NamesIn(logos + *copy + "\\"), NamesIn(blue.Folder())) << failed;
        });
}

}  // namespace
}  // namespace vistrel::test
