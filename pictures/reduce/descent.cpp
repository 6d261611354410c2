// Rounds of: every pixel takes the colour that suits its surroundings best; every colour moves to
// where its pixels' blurred errors want it; the errors are blurred again.
#include "pictures/reduce/descent.h"

#include <algorithm>
#include <array>

#include "pictures/reduce/alternatives.h"
#include "pictures/reduce/blur.h"

namespace vistrel::reduce {
namespace {

class Descent {
 public:
    Descent(const std::uint8_t* rgb, int width, int height, const WorkingSpace& space, int lambda,
            std::uint8_t* indices, Palette& palette)
        : rgb_(rgb),
          width_(width),
          height_(height),
          space_(space),
          indices_(indices),
          palette_(palette),
          field_(width, height, lambda) {}

    void FillField();
    void ChooseIndices();
    void MoveColors();
    void RoundColors();

 private:
    const std::uint8_t* const rgb_;
    const int width_;
    const int height_;
    const WorkingSpace& space_;
    std::uint8_t* const indices_;
    Palette& palette_;
    ErrorField field_;
};

void Descent::FillField() {
    field_.Fill([this](int y, ColorPoint* errors) {
        const std::uint8_t* rgb = rgb_ + std::size_t(y) * width_ * 3;
        const std::uint8_t* indices = indices_ + std::size_t(y) * width_;
        for (int x = 0; x < width_; ++x, rgb += 3) {
            errors[x] = palette_.colors[indices[x]] - space_.FromRgb(rgb);
        }
    });
}

void Descent::ChooseIndices() {
    const Alternatives alternatives(palette_);
    std::uint8_t* index = indices_;
    for (int y = 0; y < height_; ++y) {
        const ColorPoint* const row = field_.Row(y);
        for (int x = 0; x < width_; ++x, ++index) {
            const int better = alternatives.Better(*index, row[x]);
            if (better == *index) continue;
            field_.Add(x, y, palette_.colors[better] - palette_.colors[*index]);
            *index = static_cast<std::uint8_t>(better);
        }
    }
}

void Descent::MoveColors() {
    struct Sum {
        std::int64_t pixels = 0, x = 0, y = 0, z = 0;
    };
    std::array<Sum, kMostColors> sums{};
    const std::uint8_t* index = indices_;
    for (int y = 0; y < height_; ++y) {
        const ColorPoint* const row = field_.Row(y);
        for (int x = 0; x < width_; ++x) {
            Sum& sum = sums[*index++];
            ++sum.pixels;
            sum.x += row[x].x;
            sum.y += row[x].y;
            sum.z += row[x].z;
        }
    }
    // White has the largest coordinates of all colours, black is the origin.
    const ColorPoint white = space_.FromRgb(255, 255, 255);
    for (int i = 0; i < palette_.size; ++i) {
        const Sum& sum = sums[i];
        if (sum.pixels == 0) continue;
        const auto moved = [&](std::int16_t from, std::int64_t total, std::int16_t most) {
            const std::int64_t step = total * field_.step() / (sum.pixels * 65536);
            return static_cast<std::int16_t>(std::clamp<std::int64_t>(from - step, 0, most));
        };
        ColorPoint& color = palette_.colors[i];
        color = {moved(color.x, sum.x, white.x), moved(color.y, sum.y, white.y),
                 moved(color.z, sum.z, white.z), 0};
    }
}

void Descent::RoundColors() {
    for (int i = 0; i < palette_.size; ++i) {
        const Rgb color = space_.ToRgb(palette_.colors[i]);
        palette_.colors[i] = space_.FromRgb(color.red, color.green, color.blue);
    }
}

}  // namespace

void Descend(const std::uint8_t* rgb, int width, int height, const WorkingSpace& space,
             const DescentSettings& settings, std::uint8_t* indices, Palette& palette) {
    Descent descent(rgb, width, height, space, settings.lambda, indices, palette);
    descent.FillField();
    for (int round = 1; round < settings.rounds; ++round) {
        descent.ChooseIndices();
        descent.MoveColors();
        if (round + 1 == settings.rounds) descent.RoundColors();
        descent.FillField();
    }
    descent.ChooseIndices();
}

}  // namespace vistrel::reduce
