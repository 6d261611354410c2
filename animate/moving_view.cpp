#include "animate/moving_view.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace vistrel::animate {
namespace {

using screen::IndexedScreen;

/// Dots of both colours, one after the other, at the points of a line.
class DottedPen {
 public:
    explicit DottedPen(IndexedScreen& target) : target_(target) {
        // Those that stand, as long as there are any: marks are not to move.
        const int entries = target.IsAnimated() ? target.firstAnimated : 256;
        for (int i = 0; i < entries; ++i) {
            if (Light(i) < Light(dark_)) dark_ = i;
            if (Light(i) > Light(light_)) light_ = i;
        }
    }

    void Dot(int x, int y) {
        if (x < 0 || y < 0 || x >= target_.width || y >= target_.height) return;
        const bool odd = ((x + y) / kDot & 1) != 0;
        target_.indices[static_cast<std::size_t>(y) * target_.width + x] =
            static_cast<std::uint8_t>(odd ? dark_ : light_);
    }

    void Line(int x, int y, int toX, int toY) {
        const int steps = std::max({std::abs(toX - x), std::abs(toY - y), 1});
        for (int i = 0; i <= steps; ++i) Dot(x + (toX - x) * i / steps, y + (toY - y) * i / steps);
    }

 private:
    static constexpr int kDot = 3;

    int Light(int entry) const {
        const auto& color = target_.palette[entry];
        return 2 * color[0] + 4 * color[1] + color[2];
    }

    IndexedScreen& target_;
    int dark_ = 0;
    int light_ = 0;
};

/// The nearest pixels: colours that move cannot be mixed.
IndexedScreen Stretched(const IndexedScreen& screen, int width, int height) {
    IndexedScreen stretched = screen;
    stretched.width = width;
    stretched.height = height;
    stretched.indices.resize(static_cast<std::size_t>(width) * height);
    std::uint8_t* out = stretched.indices.data();
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* row = &screen.indices[std::size_t(y * screen.height / height) *
                                                  static_cast<std::size_t>(screen.width)];
        for (int x = 0; x < width; ++x) *out++ = row[x * screen.width / width];
    }
    return stretched;
}

bool Has(const screen::Area& area, const IndexedScreen& target, int x, int y) {
    return area.Has(x * pictures::kLogoWidth / target.width,
                    y * pictures::kLogoHeight / target.height);
}

/// The pixels of an area of which a neighbour is none.
void DrawEdge(const screen::Area& area, IndexedScreen& target, DottedPen& pen) {
    for (int y = 0; y < target.height; ++y) {
        for (int x = 0; x < target.width; ++x) {
            if (!Has(area, target, x, y)) continue;
            const bool inside = x > 0 && y > 0 && x + 1 < target.width && y + 1 < target.height &&
                                Has(area, target, x - 1, y) && Has(area, target, x + 1, y) &&
                                Has(area, target, x, y - 1) && Has(area, target, x, y + 1);
            if (!inside) pen.Dot(x, y);
        }
    }
}

void DrawMarks(const Marks& marks, IndexedScreen& target) {
    constexpr int kArm = 9;
    DottedPen pen(target);
    const auto place = [&](screen::ScreenPoint at) {
        return controls::Point{(2 * at.x + 1) * target.width / (2 * pictures::kLogoWidth),
                               (2 * at.y + 1) * target.height / (2 * pictures::kLogoHeight)};
    };
    if (marks.area) DrawEdge(*marks.area, target, pen);
    for (std::size_t i = 1; i < marks.line.size(); ++i) {
        const controls::Point from = place(marks.line[i - 1]), to = place(marks.line[i]);
        pen.Line(from.x, from.y, to.x, to.y);
    }
    if (!marks.cross) return;
    const controls::Point at = place(*marks.cross);
    pen.Line(at.x - kArm, at.y, at.x + kArm, at.y);
    pen.Line(at.x, at.y - kArm, at.x, at.y + kArm);
}

}  // namespace

void MovingView::Show(const IndexedScreen& screen, const Marks& marks, controls::PictureBox& box) {
    IndexedScreen shown = Stretched(screen, box.ScaleWidth(), box.ScaleHeight());
    DrawMarks(marks, shown);
    if (screen.IsAnimated())
        for (unsigned left = steps_ % (256u - screen.firstAnimated); left > 0; --left)
            screen::RotateColors(shown);
    // The former one gives the box back when it goes.
    animation_.reset();
    animation_ = std::make_unique<preview::ScreenAnimation>(std::move(shown));
    animation_->Attach(box);
}

void MovingView::Step() {
    if (!animation_) return;
    ++steps_;
    animation_->Step();
}

}  // namespace vistrel::animate
