// A screen file that is written over another, where the system does not let the new one take its
// place.
#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <cstdint>
#include <vector>

#include "pictures/bmp/writer.h"
#include "pictures/file.h"
#include "tests/support/machine/machine.h"
#include "tests/support/user/user.h"

namespace vistrel::test {

using namespace bmp;
using namespace pictures;

namespace {

/// A program that opens a file as soon as it appears, as a virus scanner does, and lets nobody
/// rename it.
class Scanner {
 public:
    explicit Scanner(const std::string& path) : looking_([this, path] { Look(path); }) {}
    ~Scanner() { Stop(); }
    bool Holds() const { return file_ != INVALID_HANDLE_VALUE; }
    void Stop() {
        stop_ = true;
        looking_.Finish();
        if (Holds()) CloseHandle(file_);
        file_ = INVALID_HANDLE_VALUE;
    }

 private:
    void Look(const std::string& path) {
        while (!Holds() && !stop_)
            file_ = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                nullptr, OPEN_EXISTING, 0, nullptr);
    }

    std::atomic<bool> stop_ = false;
    std::atomic<HANDLE> file_ = INVALID_HANDLE_VALUE;
    user::Meanwhile looking_;
};

using Replacing = Machine;

TEST_F(Replacing, BringsTheFormerFileBackWhereTheNewOneCannotTakeItsPlace) {
    const std::string folder = root + "writing\\";
    MakeFolders(folder);
    Put(folder + "LOGO.SYS", "the former screen");
    Scanner scanner(folder + "~vs00000.tmp");
    // Large, so that it is being written for long enough to be seen.
    EXPECT_FALSE(WriteWholeFile(folder + "LOGO.SYS", std::vector<std::uint8_t>(80 << 20, 7)));
    EXPECT_TRUE(scanner.Holds());
    EXPECT_EQ(Contents(folder + "LOGO.SYS"), "the former screen");
    // What is held cannot be deleted; nothing else is left.
    EXPECT_EQ(NamesIn(folder), (std::vector<std::string>{"LOGO.SYS", "~vs00000.tmp"}));
    scanner.Stop();
    DeleteFileA((folder + "~vs00000.tmp").c_str());
    EXPECT_TRUE(WriteWholeFile(folder + "LOGO.SYS", {1, 2, 3}));
    EXPECT_EQ(Contents(folder + "LOGO.SYS"), "\1\2\3");
}

}  // namespace
}  // namespace vistrel::test
