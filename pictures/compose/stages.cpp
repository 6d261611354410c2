// Reading, finishing and writing; what lies between is frame.cpp.
#include "pictures/compose/stages.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "pictures/compose/frame.h"
#include "pictures/compose/light.h"
#include "pictures/compose/movement.h"
#include "pictures/compose/text.h"
#include "pictures/file.h"
#include "pictures/formats.h"

namespace vistrel::compose {
namespace {

/// The size of the Intermediate of a picture: twice as fine as the screen where the picture fills
/// it, or as fine as the bounds allow, and never finer than the picture.
pictures::PictureSize ReducedSize(const pictures::PictureSize& file) {
    constexpr double kFineness = 2;
    Composition filling;
    filling.framing.kind = FramingKind::Fill;
    const pictures::PictureArea seen = SourceRectFor(file, filling);
    const double across = double{pictures::PictureArea::kPixel} * file.width *
                          pictures::kLogoWidth / static_cast<double>(seen.width);
    const double down = double{pictures::PictureArea::kPixel} * file.height *
                        pictures::kLogoHeight / static_cast<double>(seen.height);
    const double fineness = std::min(kFineness, std::sqrt(kMostIntermediatePixels / across / down));
    const auto side = [&](double screen, int whole) {
        return static_cast<int>(std::clamp(screen * fineness, 1.0, static_cast<double>(whole)));
    };
    return {side(across, file.width), side(down, file.height)};
}

/// The sum of the bytes and the sum of those sums, so that their order counts too.
std::uint64_t ChecksumOf(const pictures::PictureFile& file) {
    std::uint32_t sum = 1, sums = 0;
    pictures::FileWindow window(file);
    for (std::size_t at = 0; at < file.size();) {
        const pictures::FileBytes bytes = window.From(at);
        for (const std::uint8_t byte : bytes) {
            sum += byte;
            sums += sum;
        }
        at += bytes.size();
    }
    return std::uint64_t{sums} << 32 | sum;
}

}  // namespace

// Nothing is thrown at callers: where memory runs out, a picture cannot be read.
std::optional<pictures::PictureSize> SizeOfPicture(const std::string& path) try {
    return pictures::ReadInPieces(path, pictures::FormatOfName(path).size);
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

std::optional<std::uint64_t> ChecksumOfPicture(const std::string& path) try {
    const auto checksum = [&](const pictures::PictureFile& file) -> std::optional<std::uint64_t> {
        if (!pictures::FormatOfName(path).size(file)) return std::nullopt;
        return ChecksumOf(file);
    };
    return pictures::ReadInPieces(path, checksum);
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

std::optional<Intermediate> ReadComposed(const std::string& path) try {
    const pictures::PictureFormat& format = pictures::FormatOfName(path);
    const auto read = [&](const pictures::PictureFile& file) -> std::optional<Intermediate> {
        const std::optional<pictures::PictureSize> size = format.size(file);
        if (!size) return std::nullopt;
        const pictures::PictureSize reduced = ReducedSize(*size);
        std::optional<pictures::RgbPicture> picture =
            format.readPart(file, pictures::PictureArea::WholeOf(size->width, size->height),
                            reduced.width, reduced.height);
        if (!picture) return std::nullopt;
        picture->pixels.push_back(0);
        return Intermediate{*size, ChecksumOf(file), ReadMovingScreen(path), std::move(*picture)};
    };
    return pictures::ReadInPieces(path, read);
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

std::optional<Framed> ReadFramed(const std::string& path, const Composition& composition) try {
    const pictures::PictureFormat& format = pictures::FormatOfName(path);
    const auto read = [&](const pictures::PictureFile& file) -> std::optional<Framed> {
        const std::optional<pictures::PictureSize> size = format.size(file);
        if (!size) return std::nullopt;
        const Placement placement = PlacementOf(*size, composition);
        const std::optional<pictures::RgbPicture> part = format.readPart(
            file, placement.stored, placement.target.width, placement.target.height);
        if (!part) return std::nullopt;
        return PutOnScreen(*part, placement, composition.framing);
    };
    return pictures::ReadInPieces(path, read);
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

pictures::RgbPicture Adjust(Framed framed, const Composition& composition) {
    pictures::RgbPicture screen = std::move(framed.screen);
    ApplyLight(composition.light, framed.picture, screen);
    PaintText(composition.text, screen);
    return screen;
}

std::optional<screen::IndexedScreen> Reduce(const pictures::RgbPicture& screen,
                                            reduce::Dither dither, int colors) try {
    screen::IndexedScreen reduced;
    reduced.width = screen.width;
    reduced.height = screen.height;
    reduced.indices.resize(std::size_t(screen.width) * screen.height);
    std::vector<std::uint8_t> entries(kColors * 4);
    if (!reduce::QuantizeRgb(screen.pixels.data(), screen.width, screen.height, colors,
                             reduced.indices.data(), entries.data(), dither)) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < kColors; ++i)
        reduced.palette[i] = {entries[4 * i + 2], entries[4 * i + 1], entries[4 * i]};
    return reduced;
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

bool Write(const std::string& path, const screen::IndexedScreen& screen) try {
    return pictures::WriteWholeFile(path, screen::ScreenFile(screen));
} catch (const std::bad_alloc&) {
    return false;
}

pictures::ConversionResult MakeScreen(const std::string& sourcePath, const std::string& targetPath,
                                      const Composition& composition) try {
    std::optional<Framed> framed = ReadFramed(sourcePath, composition);
    if (!framed) return pictures::ConversionResult::NotRead;
    const Levels levels = LevelsFor(composition.light, *framed);
    const std::optional<screen::IndexedScreen> screen = ReduceMoving(
        ReadMovingScreen(sourcePath), levels, Adjust(std::move(*framed), composition), composition);
    if (!screen) return pictures::ConversionResult::NotReduced;
    return Write(targetPath, *screen) ? pictures::ConversionResult::Written
                                      : pictures::ConversionResult::NotWritten;
} catch (const std::bad_alloc&) {
    return pictures::ConversionResult::NotReduced;
}

}  // namespace vistrel::compose
