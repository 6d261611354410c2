#include "pictures/screen/brightness.h"

#include "pictures/screen/seen.h"

namespace vistrel::screen {

std::vector<std::uint8_t> BrightnessGroups(const pictures::RgbPicture& screen, const Area& area,
                                           int groups) {
    std::vector<std::uint32_t> as(65536);     // how many pixels are as bright
    std::vector<std::uint32_t> below(65536);  // how many are less bright
    for (std::size_t i = 0; i < kScreenPixels; ++i)
        if (area.in[i]) ++as[BrightnessOf(&screen.pixels[i * 3])];
    for (std::size_t b = 1; b < below.size(); ++b) below[b] = below[b - 1] + as[b - 1];
    const std::uint64_t all = below.back() + as.back();

    std::vector<std::uint8_t> group(kScreenPixels);
    for (std::size_t i = 0; i < kScreenPixels; ++i) {
        if (!area.in[i]) continue;
        const int brightness = BrightnessOf(&screen.pixels[i * 3]);
        const std::uint64_t rank =
            below[brightness] + Share(NoiseAt(static_cast<std::uint32_t>(i)), as[brightness]);
        group[i] = static_cast<std::uint8_t>(rank * static_cast<std::uint64_t>(groups) / all);
    }
    return group;
}

}  // namespace vistrel::screen
