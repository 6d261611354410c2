// What a screen file holds, byte by byte.
#include <gtest/gtest.h>

#include <algorithm>

#include "pictures/bmp/writer.h"
#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {

using namespace bmp;

namespace {

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

}  // namespace
}  // namespace vistrel::test
