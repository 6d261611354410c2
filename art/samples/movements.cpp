#include "art/samples/movements.h"

#include <algorithm>

namespace vistrel::samples {
namespace {

using screen::Area;
using screen::Layer;
using screen::Pattern;
using screen::Ring;
using screen::RingShape;

/// The pixels of a part of the screen for which `is` says so.
template <typename Is>
Area PixelsThat(const screen::MovingPicture& picture, const screen::ScreenBounds& part, Is is) {
    const pictures::RgbPicture pixels = screen::StillPicture(picture);
    Area area;
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x) {
            const std::uint8_t* color = &pixels.pixels[Area::At(x, y) * 3];
            area.in[Area::At(x, y)] = is(color[0], color[1], color[2]);
        }
    return area;
}

void Add(screen::MovingPicture& picture, Pattern pattern, Area area, int size = 0) {
    Layer layer;
    layer.pattern = pattern;
    layer.area = std::move(area);
    layer.size = size;
    picture.layers.push_back(std::move(layer));
}

}  // namespace

/// Whether a pixel is much brighter than those around it.
bool IsPoint(const pictures::RgbPicture& picture, int x, int y) {
    const auto light = [&](int column, int row) {
        const std::uint8_t* color = &picture.pixels[Area::At(column, row) * 3];
        return color[0] + color[1] + color[2];
    };
    constexpr int kNear = 5;
    constexpr int kBrighter = 110;
    const int around = std::max(
        {light(x - kNear, y), light(x + kNear, y), light(x, y - kNear), light(x, y + kNear)});
    return light(x, y) > around + kBrighter;
}

// The stars around the letters and the moon.
void Twinkle(screen::MovingPicture& nightSky) {
    const pictures::RgbPicture picture = screen::StillPicture(nightSky);
    Area stars;
    for (int y = 8; y < 300; ++y)
        for (int x = 8; x < 312; ++x) stars.in[Area::At(x, y)] = IsPoint(picture, x, y);
    screen::Remove(stars, screen::RectangleArea(16, 128, 228, 92));
    screen::Remove(stars, screen::RectangleArea(228, 30, 60, 90));
    nightSky.ring.shape = RingShape::Pulse;
    nightSky.ring.keys = {{112, 128, 184}, {255, 255, 255}, {72, 88, 150}};
    nightSky.ring.count = 32;
    Add(nightSky, Pattern::Pieces, std::move(stars));
}

// The windows go out and on again, each in its turn, and the lamps of the quay run.
void LightWindows(screen::MovingPicture& cityLights) {
    const auto isLit = [](int red, int green, int blue) {
        return red > 150 && green > 120 && red + 60 > blue;
    };
    cityLights.ring.shape = RingShape::Stripes;
    cityLights.ring.keys = {{255, 216, 130}, {255, 238, 190}, {255, 204, 110}, {52, 32, 76}};
    cityLights.ring.count = 64;
    Add(cityLights, Pattern::Pieces, PixelsThat(cityLights, {0, 148, 320, 302}, isLit));
    Add(cityLights, Pattern::Along, screen::RectangleArea(0, 304, 320, 4), 133);
}

/// All but a round part of the screen.
void KeepOut(Area& area, screen::ScreenPoint centre, int across, int down) {
    for (int y = 0; y < pictures::kLogoHeight; ++y)
        for (int x = 0; x < pictures::kLogoWidth; ++x) {
            const double right = double(x - centre.x) / across, below = double(y - centre.y) / down;
            if (right * right + below * below < 1) area.in[Area::At(x, y)] = 0;
        }
}

// The rays around the sun, beyond its own.
void TurnRays(screen::MovingPicture& sunnyDay) {
    constexpr screen::ScreenPoint kSun{160, 199};
    Area rays = PixelsThat(sunnyDay, {0, 0, 320, 330}, [](int red, int green, int blue) {
        return red > 240 && green > 180 && blue > 40 && blue < 205 && green - blue > 30;
    });
    KeepOut(rays, kSun, 76, 122);
    sunnyDay.ring.keys = {{255, 200, 84}, {255, 232, 160}};
    sunnyDay.ring.count = 32;
    Add(sunnyDay, Pattern::Rays, std::move(rays), 16);
    sunnyDay.layers.back().centre = kSun;
}

// The open water moves in clouds of light, behind the rays and all that lives there.
void MoveWater(screen::MovingPicture& deepSea) {
    const auto isWater = [](int red, int green, int blue) {
        return red < 130 && blue > 60 && blue >= green - 12 && green < 205;
    };
    deepSea.ring.keys = {{14, 84, 140}, {30, 128, 180}, {20, 104, 160}};
    deepSea.ring.count = 48;
    Add(deepSea, Pattern::Plasma, PixelsThat(deepSea, {0, 0, 320, 372}, isWater));
}

}  // namespace vistrel::samples
