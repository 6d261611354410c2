// Any bytes as a JPEG file, read straight to a small size that the first two bytes choose.
#include "pictures/jpg/reader.h"
#include "tests/pictures/fuzz/harmless.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const int width = 1 + data[0];
    const int height = 1 + data[1];
    const auto scaled = vistrel::jpg::ReadJpgScaled({data + 2, size - 2}, width, height);
    if (!scaled) return 0;
    vistrel::fuzz::Demand(scaled->picture);
    if (scaled->picture.width != width || scaled->picture.height != height) std::abort();
    if (!vistrel::pictures::IsPlausibleSize(scaled->fileWidth, scaled->fileHeight)) std::abort();
    return 0;
}
