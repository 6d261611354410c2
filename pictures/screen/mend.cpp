#include "pictures/screen/mend.h"

#include <algorithm>
#include <new>

#include "pictures/bmp/reader.h"
#include "pictures/convert.h"
#include "pictures/reduce/quantize.h"
#include "pictures/screen/any_indices.h"
#include "pictures/screen/check.h"
#include "pictures/screen/indexed_screen.h"

namespace vistrel::screen {
namespace {

bool IsIn(const std::vector<ScreenFault>& faults, ScreenFault fault) {
    return std::find(faults.begin(), faults.end(), fault) != faults.end();
}

/// Whether no more is wrong than the number of the first moving colour.
bool OnlyCountsWrongly(const std::vector<ScreenFault>& faults) {
    return std::all_of(faults.begin(), faults.end(), [](ScreenFault fault) {
        return fault == ScreenFault::CountOfColors || fault == ScreenFault::NothingMoves;
    });
}

std::optional<std::vector<std::uint8_t>> Reduced(pictures::FileBytes file) {
    const auto rows = bmp::OpenBmp(file);
    if (!rows) return std::nullopt;
    const auto scaled = pictures::ReadScaled(*rows, pictures::kLogoWidth, pictures::kLogoHeight);
    IndexedScreen screen{pictures::kLogoWidth, pictures::kLogoHeight, {}, {}, 0};
    screen.indices.resize(std::size_t{pictures::kLogoWidth} * pictures::kLogoHeight);
    std::array<std::uint8_t, 256 * 4> palette{};
    if (!reduce::QuantizeRgb(scaled.picture.pixels.data(), screen.width, screen.height, 256,
                             screen.indices.data(), palette.data()))
        return std::nullopt;
    for (int i = 0; i < 256; ++i)
        screen.palette[i] = {palette[4 * i + 2], palette[4 * i + 1], palette[4 * i]};
    return ScreenFile(screen);
}

}  // namespace

// Nothing is thrown at callers: where memory runs out, nothing can be mended.
std::optional<std::vector<std::uint8_t>> MendScreen(pictures::FileBytes file) try {
    const std::vector<ScreenFault> faults = FaultsOfScreen(file);
    if (IsIn(faults, ScreenFault::NotABitmap)) return std::nullopt;
    std::vector<std::uint8_t> mended(file.begin(), file.end());
    if (OnlyCountsWrongly(faults)) {
        if (!faults.empty()) SetFirstAnimated(mended, 0);
        return mended;
    }
    const auto header = bmp::ReadBmpHeader(file);
    const bool moves = FirstAnimated(file) > 0 && !IsIn(faults, ScreenFault::CountOfColors) &&
                       !IsIn(faults, ScreenFault::NothingMoves);
    if (header->bitsPerPixel > 8 || (IsIn(faults, ScreenFault::WrongSize) && !moves))
        return Reduced(file);
    auto indices = ReadAnyIndices(file, *header);
    if (!indices) return std::nullopt;
    return ScreenFile({pictures::kLogoWidth, pictures::kLogoHeight, std::move(*indices),
                       header->palette, moves ? static_cast<int>(FirstAnimated(file)) : 0});
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

}  // namespace vistrel::screen
