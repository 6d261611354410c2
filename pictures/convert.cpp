// The way of a picture from its file to a screen file, by the image library's operations.
#include "pictures/convert.h"

#include <new>
#include <vector>

#include "pictures/imgdll.h"
#include "pictures/locked_block.h"

namespace vistrel::pictures {

ConversionResult TryConvertToLogo(const std::string& sourcePath,
                                  const std::string& targetPath) try {
    constexpr int kBits = 8;
    constexpr int kColors = 256;
    std::int16_t width = 0;
    std::int16_t height = 0;
    const LockedBlock screen(ImgDLLReadRGBAtSize(sourcePath.c_str(), kLogoWidth, kLogoHeight,
                                                 ReadingFor::Keeping, &width, &height));
    if (screen.pixels() == nullptr) return ConversionResult::NotRead;
    std::vector<std::uint8_t> indices(std::size_t{kLogoWidth} * kLogoHeight);
    std::vector<std::uint8_t> palette(kColors * 4);
    if (ImgDLLQuantizeRGBTo8Bit(screen.pixels(), indices.data(), kLogoWidth, kLogoHeight, kColors,
                                palette.data()) != 1) {
        return ConversionResult::NotReduced;
    }
    const int saved = ImgDLLSaveColormappedToBMP(targetPath.c_str(), indices.data(), kLogoWidth,
                                                 kLogoHeight, kBits, kColors, palette.data());
    return saved == 1 ? ConversionResult::Written : ConversionResult::NotWritten;
} catch (const std::bad_alloc&) {
    return ConversionResult::NotReduced;
}

void ConvertToLogo(const std::string& sourcePath, const std::string& targetPath) {
    TryConvertToLogo(sourcePath, targetPath);
}

}  // namespace vistrel::pictures
