#include "adjust/text_line.h"

#include <array>
#include <cstdlib>

#include "pictures/compose/text.h"
#include "pictures/preview/draw_letters.h"

namespace vistrel::adjust {
namespace {

/// How near a hand must come, in pixels of the screen; as far on the screen, down as across.
constexpr int kNearAcross = 5;
constexpr int kNearDown = 8;

/// Black beside light letters, white beside dark ones, by the eye's weights for the three colours.
compose::Color OppositeOf(const compose::Color& color) {
    const int light = (299 * color.red + 587 * color.green + 114 * color.blue) / 1000;
    const std::uint8_t value = light < 128 ? 255 : 0;
    return {value, value, value};
}

/// The nearest of three places if it is near enough, otherwise the place itself.
int Snapped(int place, const std::array<int, 3>& places, int reach) {
    for (const int other : places)
        if (std::abs(place - other) <= reach) return other;
    return place;
}

}  // namespace

DrawnLine::DrawnLine(const TextLine& line) : line_(line) {
    preview::Letters letters = preview::DrawLetters(line.text, line.font);
    width_ = letters.width;
    height_ = letters.height;
    inkLeft_ = letters.mask.left;
    mask_.letters = std::move(letters.mask);
    mask_.color = line.color;
    mask_.edgeColor = OppositeOf(line.color);
    PlaceMasks();
    if (line.edge == LetterEdge::Outline) mask_.edge = compose::OutlineOf(mask_.letters);
    if (line.edge == LetterEdge::Shadow) mask_.edge = compose::ShadowOf(mask_.letters);
}

int DrawnLine::LeftAt(int x) const {
    if (line_.alignment == Alignment::Left) return x;
    return line_.alignment == Alignment::Centre ? x - width_ / 2 : x - width_;
}

void DrawnLine::PlaceMasks() {
    compose::Mask& letters = mask_.letters;
    const int left = LeftAt(line_.x) + inkLeft_;
    const int top = line_.y - height_ / 2;
    mask_.edge.left += left - letters.left;
    mask_.edge.top += top - letters.top;
    letters.left = left;
    letters.top = top;
}

void DrawnLine::MoveTo(int x, int y) {
    line_.x = x;
    line_.y = y;
    PlaceMasks();
}

void DrawnLine::Align(Alignment alignment) {
    line_.alignment = alignment;
    const int places[] = {kMarginAcross, pictures::kLogoWidth / 2,
                          pictures::kLogoWidth - kMarginAcross};
    MoveTo(places[static_cast<int>(alignment)], line_.y);
}

void DrawnLine::MoveNear(int x, int y) {
    const int left = LeftAt(x);
    const int snapped = Snapped(left,
                                {pictures::kLogoWidth / 2 - width_ / 2, kMarginAcross,
                                 pictures::kLogoWidth - kMarginAcross - width_},
                                kNearAcross);
    const int half = height_ / 2;
    MoveTo(x + snapped - left, Snapped(y,
                                       {pictures::kLogoHeight / 2, kMarginDown + half,
                                        pictures::kLogoHeight - kMarginDown - half},
                                       kNearDown));
}

bool DrawnLine::Covers(int x, int y) const {
    const int left = LeftAt(line_.x);
    const int top = line_.y - height_ / 2;
    return x >= left && x < left + width_ && y >= top && y < top + height_;
}

std::vector<compose::TextMask> MasksOf(const std::vector<DrawnLine>& lines) {
    std::vector<compose::TextMask> masks;
    for (const DrawnLine& line : lines) masks.push_back(line.mask());
    return masks;
}

}  // namespace vistrel::adjust
