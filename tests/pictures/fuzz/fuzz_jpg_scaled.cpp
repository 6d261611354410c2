// Any bytes as a JPEG file, read straight to a small size that the first two bytes choose, and a
// part of it that they choose too.
#include <algorithm>

#include "pictures/jpg_reader.h"
#include "tests/pictures/fuzz/harmless.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const int width = 1 + data[0];
    const int height = 1 + data[1];
    const vistrel::FileBytes file(data + 2, size - 2);
    const auto scaled = vistrel::ReadJpgScaled(file, width, height);
    if (!scaled) return 0;
    vistrel::fuzz::Demand(scaled->picture);
    if (scaled->picture.width != width || scaled->picture.height != height) std::abort();
    if (!vistrel::IsPlausibleSize(scaled->fileWidth, scaled->fileHeight)) std::abort();

    const auto whole = vistrel::PictureArea::WholeOf(scaled->fileWidth, scaled->fileHeight);
    const auto some = [](std::int64_t length, int part) {
        return std::max<std::int64_t>(length * part / 512, 1);
    };
    const vistrel::PictureArea area{whole.width * data[0] / 512, whole.height * data[1] / 512,
                                    some(whole.width, 256 - data[1]),
                                    some(whole.height, 256 - data[0])};
    const auto part = vistrel::ReadJpgScaled(file, area, width, height);
    if (part) vistrel::fuzz::Demand(*part);
    return 0;
}
