// A picture painted with shapes, gradients and glows, in units of its own and with smooth edges.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "pictures/rgb_picture.h"

namespace vistrel::art {

/// Red, green and blue, 0 to 255 each; what lies outside is cut off when the painting is done.
struct Tint {
    double r = 0;
    double g = 0;
    double b = 0;
};

inline Tint Hex(std::uint32_t rgb) {
    return {double(rgb >> 16 & 255), double(rgb >> 8 & 255), double(rgb & 255)};
}
inline Tint operator+(const Tint& a, const Tint& b) { return {a.r + b.r, a.g + b.g, a.b + b.b}; }
inline Tint operator*(const Tint& a, double f) { return {a.r * f, a.g * f, a.b * f}; }
inline double Clamp01(double t) { return t < 0 ? 0 : t > 1 ? 1 : t; }
inline double Smooth(double t) { return Clamp01(t) * Clamp01(t) * (3 - 2 * Clamp01(t)); }
/// `a` at 0, `b` at 1.
inline Tint Mix(const Tint& a, const Tint& b, double t) {
    return a * (1 - Clamp01(t)) + b * Clamp01(t);
}

/// The tint of a point of the painting.
using Brush = std::function<Tint(double x, double y)>;

/// Tints at given heights, blended between them; the first and last go on beyond the ends.
struct Stop {
    double y;
    Tint tint;
};
Brush Vertical(std::vector<Stop> stops);
Brush Plain(const Tint& tint);

/// An area with smooth edges: the distance of a point from its edge, negative inside, and a
/// rectangle outside of which nothing lies.
struct Shape {
    double left, top, right, bottom;
    std::function<double(double x, double y)> distance;
};

/// A canvas of width x height units, from the upper left corner, kept in finer pixels.
class Painting {
 public:
    Painting(double width, double height, int pixelWidth, int pixelHeight);

    double width() const { return width_; }
    double height() const { return height_; }

    void Fill(const Brush& brush);
    /// `soft` is the width in units over which the edge fades; 0 for a crisp edge.
    void Fill(const Shape& shape, const Brush& brush, double opacity = 1, double soft = 0);
    void Fill(const Shape& shape, const Tint& tint, double opacity = 1, double soft = 0);
    /// Adds light around a point, falling to nothing at `radius`.
    void Glow(double x, double y, double radius, const Tint& light);
    /// Adds light around a shape, as far as `reach` units from its edge.
    void Glow(const Shape& shape, double reach, const Tint& light);
    /// Changes every point: `change` gets its place and its tint.
    void Change(const std::function<Tint(double x, double y, const Tint&)>& change);

    /// The painting as a picture of pixelWidth x pixelHeight.
    pictures::RgbPicture Picture() const;

 private:
    struct Area {
        int left, top, right, bottom;
    };
    Area Covered(double left, double top, double right, double bottom, double margin) const;
    double XOf(int column) const { return (column + .5) * width_ / pixelWidth_; }
    double YOf(int row) const { return (row + .5) * height_ / pixelHeight_; }

    double width_;
    double height_;
    int pixelWidth_;
    int pixelHeight_;
    std::vector<Tint> tints_;
};

}  // namespace vistrel::art
