// The image library's boundary: memory blocks, 16-bit sizes and what is left alone on failure.
#include "pictures/imgdll.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "pictures/bmp/reader.h"
#include "pictures/whole_file.h"
#include "tests/support/picture_files/bmp_file.h"
#include "tests/support/picture_files/gif_file.h"

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
