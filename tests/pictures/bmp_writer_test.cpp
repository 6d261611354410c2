// What a screen file holds, byte by byte, and that writing leaves either all of it or nothing.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "pictures/bmp/writer.h"
#include "pictures/whole_file.h"
#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {

using namespace bmp;
using namespace pictures;

namespace {

namespace fs = std::filesystem;

class WriterTest : public testing::Test {
 protected:
    WriterTest() {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        folder_ = fs::temp_directory_path() /
                  (std::string("vistrel_writer_") + test->name() + std::to_string(getpid()));
        fs::create_directory(folder_);
    }
    ~WriterTest() override { fs::remove_all(folder_); }

    std::string PathOf(const char* name) const { return (folder_ / name).string(); }
    std::size_t Files() const {
        return std::distance(fs::directory_iterator(folder_), fs::directory_iterator());
    }

    fs::path folder_;
};

std::uint32_t Get32(const Bytes& bytes, std::size_t at) {
    return bytes[at] | bytes[at + 1] << 8 | bytes[at + 2] << 16 |
           std::uint32_t(bytes[at + 3]) << 24;
}

TEST(ColormappedBmp, IsAScreenFileOf129078Bytes) {
    const Bytes indices = MakeIndices(320, 400, 256);
    Bytes palette;
    for (int i = 0; i < 256; ++i) {
        palette.insert(palette.end(),
                       {std::uint8_t(i), std::uint8_t(255 - i), std::uint8_t(i / 2), 0});
    }
    const Bytes file = ColormappedBmp(indices.data(), 320, 400, 256, palette.data());
    ASSERT_EQ(file.size(), 129078u);
    EXPECT_EQ(file[0], 'B');
    EXPECT_EQ(file[1], 'M');
    EXPECT_EQ(Get32(file, 2), 129078u);
    EXPECT_EQ(Get32(file, 6), 0u);
    EXPECT_EQ(Get32(file, 10), 1078u);
    EXPECT_EQ(Get32(file, 14), 40u);
    EXPECT_EQ(Get32(file, 18), 320u);
    EXPECT_EQ(Get32(file, 22), 400u);
    EXPECT_EQ(Get32(file, 26), 1u | 8u << 16);  // planes, bits per pixel
    EXPECT_EQ(Get32(file, 30), 0u);             // uncompressed
    EXPECT_EQ(Get32(file, 34), 128000u);
    EXPECT_EQ(Get32(file, 46), 0u);  // biClrUsed: all
    EXPECT_EQ(Get32(file, 50), 0u);  // biClrImportant: no animation
    EXPECT_TRUE(std::equal(palette.begin(), palette.end(), file.begin() + 54));
    for (int y = 0; y < 400; ++y) {
        EXPECT_TRUE(std::equal(indices.begin() + y * 320, indices.begin() + (y + 1) * 320,
                               file.begin() + 1078 + (399 - y) * 320));
    }
}

TEST(ColormappedBmp, FillsRowsAndPaletteWithZeros) {
    const Bytes indices = {1, 0, 1, 1, 1, 1};
    const Bytes palette = {1, 2, 3, 0, 4, 5, 6, 0};
    const Bytes file = ColormappedBmp(indices.data(), 3, 2, 2, palette.data());
    ASSERT_EQ(file.size(), 1078u + 8u);
    EXPECT_EQ(Bytes(file.begin() + 1078, file.end()), (Bytes{1, 1, 1, 0, 1, 0, 1, 0}));
    EXPECT_EQ(Bytes(file.begin() + 54, file.begin() + 62), palette);
    EXPECT_TRUE(std::all_of(file.begin() + 62, file.begin() + 1078,
                            [](std::uint8_t byte) { return byte == 0; }));
}

TEST_F(WriterTest, WritesANewFileAndNothingElse) {
    const Bytes bytes = MakeIndices(100, 10, 256);
    ASSERT_TRUE(WriteWholeFile(PathOf("new.sys"), bytes));
    EXPECT_EQ(ReadWholeFile(PathOf("new.sys")), bytes);
    EXPECT_EQ(Files(), 1u);
}

TEST_F(WriterTest, ReplacesAFile) {
    ASSERT_TRUE(WriteWholeFile(PathOf("logo.sys"), Bytes(5000, 1)));
    ASSERT_TRUE(WriteWholeFile(PathOf("logo.sys"), Bytes(3, 2)));
    EXPECT_EQ(ReadWholeFile(PathOf("logo.sys")), Bytes(3, 2));
    EXPECT_EQ(Files(), 1u);
}

TEST_F(WriterTest, LeavesAFileThatHasTheTemporaryNameAlone) {
    ASSERT_TRUE(WriteWholeFile(PathOf("~vs00000.tmp"), Bytes(7, 7)));
    ASSERT_TRUE(WriteWholeFile(PathOf("a.sys"), Bytes(3, 2)));
    EXPECT_EQ(ReadWholeFile(PathOf("~vs00000.tmp")), Bytes(7, 7));
    EXPECT_EQ(Files(), 2u);
}

// As a folder of that name is on Windows: it cannot be opened at all.
TEST_F(WriterTest, PassesOverATemporaryNameThatCannotBeOpened) {
    fs::create_symlink(PathOf("none") + "/file", PathOf("~vs00000.tmp"));
    fs::create_directory(PathOf("~vs00001.tmp"));
    ASSERT_TRUE(WriteWholeFile(PathOf("a.sys"), Bytes(3, 2)));
    EXPECT_EQ(ReadWholeFile(PathOf("a.sys")), Bytes(3, 2));
    EXPECT_EQ(Files(), 3u);
}

TEST_F(WriterTest, FailsWithoutAFolder) {
    EXPECT_FALSE(WriteWholeFile(PathOf("none/a.sys"), Bytes(3, 2)));
    EXPECT_EQ(Files(), 0u);
}

TEST_F(WriterTest, LeavesAFolderOfTheTargetsNameAlone) {
    fs::create_directory(PathOf("LOGO.SYS"));
    EXPECT_FALSE(WriteWholeFile(PathOf("LOGO.SYS"), Bytes(3, 2)));
    EXPECT_TRUE(fs::is_directory(PathOf("LOGO.SYS")));
    EXPECT_EQ(Files(), 1u);
}

/// Lets files grow no further than `bytes`, as a full disk would.
class FileSizeLimit {
 public:
    explicit FileSizeLimit(rlim_t bytes) {
        handler_ = signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        signal(SIGXFSZ, handler_);
    }

 private:
    rlimit before_{};
    void (*handler_)(int);
};

TEST_F(WriterTest, LeavesTheTargetAsItWasWhenTheDiskIsFull) {
    ASSERT_TRUE(WriteWholeFile(PathOf("logo.sys"), Bytes(500, 1)));
    for (const rlim_t room : {0, 1, 4096, 100000, 129077}) {
        const FileSizeLimit limit(room);
        EXPECT_FALSE(WriteWholeFile(PathOf("logo.sys"), Bytes(129078, 9)));
        EXPECT_FALSE(WriteWholeFile(PathOf("other.sys"), Bytes(129078, 9)));
    }
    EXPECT_EQ(ReadWholeFile(PathOf("logo.sys")), Bytes(500, 1));
    EXPECT_EQ(Files(), 1u);
}

}  // namespace
}  // namespace vistrel::test
