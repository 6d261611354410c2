// Writes text: turns the skeletons of letters into strokes of a pen.
#include "art/brush/lettering.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "art/brush/letter_skeletons.h"

namespace vistrel::art {
namespace {

using Line = std::vector<Point>;

constexpr double kSlab = 1.3;  // how far a slab reaches to either side
constexpr double kRadian = 3.14159265358979323846 / 180;

std::vector<Line> LinesOf(const Skeleton& skeleton) {
    std::istringstream path(skeleton.path);
    std::vector<Line> lines(1);
    char command;
    while (path >> command) {
        double x, y;
        path >> x >> y;
        if (command == 'M' && !lines.back().empty()) lines.emplace_back();
        if (command != 'O') {
            lines.back().push_back({x, y});
            continue;
        }
        double radiusX, radiusY, from, to;
        path >> radiusX >> radiusY >> from >> to;
        const int steps = std::max(4, int(std::abs(to - from) / 9));
        for (int i = 0; i <= steps; ++i) {
            const double angle = (from + (to - from) * i / steps) * kRadian;
            lines.back().push_back({x + radiusX * std::cos(angle), y + radiusY * std::sin(angle)});
        }
    }
    return lines;
}

// Cross strokes where a line begins or ends upright on one of the lines of the alphabet.
void AddSlabs(std::vector<Line>& lines) {
    std::vector<Line> slabs;
    for (const Line& line : lines) {
        if (line.size() < 2) continue;
        for (const auto& [end, next] :
             {std::pair(line.front(), line[1]), std::pair(line.back(), line[line.size() - 2])}) {
            const bool onLine = end.y == 0 || end.y == 6.5 || end.y == 10 || end.y == -3.2;
            if (!onLine || std::abs(next.x - end.x) > .6 * std::abs(next.y - end.y)) continue;
            slabs.push_back({{end.x - kSlab, end.y}, {end.x + kSlab, end.y}});
        }
    }
    lines.insert(lines.end(), slabs.begin(), slabs.end());
}

// A typewriter's wide letters are drawn together into the room that all letters have. Returns the
// letter's width then.
double Squeeze(std::vector<Line>& lines, double width, const Hand& hand) {
    const double room = hand.pitch - hand.weight - 2 * kSlab - .2;
    if (width <= room) return width;
    for (Line& line : lines) {
        for (Point& point : line) point.x *= room / width;
    }
    return room;
}

// Pairs whose slopes leave a gap between them.
double Kerning(char first, char second) {
    static const char* const kClose[] = {"Yo", "Yu", "Ye", "To", "Tr", "Ty", "Wa", "We", "Ve",
                                         "wa", "ay", "AV", "AW", "LT", "rr", "ry", "f "};
    for (const char* pair : kClose) {
        if (pair[0] == first && pair[1] == second) return pair[0] < 'a' ? -1.5 : -.5;
    }
    return 0;
}

double Advance(const std::string& text, std::size_t i, const Hand& hand) {
    if (hand.pitch > 0) return hand.pitch;
    if (text[i] == ' ') return 3.2 + hand.spacing;
    const Skeleton* skeleton = SkeletonOf(text[i]);
    const double room = (skeleton ? skeleton->width : 0) + hand.weight + hand.spacing;
    return i + 1 < text.size() ? room + Kerning(text[i], text[i + 1]) : room;
}

// The pen's strokes as one shape. A broad pen is a round one in a space that is stretched along
// the thin direction, 30 degrees from the horizontal.
Shape Inked(const std::vector<Line>& lines, double width, double contrast) {
    Shape whole = Stroke(lines[0], width);
    for (std::size_t i = 1; i < lines.size(); ++i) whole = Union(whole, Stroke(lines[i], width));
    if (contrast >= 1) return whole;
    const double c = std::cos(30 * kRadian), s = std::sin(30 * kRadian);
    const auto stretch = [=](double x, double y) {
        const double along = c * x - s * y, across = (s * x + c * y) / contrast;
        return Point{along, across};
    };
    std::vector<Line> stretched = lines;
    for (Line& line : stretched) {
        for (Point& point : line) point = stretch(point.x, point.y);
    }
    const Shape round = Inked(stretched, width, 1);
    whole.distance = [=, f = round.distance](double x, double y) {
        const Point point = stretch(x, y);
        return f(point.x, point.y) * contrast;
    };
    return whole;
}

}  // namespace

std::vector<Shape> WriteFrom(double left, double baseline, double size, const std::string& text,
                             const Hand& hand) {
    std::vector<Shape> letters;
    const double unit = size / 10;
    double x = hand.weight / 2;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (const Skeleton* skeleton = SkeletonOf(text[i])) {
            double width = skeleton->width;
            std::vector<Line> lines = LinesOf(*skeleton);
            if (hand.pitch > 0) width = Squeeze(lines, width, hand);
            if (hand.slabs) AddSlabs(lines);
            const double start = hand.pitch > 0 ? x + (hand.pitch - hand.weight - width) / 2 : x;
            for (Line& line : lines) {
                for (Point& point : line) {
                    point = {left + (start + point.x + point.y * hand.slant / 10) * unit,
                             baseline - point.y * unit};
                }
            }
            letters.push_back(Inked(lines, hand.weight * unit, hand.contrast));
        }
        x += Advance(text, i, hand);
    }
    return letters;
}

std::vector<Shape> WriteAround(double middle, double baseline, double size, const std::string& text,
                               const Hand& hand) {
    double width = -hand.spacing;
    for (std::size_t i = 0; i < text.size(); ++i) width += Advance(text, i, hand);
    return WriteFrom(middle - width * size / 20, baseline, size, text, hand);
}

void Letter(Painting& painting, const std::vector<Shape>& letters, const Brush& brush,
            double shadow, const Tint& shade) {
    if (shadow > 0) {
        for (const Shape& letter : letters) {
            painting.Fill(Moved(letter, shadow, shadow), shade, .6, shadow);
        }
    }
    for (const Shape& letter : letters) painting.Fill(letter, brush);
}

}  // namespace vistrel::art
