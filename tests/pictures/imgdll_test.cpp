// The image library's boundary: memory blocks, 16-bit sizes and what is left alone on failure.
#include "pictures/imgdll.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "pictures/bmp/reader.h"
#include "pictures/file.h"
#include "pictures/locked_block.h"
#include "tests/support/picture_files/bmp_file.h"
#include "tests/support/picture_files/gif_file.h"
#include "tests/support/picture_files/jpg_maker.h"

namespace vistrel::test {

using namespace bmp;
using namespace pictures;
using namespace platform;

namespace {

/// A folder of its own for each test, gone afterwards.
class ImgDllTest : public testing::Test {
 protected:
    void SetUp() override {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        folder_ = std::filesystem::temp_directory_path() /
                  ("vistrel-imgdll-" + std::to_string(getpid()) + "-" + test->name());
        std::filesystem::create_directories(folder_);
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    std::string Path(const std::string& name) const { return (folder_ / name).string(); }

    std::string Write(const std::string& name, const Bytes& bytes) const {
        std::ofstream(Path(name), std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
        return Path(name);
    }

 private:
    std::filesystem::path folder_;
};

Bytes TakeBlock(GlobalHandle block, std::size_t size) {
    const auto* memory = static_cast<const std::uint8_t*>(LockGlobal(block));
    const Bytes bytes(memory, memory + size);
    UnlockGlobal(block);
    FreeGlobal(block);
    return bytes;
}

/// Slow waves, as a photograph of the sky.
RgbPicture MakeSmooth(int width, int height) {
    RgbPicture picture{width, height, {}};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (const int color : {40, 110, 180})
                picture.pixels.push_back(static_cast<std::uint8_t>(color + 30 * std::sin(0.03 * x) *
                                                                               std::cos(0.02 * y)));
    return picture;
}

Bytes MakeBmp(int width, int height) {
    BmpFile file;
    file.width = width;
    file.height = height;
    file.pixels = PackRgb24(MakePicture(width, height));
    return file.Encode();
}

using ReadOperation = GlobalHandle (*)(const char*, std::int16_t*, std::int16_t*);

void ExpectRefusal(ReadOperation read, const std::string& path) {
    std::int16_t width = -7;
    std::int16_t height = -9;
    EXPECT_EQ(read(path.c_str(), &width, &height), nullptr);
    EXPECT_EQ(width, -7);
    EXPECT_EQ(height, -9);
}

TEST_F(ImgDllTest, BitmapIsReadIntoABlock) {
    const std::string path = Write("a.bmp", MakeBmp(13, 5));
    std::int16_t width = 0;
    std::int16_t height = 0;
    const GlobalHandle block = ImgDLLReadRGBFromBMP(path.c_str(), &width, &height);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(width, 13);
    EXPECT_EQ(height, 5);
    EXPECT_EQ(TakeBlock(block, 13 * 5 * 3), MakePicture(13, 5).pixels);
}

TEST_F(ImgDllTest, GifIsReadIntoABlock) {
    const GifFile gif = MakeGif(9, 4, 2);
    const std::string path = Write("a.gif", gif.Encode());
    std::int16_t width = 0;
    std::int16_t height = 0;
    const GlobalHandle block = ImgDLLReadRGBFromGIF(path.c_str(), &width, &height);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(width, 9);
    EXPECT_EQ(height, 4);
    const Bytes pixels = TakeBlock(block, 9 * 4 * 3);
    const auto color = gif.palette[gif.images[0].indices[0]];
    EXPECT_TRUE(std::equal(color.begin(), color.end(), pixels.begin()));
}

TEST_F(ImgDllTest, LargestSideFitsIntoSixteenBits) {
    const std::string path = Write("wide.bmp", MakeBmp(32767, 1));
    std::int16_t width = 0;
    std::int16_t height = 0;
    FreeGlobal(ImgDLLReadRGBFromBMP(path.c_str(), &width, &height));
    EXPECT_EQ(width, 32767);
    EXPECT_EQ(height, 1);
    ExpectRefusal(ImgDLLReadRGBFromBMP, Write("wider.bmp", MakeBmp(32768, 1)));
}

TEST_F(ImgDllTest, UnreadableFilesLeaveTheSizesAlone) {
    const std::string nothing = Write("nothing", {});
    const std::string text = Write("text", {'h', 'e', 'l', 'l', 'o'});
    for (const ReadOperation read :
         {ImgDLLReadRGBFromBMP, ImgDLLReadRGBFromGIF, ImgDLLReadRGBFromJPG}) {
        ExpectRefusal(read, nothing);
        ExpectRefusal(read, text);
        ExpectRefusal(read, Path("missing"));
        ExpectRefusal(read, Path(""));  // the folder
        ExpectRefusal(read, "");
    }
}

TEST_F(ImgDllTest, EachReaderTakesItsOwnFormatOnly) {
    const std::string bmp = Write("a.bmp", MakeBmp(4, 4));
    const std::string gif = Write("a.gif", MakeGif(4, 4, 4).Encode());
    ExpectRefusal(ImgDLLReadRGBFromBMP, gif);
    ExpectRefusal(ImgDLLReadRGBFromGIF, bmp);
    ExpectRefusal(ImgDLLReadRGBFromJPG, bmp);
    ExpectRefusal(ImgDLLReadRGBFromJPG, gif);
}

TEST_F(ImgDllTest, ResizingGivesABlockOfTheNewSize) {
    const Bytes red(std::size_t{3} * 20 * 10, 200);
    const GlobalHandle block = ImgDLLResizeRGB(red.data(), 20, 10, 7, 31);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(TakeBlock(block, 7 * 31 * 3), Bytes(7 * 31 * 3, 200));
}

/// The largest difference of any byte between reading at a size, and reading and resizing.
int DifferenceInSteps(ReadOperation read, const std::string& path, int width, int height) {
    std::int16_t fileWidth = 0, fileHeight = 0, ownWidth = 0, ownHeight = 0;
    const LockedBlock whole(read(path.c_str(), &fileWidth, &fileHeight));
    const LockedBlock resized(
        ImgDLLResizeRGB(whole.pixels(), fileWidth, fileHeight, width, height));
    const LockedBlock atOnce(ImgDLLReadRGBAtSize(path.c_str(), width, height, ReadingFor::Keeping,
                                                 &ownWidth, &ownHeight));
    EXPECT_EQ(ownWidth, fileWidth);
    EXPECT_EQ(ownHeight, fileHeight);
    if (resized.pixels() == nullptr || atOnce.pixels() == nullptr) return 256;
    int most = 0;
    for (int i = 0; i < width * height * 3; ++i)
        most = std::max(most, std::abs(resized.pixels()[i] - atOnce.pixels()[i]));
    return most;
}

TEST_F(ImgDllTest, ReadingAtASizeIsReadingAndResizing) {
    const std::string bmp = Write("a.bmp", MakeBmp(50, 40));
    const std::string gif = Write("a.gif", MakeGif(60, 30, 256).Encode());
    const std::string jpg = Write("a.jpg", MakeJpg(MakeSmooth(300, 200), {}));
    for (const auto& [width, height] : {std::pair{20, 30}, {320, 400}, {60, 30}}) {
        EXPECT_EQ(DifferenceInSteps(ImgDLLReadRGBFromBMP, bmp, width, height), 0);
        EXPECT_EQ(DifferenceInSteps(ImgDLLReadRGBFromGIF, gif, width, height), 0);
        EXPECT_LE(DifferenceInSteps(ImgDLLReadRGBFromJPG, jpg, width, height), 4);
    }
}

TEST_F(ImgDllTest, OwnSizeIsThatOfThePictureWhateverItsName) {
    for (const auto& [path, read] :
         {std::pair<std::string, ReadOperation>{Write("a.bmp", MakeBmp(50, 40)),
                                                ImgDLLReadRGBFromBMP},
          {Write("a.gif", MakeGif(50, 40, 4).Encode()), ImgDLLReadRGBFromGIF},
          {Write("a.jpg", MakeJpg(MakePicture(50, 40), {})), ImgDLLReadRGBFromJPG}}) {
        std::int16_t width = 0, height = 0;
        const Bytes stepped = TakeBlock(read(path.c_str(), &width, &height), 50 * 40 * 3);
        const GlobalHandle block = ImgDLLReadRGBAtSize(path.c_str(), kOwnSize, kOwnSize,
                                                       ReadingFor::Keeping, &width, &height);
        ASSERT_NE(block, nullptr);
        EXPECT_EQ(width, 50);
        EXPECT_EQ(height, 40);
        EXPECT_EQ(TakeBlock(block, 50 * 40 * 3), stepped) << path;
    }
}

TEST_F(ImgDllTest, WhatCannotBeReadAtASizeLeavesTheSizesAlone) {
    const std::string text = Write("text.jpg", {'h', 'e', 'l', 'l', 'o'});
    const std::string bmp = Write("a.bmp", MakeBmp(5, 4));
    std::int16_t width = -7, height = -9;
    const auto read = [&](const std::string& path, int wantedWidth, int wantedHeight) {
        return ImgDLLReadRGBAtSize(path.c_str(), wantedWidth, wantedHeight, ReadingFor::Looking,
                                   &width, &height);
    };
    EXPECT_EQ(read(text, 5, 5), nullptr);
    EXPECT_EQ(read(text, kOwnSize, kOwnSize), nullptr);
    EXPECT_EQ(read(Path("missing.bmp"), 5, 5), nullptr);
    EXPECT_EQ(read(bmp, 0, 0), nullptr);
    EXPECT_EQ(read(bmp, kOwnSize, 5), nullptr);
    EXPECT_EQ(read(bmp, 5, 40000), nullptr);
    EXPECT_EQ(width, -7);
    EXPECT_EQ(height, -9);
}

TEST_F(ImgDllTest, ImpossibleSizesAreNotResized) {
    const Bytes pixels(300, 0);
    EXPECT_EQ(ImgDLLResizeRGB(nullptr, 10, 10, 5, 5), nullptr);
    EXPECT_EQ(ImgDLLResizeRGB(pixels.data(), 0, 10, 5, 5), nullptr);
    EXPECT_EQ(ImgDLLResizeRGB(pixels.data(), 10, -1, 5, 5), nullptr);
    EXPECT_EQ(ImgDLLResizeRGB(pixels.data(), 10, 10, 0, 5), nullptr);
    EXPECT_EQ(ImgDLLResizeRGB(pixels.data(), 10, 10, 5, 32768), nullptr);
    EXPECT_EQ(ImgDLLResizeRGB(pixels.data(), 10, 10, 32767, 32767), nullptr);
}

TEST_F(ImgDllTest, ReducedPictureIsWrittenAsAScreen) {
    const RgbPicture picture = MakePicture(320, 400);
    Bytes indices(320 * 400 + 1);
    Bytes palette(256 * 4 + 1);
    ASSERT_EQ(ImgDLLQuantizeRGBTo8Bit(picture.pixels.data(), indices.data(), 320, 400, 256,
                                      palette.data()),
              1);
    const std::string path = Path("LOGO.SYS");
    EXPECT_EQ(
        ImgDLLSaveColormappedToBMP(path.c_str(), indices.data(), 320, 400, 8, 256, palette.data()),
        1);
    const auto file = ReadWholeFile(path);
    ASSERT_TRUE(file.has_value());
    EXPECT_EQ(file->size(), 129078u);
    const std::optional<RgbPicture> read = ReadBmp(*file);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->width, 320);
    EXPECT_EQ(read->height, 400);
    for (std::size_t i = 0; i < read->pixels.size(); ++i) {
        ASSERT_EQ(read->pixels[i], palette[4 * indices[i / 3] + 2 - i % 3]);
    }
}

TEST_F(ImgDllTest, OnlyEightBitsAreReducedAndWritten) {
    const Bytes pixels(48, 1);
    Bytes indices(16);
    Bytes palette(1024);
    EXPECT_NE(ImgDLLQuantizeRGBTo8Bit(nullptr, indices.data(), 4, 4, 256, palette.data()), 1);
    EXPECT_NE(ImgDLLQuantizeRGBTo8Bit(pixels.data(), nullptr, 4, 4, 256, palette.data()), 1);
    EXPECT_NE(ImgDLLQuantizeRGBTo8Bit(pixels.data(), indices.data(), 4, 4, 256, nullptr), 1);
    EXPECT_NE(ImgDLLQuantizeRGBTo8Bit(pixels.data(), indices.data(), 4, 4, 1, palette.data()), 1);
    EXPECT_NE(ImgDLLQuantizeRGBTo8Bit(pixels.data(), indices.data(), 4, 4, 257, palette.data()), 1);
    EXPECT_NE(ImgDLLQuantizeRGBTo8Bit(pixels.data(), indices.data(), 0, 4, 256, palette.data()), 1);
    const std::string path = Path("a.bmp");
    const auto save = [&](int width, int bits, int colors) {
        return ImgDLLSaveColormappedToBMP(path.c_str(), indices.data(), width, 4, bits, colors,
                                          palette.data());
    };
    EXPECT_NE(save(4, 4, 16), 1);
    EXPECT_NE(save(4, 8, 257), 1);
    EXPECT_NE(save(4, 8, 1), 1);
    EXPECT_NE(save(0, 8, 256), 1);
    EXPECT_FALSE(std::filesystem::exists(path));
}

}  // namespace
}  // namespace vistrel::test
