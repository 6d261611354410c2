#include "pictures/compose/frame.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>
#include <vector>

#include "pictures/compose/border.h"
#include "pictures/scale/resize.h"

namespace vistrel::compose {
namespace {

/// A length or a place of a picture, in its reduction to `reduced` of `whole` pixels.
std::int64_t InReduced(std::int64_t value, int reduced, int whole) {
    return value * reduced / whole;
}

pictures::PictureArea AreaInReduced(const pictures::PictureArea& area,
                                    const Intermediate& intermediate) {
    const pictures::RgbPicture& reduced = intermediate.reduced;
    const pictures::PictureSize& file = intermediate.file;
    return {InReduced(area.left, reduced.width, file.width),
            InReduced(area.top, reduced.height, file.height),
            std::max<std::int64_t>(InReduced(area.width, reduced.width, file.width), 1),
            std::max<std::int64_t>(InReduced(area.height, reduced.height, file.height), 1)};
}

pictures::RgbPicture TurnedBy(const jpg::Turning& turning, const pictures::RgbPicture& picture) {
    const jpg::UprightPlace place(turning, picture.width, picture.height);
    pictures::RgbPicture turned{place.width(), place.height(), {}};
    const std::size_t rowBytes = std::size_t(picture.width) * 3;
    turned.pixels.resize(rowBytes * picture.height);
    for (int y = 0; y < picture.height; ++y)
        place.PutRow(&picture.pixels[rowBytes * y], y, turned.pixels.data());
    return turned;
}

Framed EmptyScreen(const ScreenRectangle& picture, const Framing& framing) {
    Framed framed{{pictures::kLogoWidth, pictures::kLogoHeight, {}}, picture};
    framed.screen.pixels.resize(std::size_t{pictures::kLogoWidth} * pictures::kLogoHeight * 3);
    const bool isWhole =
        picture.width == pictures::kLogoWidth && picture.height == pictures::kLogoHeight;
    if (!isWhole && framing.border == Border::Plain) PaintPlain(framing.borderColor, framed.screen);
    return framed;
}

void DrawBorder(const Framing& framing, Framed& framed) {
    if (framing.border == Border::Plain) return;
    PaintBlurred(framed.picture, framed.screen);
    framed.picture = {0, 0, pictures::kLogoWidth, pictures::kLogoHeight};
}

/// For each pixel of an axis of the screen, the two that are averaged, in bytes from the picture's
/// first: twice the same one where the middle is nearer to a pixel than to between two.
using Pairs = std::vector<std::array<std::ptrdiff_t, 2>>;

Pairs PairsOf(std::int64_t start, std::int64_t length, int target, int samples, bool mirrored,
              std::ptrdiff_t apart) {
    const auto offset = [&](std::int64_t sample) {
        return static_cast<std::ptrdiff_t>(std::clamp<std::int64_t>(sample, 0, samples - 1)) *
               apart;
    };
    Pairs pairs;
    pairs.reserve(static_cast<std::size_t>(target));
    for (std::int64_t i = 0; i < target; ++i) {
        // Sample j has its middle at j + 1/2; counted in halves.
        const std::int64_t within = (2 * i + 1) * length / (2 * std::int64_t{target});
        const std::int64_t middle = mirrored ? start + length - within : start + within;
        const std::int64_t halves = (2 * middle - pictures::PictureArea::kPixel / 2) >> 16;
        pairs.push_back({offset(halves >> 1), offset((halves + 1) >> 1)});
    }
    return pairs;
}

// Four bytes at once: a pixel and a byte that does not matter. Halves of all bytes are added
// without a carry from one to the next.
std::uint32_t LoadPixel(const std::uint8_t* at) {
    std::uint32_t pixel;
    std::memcpy(&pixel, at, sizeof pixel);
    return pixel;
}

constexpr std::uint32_t kWithoutLowest = 0xFEFEFEFEu;

std::uint32_t MeanRoundedDown(std::uint32_t a, std::uint32_t b) {
    return (a & b) + (((a ^ b) & kWithoutLowest) >> 1);
}

std::uint32_t MeanRoundedUp(std::uint32_t a, std::uint32_t b) {
    return (a | b) - (((a ^ b) & kWithoutLowest) >> 1);
}

/// A row of the screen from two of the picture; `rgb` has room for a byte more.
void AverageRow(const std::uint8_t* one, const std::uint8_t* two, const Pairs& columns,
                std::uint8_t* rgb) {
    for (const auto& [left, right] : columns) {
        const std::uint32_t upper = MeanRoundedDown(LoadPixel(one + left), LoadPixel(one + right));
        const std::uint32_t lower = MeanRoundedDown(LoadPixel(two + left), LoadPixel(two + right));
        const std::uint32_t pixel = MeanRoundedUp(upper, lower);
        std::memcpy(rgb, &pixel, sizeof pixel);
        rgb += 3;
    }
}

}  // namespace

Placement PlacementOf(const pictures::PictureSize& file, const Composition& composition) {
    const pictures::PictureSize turned = SizeWhenTurned(file, composition.orientation);
    Placement placement;
    placement.turning = TurningOf(composition.orientation);
    placement.stored =
        AreaBeforeTurning(SourceRectFor(turned, composition), turned, composition.orientation);
    placement.screen = ScreenRectFor(turned, composition);
    placement.target = {placement.screen.width, placement.screen.height};
    if (placement.turning.swapSides) std::swap(placement.target.width, placement.target.height);
    return placement;
}

Framed PutOnScreen(const pictures::RgbPicture& part, const Placement& placement,
                   const Framing& framing) {
    Framed framed = EmptyScreen(placement.screen, framing);
    const pictures::RgbPicture turned = TurnedBy(placement.turning, part);
    const std::size_t rowBytes = std::size_t(turned.width) * 3;
    for (int y = 0; y < turned.height; ++y) {
        const std::size_t pixel =
            std::size_t(placement.screen.top + y) * pictures::kLogoWidth + placement.screen.left;
        std::copy_n(&turned.pixels[rowBytes * y], rowBytes, &framed.screen.pixels[pixel * 3]);
    }
    DrawBorder(framing, framed);
    return framed;
}

Framed FrameFinely(const Intermediate& intermediate, const Composition& composition) {
    const Placement placement = PlacementOf(intermediate.file, composition);
    const pictures::RgbPicture part =
        scale::Resize(intermediate.reduced, AreaInReduced(placement.stored, intermediate),
                      placement.target.width, placement.target.height);
    return PutOnScreen(part, placement, composition.framing);
}

Framed Frame(const Intermediate& intermediate, const Composition& composition) {
    const Placement placement = PlacementOf(intermediate.file, composition);
    const pictures::PictureArea area = AreaInReduced(placement.stored, intermediate);
    const pictures::RgbPicture& reduced = intermediate.reduced;
    const std::ptrdiff_t rowBytes = std::ptrdiff_t{3} * reduced.width;
    const ScreenRectangle& screen = placement.screen;
    const jpg::Turning& turning = placement.turning;
    // The axes of the picture, each mirrored as far as the axis of the screen is that it goes to.
    const auto across = [&](int target, bool mirrored) {
        return PairsOf(area.left, area.width, target, reduced.width, mirrored, 3);
    };
    const auto down = [&](int target, bool mirrored) {
        return PairsOf(area.top, area.height, target, reduced.height, mirrored, rowBytes);
    };
    const Pairs columns = turning.swapSides ? down(screen.width, turning.mirrorAcross)
                                            : across(screen.width, turning.mirrorAcross);
    const Pairs rows = turning.swapSides ? across(screen.height, turning.mirrorDown)
                                         : down(screen.height, turning.mirrorDown);
    Framed framed = EmptyScreen(screen, composition.framing);
    std::vector<std::uint8_t> row(std::size_t(screen.width) * 3 + 1);
    for (int y = 0; y < screen.height; ++y) {
        AverageRow(reduced.pixels.data() + rows[y][0], reduced.pixels.data() + rows[y][1], columns,
                   row.data());
        const std::size_t pixel = std::size_t(screen.top + y) * pictures::kLogoWidth + screen.left;
        std::copy_n(row.data(), row.size() - 1, &framed.screen.pixels[pixel * 3]);
    }
    DrawBorder(composition.framing, framed);
    return framed;
}

}  // namespace vistrel::compose
