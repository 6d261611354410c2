// Scaling in two passes: rows into a target row first, then a few of those along themselves. No
// more is kept of the picture between the passes than these.
#include "pictures/scale/resize.h"

#include <algorithm>
#include <utility>

#include "pictures/loops/loops.h"
#include "pictures/scale/weights.h"

namespace vistrel::scale {
namespace {

/// Fraction bits that a byte sample carries between the passes: 255 with all of them, and a half
/// more for overshooting, still fits into 16 bits.
constexpr int kFractionBits = 6;

using loops::kRowsAtOnce;

/// The axis of the pixels that a part of a picture touches.
ScaleAxis AxisOf(std::int64_t from, std::int64_t length, int target) {
    const PixelSpan span = PixelsTouched(from, length);
    ScaleAxis axis{span.count, length, target};
    axis.start65536 = from % pictures::PictureArea::kPixel;
    return axis;
}

/// kRowsAtOnce rows, `apart` samples from each other.
template <class Sample>
struct RowGroup {
    Sample* first;
    std::size_t apart;
};

/// The horizontal pass: sample i * stride of each result is target sample i, in the unit of the
/// source. Rows must be readable (any values) for kTapGroup samples after their end.
void WeighAlong(const FilterAxis& filter, RowGroup<const std::int16_t> rows,
                RowGroup<std::int16_t> results, int stride) {
    loops::Chosen().weighAlong({filter.taps.data(), static_cast<int>(filter.taps.size()),
                                filter.weights.data(), filter.shift, rows.first, rows.apart,
                                results.first, results.apart, stride});
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

/// Makes target rows of source rows.
class RgbPasses {
 public:
    RgbPasses(const pictures::PictureArea& area, int width, int height)
        : down(MakeFilterAxis(AxisOf(area.top, area.height, height))),
          rows(down.mostTaps + 1),
          across_(MakeFilterAxis(AxisOf(area.left, area.width, width))),
          sourceWidth_(PixelsTouched(area.left, area.width).count),
          apart_(std::size_t(sourceWidth_) + kTapGroup),
          mixed_(std::size_t(sourceWidth_) * 3),
          channels_(kRowsAtOnce * 3 * apart_),
          scaled_(kRowsAtOnce * std::size_t(width) * 3),
          result_{width, height, {}} {
        result_.pixels.resize(std::size_t(width) * height * 3);
    }

    bool IsComplete() const { return made_ == result_.height; }
    const FilterTaps& NextTaps() const { return down.taps[made_]; }

    /// Makes the next target row of the source rows in `rows`, which are those of NextTaps().
    void MakeNext() {
        const FilterTaps& taps = NextTaps();
        // The inner loop may look at one row more, with a weight of 0.
        rows[taps.count] = rows[0];
        loops::Chosen().mixBytes(rows.data(), down.WeightsOf(taps), taps.count, sourceWidth_ * 3,
                                 down.shift - kFractionBits, mixed_.data());
        const int inGroup = made_ % kRowsAtOnce;
        SplitChannels(mixed_.data(), sourceWidth_, apart_, &channels_[inGroup * 3 * apart_]);
        ++made_;
        if (inGroup == kRowsAtOnce - 1 || IsComplete()) FinishGroup(inGroup + 1);
    }

    pictures::RgbPicture TakeResult() { return std::move(result_); }

    const FilterAxis down;
    std::vector<const std::uint8_t*> rows;

 private:
    void FinishGroup(int count) {
        const std::size_t scaledRow = std::size_t(result_.width) * 3;
        for (int c = 0; c < 3; ++c) {
            WeighAlong(across_, {&channels_[c * apart_], 3 * apart_}, {&scaled_[c], scaledRow}, 3);
        }
        RoundToBytes(scaled_.data(), scaledRow * count,
                     &result_.pixels[scaledRow * (made_ - count)]);
    }

    const FilterAxis across_;
    const int sourceWidth_;    ///< pixels of a row that are seen
    const std::size_t apart_;  ///< samples from one channel of a row to the next
    std::vector<std::int16_t> mixed_;
    std::vector<std::int16_t> channels_;  ///< of the target rows that wait for being weighed along
    std::vector<std::int16_t> scaled_;
    pictures::RgbPicture result_;
    int made_ = 0;
};

pictures::RgbPicture ResizeArea(const std::uint8_t* rgb, std::size_t rowBytes,
                                const pictures::PictureArea& area, int width, int height) {
    const int firstRow = PixelsTouched(area.top, area.height).first;
    const int firstPixel = PixelsTouched(area.left, area.width).first;
    const std::uint8_t* const corner = rgb + rowBytes * firstRow + std::size_t(firstPixel) * 3;
    RgbPasses passes(area, width, height);
    while (!passes.IsComplete()) {
        const FilterTaps& taps = passes.NextTaps();
        for (int k = 0; k < taps.count; ++k) passes.rows[k] = corner + rowBytes * (taps.first + k);
        passes.MakeNext();
    }
    return passes.TakeResult();
}

}  // namespace

PixelSpan PixelsTouched(std::int64_t from, std::int64_t length) {
    const std::int64_t first = from / pictures::PictureArea::kPixel;
    const std::int64_t end =
        (from + length + pictures::PictureArea::kPixel - 1) / pictures::PictureArea::kPixel;
    return {static_cast<int>(first), static_cast<int>(end - first)};
}

pictures::RgbPicture Resize(const pictures::RgbPicture& source, int width, int height) {
    return Resize(source.pixels.data(), source.width, source.height, width, height);
}

pictures::RgbPicture Resize(const std::uint8_t* rgb, int sourceWidth, int sourceHeight, int width,
                            int height) {
    const std::size_t rowBytes = std::size_t(sourceWidth) * 3;
    if (width == sourceWidth && height == sourceHeight)
        return {width, height, std::vector<std::uint8_t>(rgb, rgb + rowBytes * height)};
    return ResizeArea(rgb, rowBytes, pictures::PictureArea::WholeOf(sourceWidth, sourceHeight),
                      width, height);
}

pictures::RgbPicture Resize(const pictures::RgbPicture& source, const pictures::PictureArea& area,
                            int width, int height) {
    if (area == pictures::PictureArea::WholeOf(source.width, source.height))
        return Resize(source, width, height);
    return ResizeArea(source.pixels.data(), std::size_t(source.width) * 3, area, width, height);
}

struct RgbScaler::State {
    State(const pictures::PictureArea& area, int width, int height)
        : passes(area, width, height),
          rowBytes(std::size_t(PixelsTouched(area.left, area.width).count) * 3),
          kept(rowBytes * passes.down.mostTaps) {}

