// A line of text on a screen: what a user says of it, and the masks that are painted of it.
#pragma once

#include <string>
#include <vector>

#include "pictures/compose/composition.h"
#include "pictures/convert.h"
#include "platform/text_font.h"

namespace vistrel::adjust {

/// What makes letters stand out from any picture.
enum class LetterEdge { None, Outline, Shadow };

/// Which end of a line stays where it is when the line becomes longer.
enum class Alignment { Left, Centre, Right };

/// A tube hides a twentieth of the screen at each side: text keeps away from there.
inline constexpr int kMarginAcross = pictures::kLogoWidth / 20;
inline constexpr int kMarginDown = pictures::kLogoHeight / 20;

struct TextLine {
    std::string text;
    platform::TextFont font;
    compose::Color color{255, 255, 255};
    LetterEdge edge = LetterEdge::Outline;
    Alignment alignment = Alignment::Centre;
    int x = pictures::kLogoWidth /
            2;  ///< of its left end, its middle or its right end, in pixels of the screen
    int y = pictures::kLogoHeight / 2;  ///< of its middle
    bool operator==(const TextLine&) const = default;
};

/// A line as it was drawn. Moving it is cheap: nothing is drawn anew.
class DrawnLine {
 public:
    explicit DrawnLine(const TextLine& line);

    const TextLine& line() const { return line_; }
    /// Moves the line to where it is aligned at a point of the screen.
    void MoveTo(int x, int y);
    /// Aligns the line to the left margin, the middle of the screen or the right margin.
    void Align(Alignment alignment);
    bool Covers(int x, int y) const;

    /// The places of a line of this size near the middle of the screen or at a margin that a hand
    /// means when it lets go of it a little beside.
    void MoveNear(int x, int y);

    const compose::TextMask& mask() const { return mask_; }

 private:
    int LeftAt(int x) const;
    void PlaceMasks();

    TextLine line_;
    int width_ = 0;
    int height_ = 0;
    int inkLeft_ = 0;  ///< from the line's left end to its mask's
    compose::TextMask mask_;
};

/// What lies over the picture, in the order of painting.
std::vector<compose::TextMask> MasksOf(const std::vector<DrawnLine>& lines);

}  // namespace vistrel::adjust
