// Rectangles in 1/65,536 of a picture's pixels.
#include "pictures/compose/geometry.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "pictures/compose/turning.h"

namespace vistrel::compose {
namespace {

constexpr std::int64_t kPixel = pictures::PictureArea::kPixel;

/// The shape of a screen as it is shown, 4 to 3, in pixels of a picture.
struct ShownShape {
    int across = 0;
    int down = 0;
};

ShownShape ShownIn(const pictures::PixelShape& pixel) {
    return {4 * pixel.height, 3 * pixel.width};
}

/// The largest part of an area that is of the shape of a screen as it is shown, divided by the
/// zoom.
pictures::PictureArea SeenSizes(const pictures::PictureArea& area,
                                const pictures::PixelShape& pixel, int zoom) {
    const std::int64_t divisor = std::clamp(zoom, kZoomOne, kMostZoom);
    const auto [across, down] = ShownIn(pixel);
    pictures::PictureArea seen = area;
    if (area.width * down >= area.height * across)
        seen.width = area.height * across / down;
    else
        seen.height = area.width * down / across;
    seen.width = std::max<std::int64_t>(seen.width * kZoomOne / divisor, 1);
    seen.height = std::max<std::int64_t>(seen.height * kZoomOne / divisor, 1);
    return seen;
}

/// Where a part of `length` begins whose middle is to be at `centre`, parts of `whole`.
std::int64_t StartOf(std::int64_t whole, std::int64_t length, int centre) {
    const std::int64_t middle = whole * std::clamp(centre, 0, kWhole) / kWhole;
    return std::clamp<std::int64_t>(middle - length / 2, 0, whole - length);
}

/// The centre of a part that begins at `start`, as far as it can.
int CentreOf(std::int64_t whole, std::int64_t length, double start) {
    const double within = std::clamp(start, 0.0, static_cast<double>(whole - length));
    const double centre = (within + static_cast<double>(length) / 2) / static_cast<double>(whole);
    return static_cast<int>(std::lround(centre * kWhole));
}

}  // namespace

pictures::PictureSize SizeWhenTurned(const pictures::PictureSize& size,
                                     const Orientation& orientation) {
    if (!TurningOf(orientation).swapSides) return size;
    return {size.height, size.width, {size.pixel.height, size.pixel.width}};
}

pictures::PictureArea AreaOfCrop(const pictures::PictureSize& turned,
                                 const std::optional<Crop>& crop) {
    if (!crop) return pictures::PictureArea::WholeOf(turned.width, turned.height);
    // Edge by edge; the sums of a crop's numbers may be beyond 32 bits.
    const auto cut = [](std::int64_t start, std::int64_t length, int whole) {
        const std::int64_t first = std::clamp<std::int64_t>(start, 0, whole - 1);
        const std::int64_t end = std::clamp<std::int64_t>(start + length, first + 1, whole);
        return std::pair{first * kPixel, (end - first) * kPixel};
    };
    const auto [left, width] = cut(crop->left, crop->width, turned.width);
    const auto [top, height] = cut(crop->top, crop->height, turned.height);
    return {left, top, width, height};
}

pictures::PictureArea SourceRectFor(const pictures::PictureSize& turned,
                                    const Composition& composition) {
    const pictures::PictureArea area = AreaOfCrop(turned, composition.crop);
    const Framing& framing = composition.framing;
    if (framing.kind != FramingKind::Fill) return area;
    pictures::PictureArea seen = SeenSizes(area, turned.pixel, framing.zoom);
    seen.left = area.left + StartOf(area.width, seen.width, framing.centreX);
    seen.top = area.top + StartOf(area.height, seen.height, framing.centreY);
    return seen;
}

ScreenRectangle ScreenRectFor(const pictures::PictureSize& turned, const Composition& composition) {
    ScreenRectangle rectangle{0, 0, pictures::kLogoWidth, pictures::kLogoHeight};
    if (composition.framing.kind != FramingKind::Fit) return rectangle;
    const pictures::PictureArea area = AreaOfCrop(turned, composition.crop);
    const ShownShape shown = ShownIn(turned.pixel);
    const std::int64_t across = area.width * shown.down;
    const std::int64_t down = area.height * shown.across;
    // As much of the screen as the shorter side is of the longer one, to the nearest pixel.
    const auto part = [](int screen, std::int64_t shorter, std::int64_t longer) {
        return std::max(static_cast<int>((screen * shorter * 2 + longer) / (longer * 2)), 1);
    };
    if (across >= down)
        rectangle.height = part(pictures::kLogoHeight, down, across);
    else
        rectangle.width = part(pictures::kLogoWidth, across, down);
    rectangle.left = (pictures::kLogoWidth - rectangle.width) / 2;
    rectangle.top = (pictures::kLogoHeight - rectangle.height) / 2;
    return rectangle;
}

pictures::PictureArea AreaBeforeTurning(const pictures::PictureArea& area,
                                        const pictures::PictureSize& turned,
                                        const Orientation& orientation) {
    const pictures::PictureSize file = SizeWhenTurned(turned, orientation);
    return jpg::StoredArea(TurningOf(orientation), area, file.width, file.height);
}

Framing MovedBy(const pictures::PictureSize& turned, const Composition& composition, double across,
                double down) {
    Framing framing = composition.framing;
    if (framing.kind != FramingKind::Fill) return framing;
    const pictures::PictureArea area = AreaOfCrop(turned, composition.crop);
    const pictures::PictureArea seen = SourceRectFor(turned, composition);
    // Dragging the picture to the right shows more of its left.
    const auto moved = [](std::int64_t start, std::int64_t length, double by, int screen) {
        return static_cast<double>(start) - by * static_cast<double>(length) / screen;
    };
    framing.centreX =
        CentreOf(area.width, seen.width,
                 moved(seen.left - area.left, seen.width, across, pictures::kLogoWidth));
    framing.centreY =
        CentreOf(area.height, seen.height,
                 moved(seen.top - area.top, seen.height, down, pictures::kLogoHeight));
    return framing;
}

Framing ZoomedAt(const pictures::PictureSize& turned, const Composition& composition, int zoom,
                 double x, double y) {
    Framing framing = composition.framing;
    if (framing.kind != FramingKind::Fill) return framing;
    framing.zoom = std::clamp(zoom, kZoomOne, kMostZoom);
    const pictures::PictureArea area = AreaOfCrop(turned, composition.crop);
    const pictures::PictureArea before = SourceRectFor(turned, composition);
    const pictures::PictureArea after = SeenSizes(area, turned.pixel, framing.zoom);
    const auto start = [](std::int64_t from, std::int64_t length, std::int64_t newLength,
                          double part) {
        return static_cast<double>(from) + part * static_cast<double>(length - newLength);
    };
    framing.centreX = CentreOf(
        area.width, after.width,
        start(before.left - area.left, before.width, after.width, x / pictures::kLogoWidth));
    framing.centreY = CentreOf(
        area.height, after.height,
        start(before.top - area.top, before.height, after.height, y / pictures::kLogoHeight));
    return framing;
}

}  // namespace vistrel::compose
