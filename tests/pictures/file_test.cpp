// Files are read whole or not at all, and writing leaves either all of one or nothing.
#include "pictures/file.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/fault.h"
#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {

using namespace pictures;

namespace {

namespace fs = std::filesystem;
namespace fault = platform::fault;

class WholeFileTest : public testing::Test {
 protected:
    WholeFileTest() {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        path_ = (std::filesystem::temp_directory_path() /
                 ("vistrel-file-" + std::to_string(getpid()) + "-" + test->name()))
                    .string();
    }
    ~WholeFileTest() override { std::filesystem::remove(path_); }

    void Write(const std::string& text) const { std::ofstream(path_, std::ios::binary) << text; }

    std::string path_;
};

TEST_F(WholeFileTest, AllBytesAreRead) {
    const std::string text("a\r\n\0\x1A\xFF", 6);
    Write(text);
    const auto bytes = ReadWholeFile(path_);
    ASSERT_TRUE(bytes.has_value());
    EXPECT_EQ(std::string(bytes->begin(), bytes->end()), text);
}

TEST_F(WholeFileTest, EmptyFileHasNoBytes) {
    Write("");
    const auto bytes = ReadWholeFile(path_);
    ASSERT_TRUE(bytes.has_value());
    EXPECT_TRUE(bytes->empty());
}

TEST_F(WholeFileTest, WhatIsNoFileIsNotRead) {
    EXPECT_FALSE(ReadWholeFile(path_).has_value());
    EXPECT_FALSE(ReadWholeFile("").has_value());
    EXPECT_FALSE(ReadWholeFile(std::filesystem::temp_directory_path().string()).has_value());
}

TEST_F(WholeFileTest, FileLargerThanAnyPictureIsNotRead) {
    Write("x");
    std::filesystem::resize_file(path_, static_cast<std::uintmax_t>(kLargestFile) + 1);
    EXPECT_FALSE(ReadWholeFile(path_).has_value());
}

TEST_F(WholeFileTest, TheStartOfAFileIsReadWhereItHasAsMuch) {
    Write("abcdef");
    EXPECT_EQ(ReadStartOfFile(path_, 3), (Bytes{'a', 'b', 'c'}));
    EXPECT_EQ(ReadStartOfFile(path_, 6), ReadWholeFile(path_));
    EXPECT_FALSE(ReadStartOfFile(path_, 7).has_value());
    EXPECT_FALSE(ReadStartOfFile(path_ + "x", 3).has_value());
}

TEST_F(WholeFileTest, ReadingCanBeMadeToFail) {
    Write("x");
    fault::FailOperation(1);
    EXPECT_FALSE(ReadWholeFile(path_).has_value());
    fault::FailOperation(1);
    EXPECT_FALSE(ReadStartOfFile(path_, 1).has_value());
    fault::Reset();
    EXPECT_TRUE(ReadWholeFile(path_).has_value());
}

TEST_F(WholeFileTest, AFileIsReadInPieces) {
    Write("abcdef");
    const auto file = FileOnDisk::Open(path_);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->size(), 6u);
    Bytes piece(2);
    for (const std::size_t at : {4, 0, 2}) {
        file->Read(at, piece);
        EXPECT_EQ(piece, (Bytes{static_cast<std::uint8_t>('a' + at),
                                static_cast<std::uint8_t>('b' + at)}));
    }
    EXPECT_FALSE(file->HasFailed());
}

TEST_F(WholeFileTest, WhatIsNoFileIsNotReadInPieces) {
    EXPECT_EQ(FileOnDisk::Open(path_), nullptr);
    EXPECT_EQ(FileOnDisk::Open(std::filesystem::temp_directory_path().string()), nullptr);
    Write("x");
    std::filesystem::resize_file(path_, static_cast<std::uintmax_t>(kLargestFile) + 1);
    EXPECT_EQ(FileOnDisk::Open(path_), nullptr);
}

/// The first byte, and that of the middle.
std::optional<Bytes> TwoBytes(const PictureFile& file) {
    Bytes bytes(2);
    file.Copy(0, std::span(bytes).first(1));
    file.Copy(file.size() / 2, std::span(bytes).last(1));
    return bytes;
}

TEST_F(WholeFileTest, WhereAPieceCannotBeReadNothingIs) {
    Write("abc");
    fault::Reset();
    EXPECT_EQ(ReadInPieces(path_, TwoBytes), (Bytes{'a', 'b'}));
    EXPECT_EQ(fault::Counted(), 2);  // opening and reading
    for (int step = 1; step <= 2; ++step) {
        fault::FailOperation(step);
        EXPECT_FALSE(ReadInPieces(path_, TwoBytes).has_value()) << step;
    }
    fault::Reset();
}

TEST_F(WholeFileTest, AFileThatBecomesShorterMeanwhileIsNotRead) {
    Write("abc");
    const auto shortening = [&](const PictureFile& file) {
        std::filesystem::resize_file(path_, 1);
        return TwoBytes(file);
    };
    EXPECT_FALSE(ReadInPieces(path_, shortening).has_value());
}

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

TEST_F(WriterTest, LeavesTheTargetAsItWasWhicheverStepFails) {
    ASSERT_TRUE(WriteWholeFile(PathOf("logo.sys"), Bytes(500, 1)));
    fault::Reset();
    ASSERT_TRUE(WriteWholeFile(PathOf("logo.sys"), Bytes(500, 2)));
    const int steps = fault::Counted();
    EXPECT_GE(steps, 3);
    for (int step = 1; step <= steps; ++step) {
        fault::FailOperation(step);
        EXPECT_FALSE(WriteWholeFile(PathOf("logo.sys"), Bytes(129078, 9))) << step;
        fault::Reset();
        EXPECT_EQ(ReadWholeFile(PathOf("logo.sys")), Bytes(500, 2)) << step;
        EXPECT_EQ(Files(), 1u) << step;
    }
}

TEST_F(WriterTest, BringsBackWhatHadSteppedAsideWhenAProgramWasEnded) {
    ASSERT_TRUE(WriteWholeFile(PathOf("logo.sy~"), Bytes(500, 1)));
    EndInterruptedWriting(PathOf("logo.sys"));
    EXPECT_EQ(ReadWholeFile(PathOf("logo.sys")), Bytes(500, 1));
    EXPECT_EQ(Files(), 1u);
}

TEST_F(WriterTest, BringsNothingBackOverAFileThatIsThere) {
    ASSERT_TRUE(WriteWholeFile(PathOf("logo.sys"), Bytes(3, 2)));
    ASSERT_TRUE(WriteWholeFile(PathOf("logo.sy~"), Bytes(500, 1)));
    EndInterruptedWriting(PathOf("logo.sys"));
    EXPECT_EQ(ReadWholeFile(PathOf("logo.sys")), Bytes(3, 2));
    EXPECT_EQ(ReadWholeFile(PathOf("logo.sy~")), Bytes(500, 1));
    EndInterruptedWriting(PathOf("none/logo.sys"));
    EndInterruptedWriting("");
    EXPECT_EQ(Files(), 2u);
}

}  // namespace
}  // namespace vistrel::test
