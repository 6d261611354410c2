// The outline of a gliding kestrel.
#include "art/brush/kestrel.h"

namespace vistrel::art {
namespace {

Shape Outline(double x, double y, double size, const std::vector<Point>& points) {
    std::vector<Point> corners = Curve(points);
    for (Point& corner : corners) corner = {x + corner.x * size, y + corner.y * size};
    return Polygon(corners);
}

}  // namespace

Shape Kestrel(double x, double y, double size) {
    const Shape left = Outline(x, y, size,
                               {{-5, -2.4},
                                {-3.6, -2.5},
                                {-2.2, -1.9},
                                {0, -.3},
                                {0, .9},
                                {-1.4, -.1},
                                {-3, -1.5},
                                {-5, -2.4}});
    const Shape right = Outline(
        x, y, size,
        {{5, -2.8}, {3.6, -2.7}, {2.2, -2}, {0, -.3}, {0, .9}, {1.4, -.2}, {3, -1.7}, {5, -2.8}});
    const Shape body = Outline(x, y, size,
                               {{.2, -1.1},
                                {.6, -.3},
                                {.4, .8},
                                {.9, 2.8},
                                {.2, 2.5},
                                {-.3, 2.7},
                                {-.2, .9},
                                {-.4, -.4},
                                {.2, -1.1}});
    return Union(body, Union(left, right));
}

}  // namespace vistrel::art
