// Scaling, colour reduction and the header of the sample screens.
#include "art/files/screen_file.h"

#include "pictures/bmp/writer.h"
#include "pictures/reduce/quantize.h"
#include "pictures/scale/resize.h"

namespace vistrel::art {
namespace {

constexpr int kScreenWidth = 320;
constexpr int kScreenHeight = 400;
constexpr int kColorsImportant = 50;  // offset of biClrImportant in a bitmap file
constexpr int kBandWidth = 4;         // columns of one colour in a moving bar

struct Indexed {
    std::vector<std::uint8_t> indices;
    std::vector<std::uint8_t> palette;
};

Indexed Reduced(const pictures::RgbPicture& picture, int colors) {
    Indexed result{std::vector<std::uint8_t>(std::size_t(picture.width) * picture.height),
                   std::vector<std::uint8_t>(256 * 4)};
    reduce::QuantizeRgb(picture.pixels.data(), picture.width, picture.height, colors,
                        result.indices.data(), result.palette.data());
    return result;
}

pictures::RgbPicture AtScreenSize(const art::Painting& painting) {
    return scale::Resize(painting.Picture(), kScreenWidth, kScreenHeight);
}

void Put32(std::vector<std::uint8_t>& bytes, std::size_t at, std::uint32_t value) {
    for (int i = 0; i < 4; ++i) bytes[at + i] = value >> 8 * i & 255;
}

}  // namespace

std::vector<std::uint8_t> IndexedBitmap(const pictures::RgbPicture& picture) {
    const Indexed reduced = Reduced(picture, 256);
    return bmp::ColormappedBmp(reduced.indices.data(), picture.width, picture.height, 256,
                               reduced.palette.data());
}

std::vector<std::uint8_t> StillScreen(const art::Painting& painting) {
    return IndexedBitmap(AtScreenSize(painting));
}

std::vector<std::uint8_t> MovingScreen(const art::Painting& painting, const MovingBar& bar) {
    const int moving = static_cast<int>(bar.colors.size());
    const int first = 256 - moving;
    Indexed screen = Reduced(AtScreenSize(painting), first);
    // The system gives each entry the colour of the next one. Numbers that fall from left to right
    // therefore make the colours travel to the right.
    for (int row = bar.top; row < bar.top + bar.height; ++row) {
        for (int column = 0; column < kScreenWidth; ++column) {
            screen.indices[row * kScreenWidth + column] =
                static_cast<std::uint8_t>(255 - column / kBandWidth % moving);
        }
    }
    for (int i = 0; i < moving; ++i) {
        std::uint8_t* entry = &screen.palette[(255 - i) * 4];
        entry[0] = static_cast<std::uint8_t>(bar.colors[i].b + .5);
        entry[1] = static_cast<std::uint8_t>(bar.colors[i].g + .5);
        entry[2] = static_cast<std::uint8_t>(bar.colors[i].r + .5);
    }
    std::vector<std::uint8_t> file = bmp::ColormappedBmp(screen.indices.data(), kScreenWidth,
                                                         kScreenHeight, 256, screen.palette.data());
    Put32(file, kColorsImportant, first);
    return file;
}

std::vector<std::uint8_t> TrueColorBitmap(const pictures::RgbPicture& picture) {
    const int rowBytes = (picture.width * 3 + 3) / 4 * 4;
    std::vector<std::uint8_t> file(54 + std::size_t(rowBytes) * picture.height);
    file[0] = 'B';
    file[1] = 'M';
    Put32(file, 2, static_cast<std::uint32_t>(file.size()));
    Put32(file, 10, 54);
    Put32(file, 14, 40);
    Put32(file, 18, picture.width);
    Put32(file, 22, picture.height);
    file[26] = 1;
    file[28] = 24;
    for (int y = 0; y < picture.height; ++y) {
        std::uint8_t* row = &file[54 + std::size_t(rowBytes) * (picture.height - 1 - y)];
        for (int x = 0; x < picture.width; ++x) {
            const std::uint8_t* pixel = &picture.pixels[(std::size_t(y) * picture.width + x) * 3];
            row[x * 3] = pixel[2];
            row[x * 3 + 1] = pixel[1];
            row[x * 3 + 2] = pixel[0];
        }
    }
    return file;
}

}  // namespace vistrel::art
