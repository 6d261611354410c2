// Files are read whole or not at all.
#include "pictures/whole_file.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace vistrel::test {

using namespace pictures;

namespace {

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

}  // namespace
}  // namespace vistrel::test
