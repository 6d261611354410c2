// Stained glass: a rose window without a church.
#include <algorithm>
#include <cmath>

#include "art/samples/scenery.h"

namespace vistrel::samples {
namespace {

constexpr double kPane = 40;  // a pane's usual width

// The middle of the pane that lies around a place of a regular grid.
Point Middle(int column, int row) {
    return {(column + .12 + .76 * Chance(column, row, 320)) * kPane,
            (row + .12 + .76 * Chance(column, row, 319)) * kPane};
}

struct Pane {
    Point middle;
    double toEdge;  // distance of the point asked for from the pane's edge
    int number;
};

// Each point belongs to the nearest middle; the edges lie halfway between two of them.
Pane PaneAt(double x, double y) {
    const int column = int(x / kPane), row = int(y / kPane);
    Pane pane{{}, 1e9, 0};
    double nearest = 1e9;
    for (int i = 0; i < 25; ++i) {
        const Point middle = Middle(column + i % 5 - 2, row + i / 5 - 2);
        const double distance = std::hypot(x - middle.x, y - middle.y);
        if (distance >= nearest) continue;
        nearest = distance;
        pane.middle = middle;
        pane.number = (row + i / 5) * 100 + column + i % 5;
    }
    for (int i = 0; i < 25; ++i) {
        const Point other = Middle(column + i % 5 - 2, row + i / 5 - 2);
        const double dx = other.x - pane.middle.x, dy = other.y - pane.middle.y;
        const double apart = std::hypot(dx, dy);
        if (apart == 0) continue;
        const double along = ((x - pane.middle.x) * dx + (y - pane.middle.y) * dy) / apart;
        pane.toEdge = std::min(pane.toEdge, apart / 2 - along);
    }
    return pane;
}

}  // namespace

void StainedGlass(Painting& painting) {
    const double width = painting.width(), height = painting.height();
    const Tint rings[] = {Hex(0xFFE890), Hex(0xF09830), Hex(0xC83040),
                          Hex(0x6830A0), Hex(0x2050B0), Hex(0x18808C)};
    painting.Fill([&](double x, double y) {
        const Pane pane = PaneAt(x, y);
        const double far = std::hypot(pane.middle.x - width / 2, pane.middle.y - height / 2);
        const double ring = std::clamp(far / (height * .75) * 5, 0., 4.999);
        const Tint glass = Mix(rings[int(ring)], rings[int(ring) + 1], ring - int(ring)) *
                           (.75 + .4 * Chance(pane.number, 1, 321));
        // The glass is uneven and a little brighter where it is thin, beside the lead.
        const double light =
            1.1 - .2 * Smooth(pane.toEdge / 16) + .25 * (Clouds(x / 14, y / 14, 2, 322) - .5);
        return Mix(Hex(0x16161E), glass * light, Smooth((pane.toEdge - 1.3) / 1.2));
    });
}

}  // namespace vistrel::samples
