// Rounds over the rows: every pixel takes the colour that suits its surroundings best, those before
// it being as they have become, those behind it as they were; then every colour moves to where its
// pixels' blurred errors want it.
#include "pictures/reduce/descent.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <vector>

#include "pictures/reduce/alternatives.h"
#include "pictures/reduce/error_field.h"

namespace vistrel::reduce {
namespace {

class Descent {
 public:
    Descent(int width, int height, const WorkingSpace& space, int lambda, std::uint8_t* indices,
            Palette& palette)
        : width_(width),
          height_(height),
          space_(space),
          indices_(indices),
          palette_(palette),
          colors_(InErrorUnits(palette)),
          field_(width, height, lambda),
          changed_(width) {}

    enum class Sums { Wanted, NotWanted };

    void FillErrors(const std::uint8_t* rgb);
    /// `sums` is for MoveColors.
    void ChooseIndices(Sums sums);
    void MoveColors();
    void RoundColors();

 private:
    /// The sums of a few rows, so that they fit into 32 bits; and of all before them.
    struct Sum {
        std::int64_t x = 0, y = 0, z = 0, pixels = 0;
    };

    std::uint8_t* Indices(int y) { return indices_ + std::size_t(y) * width_; }
    void BringRow(int y, const ErrorPalette& now);
    void AddSums();

    const int width_;
    const int height_;
    const WorkingSpace& space_;
    std::uint8_t* const indices_;
    Palette& palette_;
    ErrorPalette colors_;  ///< the palette that errors are of
    ErrorField field_;
    std::vector<int> changed_;  ///< places of a row
    std::array<loops::FieldSum, kMostColors> rowSums_{};
    std::array<Sum, kMostColors> sums_{};
};

void Descent::FillErrors(const std::uint8_t* rgb) {
    // Points as machine words: no number of them is negative, whichever way they are added up.
    constexpr std::uint64_t kNone = loops::kNoError * (0x0001000100010001u);
    for (int y = 0; y < height_; ++y) {
        const std::uint8_t* const indices = Indices(y);
        std::uint16_t* error = field_.Errors(y);
        for (int x = 0; x < width_; ++x, rgb += 3, error += loops::kPoint) {
            const auto wanted = std::bit_cast<std::uint64_t>(space_.FromRgb(rgb));
            std::uint64_t chosen;
            std::memcpy(&chosen, &colors_[indices[x] * loops::kPoint], sizeof chosen);
            const std::uint64_t here = kNone + chosen - InErrorUnits(wanted);
            std::memcpy(error, &here, sizeof here);
        }
    }
}

/// A row comes into reach: its errors become those of the colours as they are now.
void Descent::BringRow(int y, const ErrorPalette& now) {
    loops::Chosen().moveErrors(colors_.data(), now.data(), Indices(y), width_, field_.Errors(y));
    field_.BlurAlong(y);
}

void Descent::ChooseIndices(Sums sums) {
    constexpr int kReach = 2;
    constexpr int kMostPixelsToSum = 65536;
    const ErrorPalette now = InErrorUnits(palette_);
    const std::vector<loops::Alternatives> alternatives = AlternativesOf(palette_, now, field_);
    const int rowsToSum = std::max(kMostPixelsToSum / width_, 1);
    sums_ = {};
    for (int y = -kReach; y < height_; ++y) {
        if (y + kReach < height_) BringRow(y + kReach, now);
        if (y < 0) continue;
        loops::ChangedPixels changed{.places = changed_.data()};
        loops::Chosen().choose({width_, now.data(), alternatives.data(), field_.ownWeight(),
                                Indices(y), field_.Errors(y), field_.Field(y),
                                sums == Sums::Wanted ? rowSums_.data() : nullptr, &changed});
        field_.BlurAgain(y, {changed.places, static_cast<std::size_t>(changed.count)});
        if (y % rowsToSum == rowsToSum - 1) AddSums();
    }
    AddSums();
    colors_ = now;
}

void Descent::AddSums() {
    for (int i = 0; i < palette_.size; ++i) {
        const loops::FieldSum& from = rowSums_[i];
        Sum& to = sums_[i];
        to.x += from.x;
        to.y += from.y;
        to.z += from.z;
        to.pixels += from.pixels;
    }
    rowSums_ = {};
}

void Descent::MoveColors() {
    // White has the largest coordinates of all colours, black is the origin.
    const ColorPoint white = space_.FromRgb(255, 255, 255);
    for (int i = 0; i < palette_.size; ++i) {
        const Sum& sum = sums_[i];
        if (sum.pixels == 0) continue;
        const auto moved = [&](int from, std::int64_t total, int most) {
            return static_cast<std::int16_t>(
                std::clamp(from - field_.Step(total, sum.pixels), 0, most));
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
    Descent descent(width, height, space, settings.lambda, indices, palette);
    descent.FillErrors(rgb);
    for (int round = 1; round < settings.rounds; ++round) {
        descent.ChooseIndices(Descent::Sums::Wanted);
        descent.MoveColors();
        if (round + 1 == settings.rounds) descent.RoundColors();
    }
    descent.ChooseIndices(Descent::Sums::NotWanted);
}

}  // namespace vistrel::reduce
