// Screen files on the disk: what is wrong with them, and mending them.
#include "core/screen_file.h"

#include "pictures/screen/mend.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace core;

namespace {

/// A sound screen, or one that says it has its first moving colour behind the last.
std::string Screen(int firstMoving) {
    std::string file = std::string("BM\x36\xF8\x01\0\0\0\0\0\x36\x04\0\0\x28\0\0\0", 18) +
                       std::string("\x40\x01\0\0\x90\x01\0\0\x01\0\x08\0", 12);
    file.resize(129078, '\0');
    file[50] = static_cast<char>(firstMoving);
    file[51] = static_cast<char>(firstMoving >> 8);
    return file;
}

class ScreenFileTest : public Machine {
 protected:
    ScreenFileTest() { Put(path, Screen(256)); }

    const std::string path = root + "LOGO.SYS";
};

TEST_F(ScreenFileTest, IsJudgedByItsNameAndContent) {
    using Found = std::vector<screen::ScreenFault>;
    EXPECT_EQ(FaultsOfScreenFile(path), Found{screen::ScreenFault::CountOfColors});
    Put(path, Screen(0));
    EXPECT_EQ(FaultsOfScreenFile(path), Found{});
    Put(path, "no picture");
    EXPECT_EQ(FaultsOfScreenFile(path), Found{screen::ScreenFault::NotABitmap});
    EXPECT_FALSE(CanBeMended(FaultsOfScreenFile(path)));
    EXPECT_EQ(FaultsOfScreenFile(root + "gone.sys"), Found{});
    Put(root + "LOGO.BMP", Screen(256));
    EXPECT_EQ(FaultsOfScreenFile(root + "LOGO.BMP"), Found{});
}

TEST_F(ScreenFileTest, IsMendedAndKeepsItsAttributes) {
    GiveAttributes(path, 7);  // read-only, hidden, system
    EXPECT_EQ(MendScreenFile(path), MendResult::Mended);
    EXPECT_EQ(AttributesOf(path), 7u);
    EXPECT_EQ(Contents(path), Screen(0));
    GiveAttributes(path, 0);
}

TEST_F(ScreenFileTest, ThatCannotBeMendedStaysAsItWas) {
    Put(path, "no picture");
    EXPECT_EQ(MendScreenFile(path), MendResult::NotRead);
    EXPECT_EQ(Contents(path), "no picture");
    EXPECT_EQ(MendScreenFile(root + "gone.sys"), MendResult::NotRead);
    EXPECT_FALSE(Exists(root + "gone.sys"));
}

TEST_F(ScreenFileTest, IsTheOldOneOrTheMendedOneWhateverFails) {
    MendResult result{};
    WithEachOperationFailing(
        [&] { Put(path, Screen(256)); }, [&] { result = MendScreenFile(path); },
        [&](int failed) {
            EXPECT_EQ(Contents(path), Screen(result == MendResult::Mended ? 0 : 256)) << failed;
        });
}

}  // namespace
}  // namespace vistrel::test
