// Patterns that follow from where a pixel is: each is a class that says what part of a turn a point
// is away from the beginning.
#include "pictures/screen/patterns.h"

#include <array>

#include "pictures/screen/seen.h"

namespace vistrel::screen {
namespace {

constexpr int kIsGap = -1;

/// The area as it is seen, in sixths of a row.
struct Seen {
    explicit Seen(const Layer& layer) {
        const ScreenBounds bounds = BoundsOf(layer.area);
        left = bounds.left * kAcross;
        top = bounds.top * kDown;
        width = (bounds.right - bounds.left) * kAcross;
        height = (bounds.bottom - bounds.top) * kDown;
        centreX = left + width / 2;
        centreY = top + height / 2;
        if (layer.centre) {
            centreX = std::clamp(layer.centre->x, -400, 800) * kAcross + kAcross / 2;
            centreY = std::clamp(layer.centre->y, -400, 800) * kDown + kDown / 2;
        }
        size = std::clamp(layer.size, 0, 4000) * kRow;
    }
    int left, top, width, height, centreX, centreY, size;

    int SizeOr(int suiting) const { return size > 0 ? size : std::max(suiting, kRow); }
    int FromCentre(int x, int y) const { return LengthOf(x - centreX, y - centreY); }
};

int Turns(std::int64_t way, int size) {
    return static_cast<int>((way * kTurn / size) & (kTurn - 1));
}

int Diagonally(int x, int y) { return static_cast<int>((std::int64_t{x} + y) * 46341 / 65536); }

/// A wave that goes up and down once in `length`.
int Swing(std::int64_t way, int length, int height) {
    return SineOf(Turns(way, length)) * height / kSineOne;
}

int Waves(const Seen& seen, int x, int y) {
    const int size = seen.SizeOr(40 * kRow);
    return Turns(
        y + Swing(x + y / 2, size * 4, size / 3) + Swing(x - y / 3, size * 7 / 3, size / 5), size);
}

int Ripples(const Seen& seen, int x, int y) {
    // In thousandths of the area: apart from each other, and in no order.
    constexpr std::array<std::array<int, 2>, 5> kPoints = {
        {{210, 300}, {560, 130}, {840, 420}, {430, 690}, {80, 880}}};
    int nearest = 1 << 30;
    for (const auto& [across, down] : kPoints) {
        const int toX = x - seen.left - seen.width * across / 1000;
        const int toY = y - seen.top - seen.height * down / 1000;
        nearest = std::min(nearest, toX * toX + toY * toY);
    }
    return Turns(static_cast<int>(RootOf(static_cast<std::uint32_t>(nearest))),
                 seen.SizeOr(40 * kRow));
}

int Plasma(const Seen& seen, int x, int y) {
    const int size = seen.SizeOr(160 * kRow);
    return (Swing(x, size, kTurn / 2) + Swing(y, size * 4 / 5, kTurn / 2) +
            Swing(Diagonally(x, y), size * 2 / 3, kTurn / 3) +
            Swing(seen.FromCentre(x, y), size / 2, kTurn / 3)) &
           (kTurn - 1);
}

/// Every third column or so has drops, each column as dense as chance will have it.
int Rain(const Seen& seen, int x, int y) {
    const std::uint32_t noise = NoiseAt(static_cast<std::uint32_t>(x / kAcross));
    if (noise % 3 != 0) return kIsGap;
    const int size = seen.SizeOr(120 * kRow);
    const int own = size * 3 / 4 + static_cast<int>(Share(NoiseAt(noise), std::uint32_t(size / 2)));
    return Turns(y + std::int64_t{noise % 1024} * own / 1024, own);
}

/// The part of a turn at a point, or kIsGap.
int PhaseAt(Pattern pattern, const Seen& seen, int x, int y) {
    switch (pattern) {
        case Pattern::TopToBottom:
            return Turns(y - seen.top, seen.SizeOr(seen.height));
        case Pattern::Rings:
            return Turns(seen.FromCentre(x, y), seen.SizeOr((seen.width + seen.height) / 4));
        case Pattern::Rays:
            return AngleOf(x - seen.centreX, y - seen.centreY) *
                       (seen.size > 0 ? seen.size / kRow : 12) &
                   (kTurn - 1);
        case Pattern::Diagonal:
            return Turns(Diagonally(x - seen.left, y - seen.top),
                         seen.SizeOr(Diagonally(seen.width, seen.height)));
        case Pattern::Noise:
            return static_cast<int>(NoiseAt(static_cast<std::uint32_t>(y * 8192 + x)) >> 16);
        case Pattern::Waves:
            return Waves(seen, x, y);
        case Pattern::Ripples:
            return Ripples(seen, x, y);
        case Pattern::Plasma:
            return Plasma(seen, x, y);
        case Pattern::Rain:
            return Rain(seen, x, y);
        default:
            return Turns(x - seen.left, seen.SizeOr(seen.width));
    }
}

/// The place of a dot, or kGap. Dots lie in the middle of squares, and the squares in the middle of
/// the area.
RingPlace DotAt(const Seen& seen, int x, int y, int count) {
    const int size = seen.SizeOr(std::min(seen.width, seen.height));
    const auto square = [size](int from, int length) {
        const int squares = std::max(1, length / size);
        const int begin = (length - squares * size) / 2;
        const int at = from - begin < 0 ? -1 : (from - begin) / size;
        return std::pair(at < squares ? at : -1, from - begin - at * size - size / 2);
    };
    const auto [column, fromMiddleX] = square(x - seen.left, seen.width);
    const auto [row, fromMiddleY] = square(y - seen.top, seen.height);
    if (column < 0 || row < 0) return kGap;
    const int radius = size * 3 / 8;
    if (fromMiddleX * fromMiddleX + fromMiddleY * fromMiddleY > radius * radius) return kGap;
    return static_cast<RingPlace>((count - column % count) % count);
}

}  // namespace

std::vector<RingPlace> ByPoint(const Layer& layer, int count) {
    const Seen seen(layer);
    std::vector<RingPlace> places(kScreenPixels, kStands);
    for (int row = 0; row < pictures::kLogoHeight; ++row) {
        for (int column = 0; column < pictures::kLogoWidth; ++column) {
            if (!layer.area.Has(column, row)) continue;
            const int x = column * kAcross + kAcross / 2;
            const int y = row * kDown + kDown / 2;
            RingPlace& place = places[Area::At(column, row)];
            if (layer.pattern == Pattern::Dots) {
                place = DotAt(seen, x, y, count);
                continue;
            }
            const int phase = PhaseAt(layer.pattern, seen, x, y);
            place = phase == kIsGap
                        ? kGap
                        : static_cast<RingPlace>((-phase & (kTurn - 1)) * count / kTurn);
        }
    }
    return places;
}

}  // namespace vistrel::screen
