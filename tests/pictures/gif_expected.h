// What GIF files of tests should come out as.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <optional>

#include "pictures/gif/reader.h"
#include "tests/support/picture_files/gif_file.h"

namespace vistrel::test {

inline constexpr std::array<std::uint8_t, 3> kBlack = {0, 0, 0};

/// The picture that these colour numbers stand for; those beyond the palette are black.
inline pictures::RgbPicture Colored(const Bytes& indices, int width, int height,
                                    const GifColors& palette) {
    pictures::RgbPicture picture{width, height, {}};
    for (const std::uint8_t index : indices) {
        const auto color = index < palette.size() ? palette[index] : kBlack;
        picture.pixels.insert(picture.pixels.end(), color.begin(), color.end());
    }
    return picture;
}

/// Fails the test where the file is not read as this picture.
inline void ExpectPicture(const Bytes& file, const pictures::RgbPicture& expected) {
    const std::optional<pictures::RgbPicture> read = gif::ReadGif(file);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->width, expected.width);
    EXPECT_EQ(read->height, expected.height);
    EXPECT_EQ(read->pixels, expected.pixels);
}

/// The one picture of MakeGif as it should come out.
inline pictures::RgbPicture PictureOf(const GifFile& file) {
    const GifImage& image = file.images.front();
    return Colored(image.indices, image.width, image.height,
                   image.palette.empty() ? file.palette : image.palette);
}

}  // namespace vistrel::test
