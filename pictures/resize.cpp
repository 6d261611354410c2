// Scaling in two passes: rows into a target row first, then that row along itself. No more is kept
// of the picture between the passes than one row.
#include "pictures/resize.h"

#include <algorithm>

#include "pictures/resize_passes.h"
#include "pictures/resize_weights.h"

namespace vistrel {
namespace {

/// Fraction bits that a byte sample carries between the passes: 255 with all of them, and a half
/// more for overshooting, still fits into 16 bits.
constexpr int kFractionBits = 6;

ScaleAxis WholeAxis(int samples, int target) {
    return {samples, std::int64_t{samples} << 16, target};
}

/// Takes apart a row of red, green, blue triples into three rows, `apart` samples from each other.
void SplitChannels(const std::int16_t* triples, int width, std::size_t apart,
                   std::int16_t* channels) {
    for (int x = 0; x < width; ++x) {
        channels[x] = triples[3 * x];
        channels[apart + x] = triples[3 * x + 1];
        channels[2 * apart + x] = triples[3 * x + 2];
    }
}

void RoundToBytes(const std::int16_t* samples, std::size_t count, std::uint8_t* bytes) {
    constexpr int kHalf = 1 << (kFractionBits - 1);
    for (std::size_t i = 0; i < count; ++i) {
        bytes[i] =
            static_cast<std::uint8_t>(std::clamp((samples[i] + kHalf) >> kFractionBits, 0, 255));
    }
}

}  // namespace

RgbPicture Resize(const RgbPicture& source, int width, int height) {
    return Resize(source.pixels.data(), source.width, source.height, width, height);
}

RgbPicture Resize(const std::uint8_t* rgb, int sourceWidth, int sourceHeight, int width,
                  int height) {
    const std::size_t rowBytes = std::size_t(sourceWidth) * 3;
    RgbPicture result{width, height, {}};
    result.pixels.resize(std::size_t(width) * height * 3);
    if (width == sourceWidth && height == sourceHeight) {
        std::copy_n(rgb, rowBytes * height, result.pixels.begin());
        return result;
    }

    const FilterAxis across = MakeFilterAxis(WholeAxis(sourceWidth, width));
    const FilterAxis down = MakeFilterAxis(WholeAxis(sourceHeight, height));
    const std::size_t apart = std::size_t(sourceWidth) + kTapGroup;
    std::vector<const std::uint8_t*> rows(down.mostTaps);
    std::vector<std::int16_t> mixed(rowBytes);
    std::vector<std::int16_t> channels(3 * apart);
    std::vector<std::int16_t> scaled(std::size_t(width) * 3);
    std::uint8_t* target = result.pixels.data();
    for (const FilterTaps& taps : down.taps) {
        for (int k = 0; k < taps.count; ++k) rows[k] = rgb + rowBytes * (taps.first + k);
        WeighRows(rows.data(), down.WeightsOf(taps), taps.count, static_cast<int>(rowBytes),
                  down.shift - kFractionBits, mixed.data());
        SplitChannels(mixed.data(), sourceWidth, apart, channels.data());
        for (int c = 0; c < 3; ++c) WeighAlong(across, &channels[c * apart], 3, &scaled[c]);
        RoundToBytes(scaled.data(), scaled.size(), target);
        target += scaled.size();
    }
    return result;
}

struct PlaneScaler::State {
    State(const ScaleAxis& acrossAxis, const ScaleAxis& downAxis)
        : across(MakeFilterAxis(acrossAxis)),
          down(MakeFilterAxis(downAxis)),
          samples(acrossAxis.samples),
          kept(std::size_t(down.mostTaps) * samples),
          rows(down.mostTaps),
          mixed(std::size_t(samples) + kTapGroup),
          plane(std::size_t(acrossAxis.target) * downAxis.target) {}

    std::int16_t* KeptRow(int y) { return &kept[std::size_t(y % down.mostTaps) * samples]; }

    bool NextIsComplete() const {
        return nextTarget < down.taps.size() &&
               down.taps[nextTarget].first + down.taps[nextTarget].count <= added;
    }

    void MakeNextTargetRow() {
        const FilterTaps& taps = down.taps[nextTarget];
        for (int k = 0; k < taps.count; ++k) rows[k] = KeptRow(taps.first + k);
        WeighRows(rows.data(), down.WeightsOf(taps), taps.count, samples, down.shift, mixed.data());
        WeighAlong(across, mixed.data(), 1, &plane[nextTarget * across.taps.size()]);
        ++nextTarget;
    }

    const FilterAxis across;
    const FilterAxis down;
    const int samples;
    std::vector<std::int16_t> kept;  ///< the last source rows, each at its number modulo mostTaps
    std::vector<const std::int16_t*> rows;
    std::vector<std::int16_t> mixed;
    std::vector<std::int16_t> plane;
    int added = 0;
    std::size_t nextTarget = 0;
};

PlaneScaler::PlaneScaler(const ScaleAxis& across, const ScaleAxis& down)
    : state_(std::make_unique<State>(across, down)) {}

PlaneScaler::~PlaneScaler() = default;

void PlaneScaler::AddRow(const std::int16_t* row) {
    State& state = *state_;
    std::copy_n(row, state.samples, state.KeptRow(state.added));
    ++state.added;
    while (state.NextIsComplete()) state.MakeNextTargetRow();
}

const std::vector<std::int16_t>& PlaneScaler::plane() const { return state_->plane; }

}  // namespace vistrel