    std::uint8_t* KeptRow(int y) { return &kept[rowBytes * (y % passes.down.mostTaps)]; }

    void MakeWhatIsComplete() {
        while (!passes.IsComplete()) {
            const FilterTaps& taps = passes.NextTaps();
            if (taps.first + taps.count > taken) return;
            for (int k = 0; k < taps.count; ++k) passes.rows[k] = KeptRow(taps.first + k);
            passes.MakeNext();
        }
    }

    RgbPasses passes;
    const std::size_t rowBytes;
    std::vector<std::uint8_t> kept;  ///< the last source rows, each at its number modulo mostTaps
    int taken = 0;
};

RgbScaler::RgbScaler(int sourceWidth, int sourceHeight, int width, int height)
    : RgbScaler(pictures::PictureArea::WholeOf(sourceWidth, sourceHeight), width, height) {}

RgbScaler::RgbScaler(const pictures::PictureArea& area, int width, int height)
    : state_(std::make_unique<State>(area, width, height)) {}

RgbScaler::~RgbScaler() = default;

std::uint8_t* RgbScaler::NextRow() { return state_->KeptRow(state_->taken); }

void RgbScaler::EndRow() {
    ++state_->taken;
    state_->MakeWhatIsComplete();
}

pictures::RgbPicture RgbScaler::TakePicture() { return state_->passes.TakeResult(); }

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
        loops::Chosen().mixSamples(rows.data(), down.WeightsOf(taps), taps.count, samples,
                                   down.shift, &mixed[inGroup * mixedRow]);
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

}  // namespace vistrel::scale
