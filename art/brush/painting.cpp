// Puts shapes and light on a painting, point by point.
#include "art/brush/painting.h"

#include <algorithm>
#include <cmath>

namespace vistrel::art {

Brush Plain(const Tint& tint) {
    return [tint](double, double) { return tint; };
}

Brush Vertical(std::vector<Stop> stops) {
    return [stops = std::move(stops)](double, double y) {
        for (std::size_t i = 1; i < stops.size(); ++i) {
            if (y > stops[i].y) continue;
            const Stop& above = stops[i - 1];
            return Mix(above.tint, stops[i].tint, (y - above.y) / (stops[i].y - above.y));
        }
        return stops.back().tint;
    };
}

Painting::Painting(double width, double height, int pixelWidth, int pixelHeight)
    : width_(width),
      height_(height),
      pixelWidth_(pixelWidth),
      pixelHeight_(pixelHeight),
      tints_(std::size_t(pixelWidth) * pixelHeight) {}

Painting::Area Painting::Covered(double left, double top, double right, double bottom,
                                 double margin) const {
    const double across = pixelWidth_ / width_, down = pixelHeight_ / height_;
    return {std::max(0, int((left - margin) * across) - 1),
            std::max(0, int((top - margin) * down) - 1),
            std::min(pixelWidth_, int((right + margin) * across) + 2),
            std::min(pixelHeight_, int((bottom + margin) * down) + 2)};
}

void Painting::Fill(const Brush& brush) {
    Change([&brush](double x, double y, const Tint&) { return brush(x, y); });
}

void Painting::Fill(const Shape& shape, const Brush& brush, double opacity, double soft) {
    const double edge = std::max(soft, (width_ / pixelWidth_ + height_ / pixelHeight_) / 2);
    const Area area = Covered(shape.left, shape.top, shape.right, shape.bottom, edge);
    for (int row = area.top; row < area.bottom; ++row) {
        for (int column = area.left; column < area.right; ++column) {
            const double x = XOf(column), y = YOf(row);
            const double inside = .5 - shape.distance(x, y) / edge;
            if (inside <= 0) continue;
            Tint& tint = tints_[std::size_t(row) * pixelWidth_ + column];
            tint = Mix(tint, brush(x, y), opacity * (soft > 0 ? Smooth(inside) : Clamp01(inside)));
        }
    }
}

void Painting::Fill(const Shape& shape, const Tint& tint, double opacity, double soft) {
    Fill(shape, Plain(tint), opacity, soft);
}

void Painting::Glow(double x, double y, double radius, const Tint& light) {
    const Shape point{x, y, x, y,
                      [x, y](double px, double py) { return std::hypot(px - x, py - y); }};
    Glow(point, radius, light);
}

void Painting::Glow(const Shape& shape, double reach, const Tint& light) {
    const Area area = Covered(shape.left, shape.top, shape.right, shape.bottom, reach);
    for (int row = area.top; row < area.bottom; ++row) {
        for (int column = area.left; column < area.right; ++column) {
            const double near = 1 - std::max(0., shape.distance(XOf(column), YOf(row))) / reach;
            if (near <= 0) continue;
            Tint& tint = tints_[std::size_t(row) * pixelWidth_ + column];
            tint = tint + light * (near * near * near);
        }
    }
}

void Painting::Change(const std::function<Tint(double, double, const Tint&)>& change) {
    for (int row = 0; row < pixelHeight_; ++row) {
        for (int column = 0; column < pixelWidth_; ++column) {
            Tint& tint = tints_[std::size_t(row) * pixelWidth_ + column];
            tint = change(XOf(column), YOf(row), tint);
        }
    }
}

pictures::RgbPicture Painting::Picture() const {
    pictures::RgbPicture picture{pixelWidth_, pixelHeight_, {}};
    picture.pixels.reserve(tints_.size() * 3);
    for (const Tint& tint : tints_) {
        for (double part : {tint.r, tint.g, tint.b}) {
            picture.pixels.push_back(std::uint8_t(std::clamp(part, 0., 255.) + .5));
        }
    }
    return picture;
}

}  // namespace vistrel::art
