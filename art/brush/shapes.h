// The shapes that paintings are made of.
#pragma once

#include <vector>

#include "art/brush/painting.h"

namespace vistrel::art {

struct Point {
    double x;
    double y;
};

Shape Disc(double x, double y, double radius);
Shape Ring(double x, double y, double radius, double width);
Shape Ellipse(double x, double y, double radiusX, double radiusY);
/// `round` is the radius of the corners.
Shape Box(double left, double top, double right, double bottom, double round = 0);
/// A line through all points, with round ends.
Shape Stroke(const std::vector<Point>& points, double width);
/// A closed area; the corners may go round either way.
Shape Polygon(const std::vector<Point>& corners);
/// Everything below the line height(x), down to `bottom`.
Shape Below(std::function<double(double x)> height, double left, double right, double bottom);

/// In one or the other, in both, or in the first but not in the second.
Shape Union(const Shape& a, const Shape& b);
Shape Common(const Shape& a, const Shape& b);
Shape Without(const Shape& a, const Shape& b);
Shape Moved(const Shape& shape, double dx, double dy);
/// A shape grown on all sides.
Shape Grown(const Shape& shape, double by);

/// Points of a smooth curve through three or more points.
std::vector<Point> Curve(const std::vector<Point>& through);

}  // namespace vistrel::art
