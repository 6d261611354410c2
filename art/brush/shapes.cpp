// Distances of points from the edges of shapes.
#include "art/brush/shapes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vistrel::art {
namespace {

double ToSegment(double x, double y, const Point& a, const Point& b) {
    const double dx = b.x - a.x, dy = b.y - a.y;
    const double length2 = dx * dx + dy * dy;
    const double t = length2 > 0 ? Clamp01(((x - a.x) * dx + (y - a.y) * dy) / length2) : 0;
    return std::hypot(x - a.x - t * dx, y - a.y - t * dy);
}

Shape Around(const std::vector<Point>& points, double margin) {
    Shape box{points[0].x, points[0].y, points[0].x, points[0].y, {}};
    for (const Point& p : points) {
        box.left = std::min(box.left, p.x);
        box.top = std::min(box.top, p.y);
        box.right = std::max(box.right, p.x);
        box.bottom = std::max(box.bottom, p.y);
    }
    return {box.left - margin, box.top - margin, box.right + margin, box.bottom + margin, {}};
}

}  // namespace

Shape Disc(double x, double y, double radius) {
    return {x - radius, y - radius, x + radius, y + radius,
            [=](double px, double py) { return std::hypot(px - x, py - y) - radius; }};
}

Shape Ring(double x, double y, double radius, double width) {
    const double outer = radius + width / 2;
    return {x - outer, y - outer, x + outer, y + outer, [=](double px, double py) {
                return std::abs(std::hypot(px - x, py - y) - radius) - width / 2;
            }};
}

Shape Ellipse(double x, double y, double radiusX, double radiusY) {
    return {x - radiusX, y - radiusY, x + radiusX, y + radiusY, [=](double px, double py) {
                // The gradient turns the ratio into a distance that is right near the edge.
                const double u = (px - x) / radiusX, v = (py - y) / radiusY;
                const double ratio = std::hypot(u, v);
                const double steep = std::hypot(u / radiusX, v / radiusY);
                return steep > 0 ? ratio * (ratio - 1) / steep : -std::min(radiusX, radiusY);
            }};
}

Shape Box(double left, double top, double right, double bottom, double round) {
    const double x = (left + right) / 2, y = (top + bottom) / 2;
    const double halfWidth = (right - left) / 2 - round, halfHeight = (bottom - top) / 2 - round;
    return {left, top, right, bottom, [=](double px, double py) {
                const double dx = std::abs(px - x) - halfWidth, dy = std::abs(py - y) - halfHeight;
                return std::hypot(std::max(dx, 0.), std::max(dy, 0.)) +
                       std::min(std::max(dx, dy), 0.) - round;
            }};
}

Shape Stroke(const std::vector<Point>& points, double width) {
    Shape shape = Around(points, width / 2);
    shape.distance = [points, width](double x, double y) {
        double nearest = std::hypot(x - points[0].x, y - points[0].y);
        for (std::size_t i = 1; i < points.size(); ++i) {
            nearest = std::min(nearest, ToSegment(x, y, points[i - 1], points[i]));
        }
        return nearest - width / 2;
    };
    return shape;
}

Shape Polygon(const std::vector<Point>& corners) {
    Shape shape = Around(corners, 0);
    shape.distance = [corners](double x, double y) {
        double nearest = std::numeric_limits<double>::max();
        bool inside = false;
        Point a = corners.back();
        for (const Point& b : corners) {
            nearest = std::min(nearest, ToSegment(x, y, a, b));
            if ((a.y > y) != (b.y > y) && x < (b.x - a.x) * (y - a.y) / (b.y - a.y) + a.x) {
                inside = !inside;
            }
            a = b;
        }
        return inside ? -nearest : nearest;
    };
    return shape;
}

Shape Below(std::function<double(double x)> height, double left, double right, double bottom) {
    return {left, 0, right, bottom, [=](double x, double y) {
                // Divided by the steepness, so that slopes have edges as crisp as flat ground.
                const double slope = height(x + .5) - height(x - .5);
                return std::max({(height(x) - y) / std::sqrt(1 + slope * slope), left - x,
                                 x - right, y - bottom});
            }};
}

Shape Union(const Shape& a, const Shape& b) {
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom), [f = a.distance, g = b.distance](double x, double y) {
                return std::min(f(x, y), g(x, y));
            }};
}

Shape Common(const Shape& a, const Shape& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom), [f = a.distance, g = b.distance](double x, double y) {
                return std::max(f(x, y), g(x, y));
            }};
}

Shape Without(const Shape& a, const Shape& b) {
    return {a.left, a.top, a.right, a.bottom, [f = a.distance, g = b.distance](double x, double y) {
                return std::max(f(x, y), -g(x, y));
            }};
}

Shape Moved(const Shape& shape, double dx, double dy) {
    return {shape.left + dx, shape.top + dy, shape.right + dx, shape.bottom + dy,
            [f = shape.distance, dx, dy](double x, double y) { return f(x - dx, y - dy); }};
}

Shape Grown(const Shape& shape, double by) {
    return {shape.left - by, shape.top - by, shape.right + by, shape.bottom + by,
            [f = shape.distance, by](double x, double y) { return f(x, y) - by; }};
}

std::vector<Point> Curve(const std::vector<Point>& through) {
    // A Catmull-Rom spline: each piece leans on the points before and after it.
    std::vector<Point> points;
    const int last = int(through.size()) - 1;
    for (int i = 0; i < last; ++i) {
        const Point a = through[std::max(0, i - 1)], b = through[i], c = through[i + 1],
                    d = through[std::min(last, i + 2)];
        for (int step = 0; step < 12; ++step) {
            const double t = step / 12.;
            const auto blend = [t](double p, double q, double r, double s) {
                return q +
                       .5 * t *
                           (r - p + t * (2 * p - 5 * q + 4 * r - s + t * (3 * (q - r) + s - p)));
            };
            points.push_back({blend(a.x, b.x, c.x, d.x), blend(a.y, b.y, c.y, d.y)});
        }
    }
    points.push_back(through.back());
    return points;
}

}  // namespace vistrel::art
