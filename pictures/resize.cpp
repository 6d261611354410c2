// Scaling in two passes: rows into a target row first, then a few of those along themselves. No
// more is kept of the picture between the passes than these.
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
    std::vector<const std::uint8_t*> rows(down.mostTaps + 1, rgb);
    std::vector<std::int16_t> mixed(rowBytes);
    std::vector<std::int16_t> channels(kRowsAtOnce * 3 * apart);
    const std::size_t scaledRow = std::size_t(width) * 3;
    std::vector<std::int16_t> scaled(kRowsAtOnce * scaledRow);
    for (int y = 0; y < height; y += kRowsAtOnce) {
        const int count = std::min(kRowsAtOnce, height - y);
        for (int i = 0; i < count; ++i) {
            const FilterTaps& taps = down.taps[y + i];
            for (int k = 0; k < taps.count; ++k) rows[k] = rgb + rowBytes * (taps.first + k);
            WeighRows(rows.data(), down.WeightsOf(taps), taps.count, static_cast<int>(rowBytes),
                      down.shift - kFractionBits, mixed.data());
            SplitChannels(mixed.data(), sourceWidth, apart, &channels[i * 3 * apart]);
        }
        for (int c = 0; c < 3; ++c) {
            WeighAlong(across, {&channels[c * apart], 3 * apart}, {&scaled[c], scaledRow}, 3);
        }
        RoundToBytes(scaled.data(), scaledRow * count, &result.pixels[scaledRow * y]);
    }
    return result;
}

struct PlaneScaler::State {
    State(const ScaleAxis& acrossAxis, const ScaleAxis& downAxis)
        : across(MakeFilterAxis(acrossAxis)),
          down(MakeFilterAxis(downAxis)),
          samples(acrossAxis.samples),
          kept(std::size_t(down.mostTaps) * samples),
          rows(down.mostTaps + 1, kept.data()),
          mixedRow(std::size_t(samples) + kTapGroup),
          mixed(kRowsAtOnce * mixedRow),
          plane(std::size_t(acrossAxis.target) * RoundedUp(downAxis.target)) {}

    static int RoundedUp(int rows) { return (rows + kRowsAtOnce - 1) / kRowsAtOnce * kRowsAtOnce; }

    std::int16_t* KeptRow(int y) { return &kept[std::size_t(y % down.mostTaps) * samples]; }

    bool NextIsComplete() const {
        return nextTarget < down.taps.size() &&
               down.taps[nextTarget].first + down.taps[nextTarget].count <= added;
    }

    void MakeNextTargetRow() {
        const FilterTaps& taps = down.taps[nextTarget];
        for (int k = 0; k < taps.count; ++k) rows[k] = KeptRow(taps.first + k);
        const std::size_t inGroup = nextTarget % kRowsAtOnce;
        WeighRows(rows.data(), down.WeightsOf(taps), taps.count, samples, down.shift,
                  &mixed[inGroup * mixedRow]);
        ++nextTarget;
        const bool isLast = nextTarget == down.taps.size();
        if (inGroup < kRowsAtOnce - 1 && !isLast) return;
        const std::size_t width = across.taps.size();
        WeighAlong(across, {mixed.data(), mixedRow},
                   {&plane[(nextTarget - 1 - inGroup) * width], width}, 1);
        if (isLast) plane.resize(nextTarget * width);
    }

    const FilterAxis across;
    const FilterAxis down;
    const int samples;
    std::vector<std::int16_t> kept;  ///< the last source rows, each at its number modulo mostTaps
    std::vector<const std::int16_t*> rows;
    const std::size_t mixedRow;       ///< length of a row of `mixed`
    std::vector<std::int16_t> mixed;  ///< the target rows that wait for being weighed along
    std::vector<std::int16_t> plane;  ///< whole groups of target rows until complete
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
