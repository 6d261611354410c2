#include "pictures/compose/movement.h"

#include <algorithm>
#include <new>
#include <utility>

#include "pictures/compose/text.h"
#include "pictures/file.h"
#include "pictures/little_endian.h"
#include "pictures/screen/fill_in.h"
#include "pictures/screen/moving_screen.h"

namespace vistrel::compose {
namespace {

constexpr int kEntries = 256;
constexpr ScreenRectangle kWholeScreen{0, 0, pictures::kLogoWidth, pictures::kLogoHeight};

/// A large picture is not to be read for nothing.
bool MayBeMoving(const std::string& path) {
    constexpr std::size_t kHeaders = 54;
    const auto start = pictures::ReadStartOfFile(path, kHeaders);
    return start && (*start)[0] == 'B' && (*start)[1] == 'M' &&
           pictures::DoubleWord(*start, 18) == pictures::kLogoWidth &&
           pictures::DoubleWord(*start, 50) != 0;
}

pictures::RgbPicture PlainScreen(std::uint8_t grey) {
    return {pictures::kLogoWidth, pictures::kLogoHeight,
            std::vector<std::uint8_t>(screen::kScreenPixels * 3, grey)};
}

/// Takes away what any letter or edge touches, whatever its colour.
void LeaveOutText(const std::vector<TextMask>& text, screen::Area& area) {
    pictures::RgbPicture black = PlainScreen(0);
    pictures::RgbPicture white = PlainScreen(255);
    PaintText(text, black);
    PaintText(text, white);
    for (std::size_t i = 0; i < black.pixels.size(); ++i)
        if (black.pixels[i] != 0 || white.pixels[i] != 255) area.in[i / 3] = 0;
}

/// The moving colours in the light that the picture has.
void LightUp(std::vector<screen::ScreenColor>& ring, const Light& light, const Levels& levels) {
    const int count = static_cast<int>(ring.size());
    pictures::RgbPicture colors{count, 1, {}};
    for (const auto& color : ring)
        colors.pixels.insert(colors.pixels.end(), color.begin(), color.end());
    ApplyLight(light, levels, {0, 0, count, 1}, colors);
    for (int i = 0; i < count; ++i)
        std::copy_n(colors.pixels.begin() + i * 3, 3, ring[static_cast<std::size_t>(i)].begin());
}

screen::StillPart StillPartOf(screen::IndexedScreen reduced, int room) {
    screen::StillPart still{{reduced.palette.begin(), reduced.palette.begin() + room},
                            std::move(reduced.indices)};
    return still;
}

}  // namespace

// Nothing is thrown at callers: where memory runs out, a picture cannot be read.
std::optional<screen::IndexedScreen> ReadMovingScreen(const std::string& path) try {
    if (!MayBeMoving(path)) return std::nullopt;
    const auto file = pictures::ReadWholeFile(path);
    auto moving = file ? screen::ReadIndexedScreen(*file) : std::nullopt;
    if (!moving || screen::LayerOfScreen(*moving).area.IsEmpty()) return std::nullopt;
    return moving;
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

bool StaysInPlace(const Composition& composition) {
    const pictures::PictureSize size{pictures::kLogoWidth, pictures::kLogoHeight,
                                     pictures::kScreenPixel};
    return composition.orientation.quarterTurns % 4 == 0 && !composition.orientation.mirrored &&
           SourceRectFor(size, composition) ==
               pictures::PictureArea::WholeOf(size.width, size.height) &&
           ScreenRectFor(size, composition) == kWholeScreen;
}

bool LeavesColors(const screen::IndexedScreen& moving) {
    return moving.firstAnimated >= kFewestStanding;
}

Levels LevelsFor(const Light& light, const Framed& framed) {
    return light.autoLevels ? LevelsOf(framed.screen, framed.picture) : Levels{};
}

std::optional<screen::IndexedScreen> ReduceMoving(
    const std::optional<screen::IndexedScreen>& moving, const Levels& levels,
    const pictures::RgbPicture& adjusted, const Composition& composition) try {
    if (!moving || !StaysInPlace(composition) || !LeavesColors(*moving))
        return Reduce(adjusted, composition.dither);
    auto document = screen::BeginMoving(*moving, adjusted);
    if (!document || document->layers.empty()) return Reduce(adjusted, composition.dither);
    screen::Area& area = document->layers.front().area;
    LeaveOutText(composition.text, area);
    LightUp(document->ring.exact, composition.light, levels);

    pictures::RgbPicture stands = adjusted;
    screen::FillIn(stands, area);
    const int room = kEntries - static_cast<int>(document->ring.exact.size());
    auto reduced = Reduce(stands, composition.dither, room);
    if (!reduced) return std::nullopt;
    return screen::Compose(*document, StillPartOf(std::move(*reduced), room));
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

}  // namespace vistrel::compose
