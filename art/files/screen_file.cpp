// Scaling, colour reduction and the header of the sample screens.
#include "art/files/screen_file.h"

#include "pictures/bmp/writer.h"
#include "pictures/reduce/quantize.h"
#include "pictures/scale/resize.h"

namespace vistrel::art {
namespace {

constexpr int kScreenWidth = 320;
constexpr int kScreenHeight = 400;

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

std::vector<std::uint8_t> MovingScreen(const art::Painting& painting, Movement move) {
    auto picture = screen::BeginMoving(*screen::ReadIndexedScreen(StillScreen(painting)),
                                       AtScreenSize(painting));
    move(*picture);
    return screen::ScreenFile(*screen::MakeMovingScreen(*picture));
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
