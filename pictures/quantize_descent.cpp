// Rounds of: every pixel takes the colour that suits its surroundings best; every colour moves to
// where its pixels' blurred errors want it; the errors are blurred anew.
#include "pictures/quantize_descent.h"

#include <algorithm>
#include <array>

#include "pictures/quantize_blur.h"

namespace vistrel {
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
    int BetterColor(int own, const Point& field, std::uint32_t squared,
                    const Neighbors& neighbors) const;

    const std::uint8_t* const rgb_;
    const int width_;
    const int height_;
    const WorkingSpace& space_;
    std::uint8_t* const indices_;
    Palette& palette_;
    ErrorField field_;
};

void Descent::FillField() {
    field_.Fill([this](int y, Point* errors) {
        const std::uint8_t* rgb = rgb_ + std::size_t(y) * width_ * 3;
        const std::uint8_t* indices = indices_ + std::size_t(y) * width_;
        for (int x = 0; x < width_; ++x, rgb += 3) {
            errors[x] = palette_.colors[indices[x]] - space_.FromRgb(rgb);
        }
    });
}

/// Changing a pixel's colour by d changes the sum by c * (|d|^2 + 2 d * field). That is negative
/// only for colours less than twice as far away as the field is long.
int Descent::BetterColor(int own, const Point& field, std::uint32_t squared,
                         const Neighbors& neighbors) const {
    const Point& from = palette_.colors[own];
    int best = own;
    std::int32_t least = 0;
    for (int k = 0; k < neighbors.count; ++k) {
        if (static_cast<std::uint32_t>(neighbors.squared[k]) / 4 >= squared) break;
        const Point& to = palette_.colors[neighbors.color[k]];
        const std::int32_t product =
            (to.x - from.x) * field.x + (to.y - from.y) * field.y + (to.z - from.z) * field.z;
        const std::int32_t change = neighbors.squared[k] + 2 * product;
        if (change < least) {
            least = change;
            best = neighbors.color[k];
        }
    }
    return best;
}

void Descent::ChooseIndices() {
    const NeighborTable neighbors(palette_);
    std::array<std::uint32_t, kMostColors> harmless{};
    for (int i = 0; i < palette_.size; ++i) {
        const Neighbors& list = neighbors.Of(i);
        harmless[i] =
            list.count == 0 ? UINT32_MAX : static_cast<std::uint32_t>(list.squared[0]) / 4;
    }
    std::uint8_t* index = indices_;
    for (int y = 0; y < height_; ++y) {
        const Point* const row = field_.Row(y);
        for (int x = 0; x < width_; ++x, ++index) {
            const Point field = row[x];
            const std::uint32_t squared = static_cast<std::uint32_t>(field.x * field.x) +
                                          static_cast<std::uint32_t>(field.y * field.y) +
                                          static_cast<std::uint32_t>(field.z * field.z);
            if (squared <= harmless[*index]) continue;
            const int better = BetterColor(*index, field, squared, neighbors.Of(*index));
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
        const Point* const row = field_.Row(y);
        for (int x = 0; x < width_; ++x) {
            Sum& sum = sums[*index++];
            ++sum.pixels;
            sum.x += row[x].x;
            sum.y += row[x].y;
            sum.z += row[x].z;
        }
    }
    // White has the largest coordinates of all colours, black is the origin.
    const Point white = space_.FromRgb(255, 255, 255);
    for (int i = 0; i < palette_.size; ++i) {
        const Sum& sum = sums[i];
        if (sum.pixels == 0) continue;
        const auto moved = [&](std::int16_t from, std::int64_t total, std::int16_t most) {
            const std::int64_t step = total * field_.step() / (sum.pixels * 65536);
            return static_cast<std::int16_t>(std::clamp<std::int64_t>(from - step, 0, most));
        };
        Point& color = palette_.colors[i];
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

}  // namespace vistrel
