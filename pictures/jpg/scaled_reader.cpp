// Decodes JPEG files to a small size: of each block only the frequencies that the small picture can
// show, each component scaled by itself from its own grid, and the colours made last.
#include <algorithm>
#include <memory>

#include "pictures/jpg/color.h"
#include "pictures/jpg/decoder.h"
#include "pictures/jpg/exif_orientation.h"
#include "pictures/jpg/idct/reduced.h"
#include "pictures/jpg/reader.h"
#include "pictures/jpg/whole.h"
#include "pictures/scale/resize.h"

namespace vistrel::jpg {
namespace {

struct Size {
    int width;
    int height;
};

// How many of the eight frequencies of an axis give at least `percent` hundredths of the target's
// samples. A component has `part` samples where the frame has `whole`.
int FrequenciesFor(int frameSamples, int part, int whole, int target, int percent) {
    const std::int64_t wanted = std::int64_t{8} * whole * target * percent;
    const std::int64_t each = std::int64_t{100} * part * frameSamples;
    const auto fewest = static_cast<int>(std::min<std::int64_t>((wanted + each - 1) / each, 8));
    // The transform of all eight is so much quicker than those of six and seven that these would
    // save nothing.
    return fewest <= kMostReduced ? std::max(fewest, 1) : 8;
}

// Half as many samples again as the target cost a tenth of a decibel of the final picture. A single
// frequency, the mean of eight samples, is a poorer filter and needs some more. Progressive files
// come with their low frequencies first, so that there more of them cost little, and none but the
// constant terms costs next to nothing.
constexpr int kPercent = 150, kProgressivePercent = 200, kSinglePercent = 160;

KeptFrequencies FrequenciesOf(const JpgFrame& frame, const JpgComponent& component, Size target) {
    const auto across = [&](int percent) {
        return FrequenciesFor(frame.width, component.across, frame.maxAcross, target.width,
                              percent);
    };
    const auto down = [&](int percent) {
        return FrequenciesFor(frame.height, component.down, frame.maxDown, target.height, percent);
    };
    const bool acrossMayBeSingle = across(kSinglePercent) == 1;
    const bool downMayBeSingle = down(kSinglePercent) == 1;
    if (acrossMayBeSingle && downMayBeSingle) return KeptFrequencies::Of(1, 1);
    const int percent = frame.progressive ? kProgressivePercent : kPercent;
    return KeptFrequencies::Of(acrossMayBeSingle ? 1 : std::max(across(percent), 2),
                               downMayBeSingle ? 1 : std::max(down(percent), 2));
}

// What the samples of an axis hand over to their neighbours so that the picture becomes like the
// whole one. A colour plane of half the samples is softened there by mixing neighbours 3 to 1,
// which a small picture from its own samples would miss: 3/32 has the same effect on all but the
// finest detail. And one sample for eight is their mean, which is a little soft: 1/24 makes good
// for it.
int SpreadOf(bool isHalf, int frequencies) {
    constexpr int kOfHalf = 65536 * 3 / 32, kOfMean = -65536 / 24;
    const int mixing = isHalf ? kOfHalf * frequencies * frequencies / 64 : 0;
    return frequencies == 1 ? mixing + kOfMean : mixing;
}

// An axis of a component of which `frequencies` a block are kept: `part` / `whole` of the frame's
// samples, of which each eight become so many.
scale::ScaleAxis AxisOf(int frameSamples, int part, int whole, int frequencies, int target) {
    scale::ScaleAxis axis;
    axis.extent65536 = (std::int64_t{frameSamples} * part * frequencies << 16) / (whole * 8);
    axis.samples = static_cast<int>((axis.extent65536 + 65535) >> 16);
    axis.target = target;
    axis.spread65536 = SpreadOf(part * 2 == whole, frequencies);
    return axis;
}

// Scales each component as its rows of blocks come in.
class ComponentScalers : public BlockRowTaker {
 public:
    ComponentScalers(const JpgFrame& frame, std::span<const KeptFrequencies> kept, Size target)
        : frame_(frame), kept_(kept), target_(target), channels_(kept.size()) {}

    void TakeBlockRow(int index, int row, const std::int16_t* blocks) override {
        const std::size_t at = static_cast<std::size_t>(index);
        const JpgComponent& component = frame_.components[at];
        const KeptFrequencies& kept = kept_[at];
        Channel& channel = channels_[at];
        if (row == 0) Begin(component, kept, channel);
        const std::size_t width = static_cast<std::size_t>(component.blocksAcross * kept.across);
        channel.inverse->Transform(blocks, component.blocksAcross, channel.rows.data(),
                                   static_cast<std::ptrdiff_t>(width));
        const int count = std::min(kept.down, channel.rowsLeft);
        for (int y = 0; y < count; ++y) {
            channel.scaler->AddRow(channel.rows.data() + static_cast<std::size_t>(y) * width);
        }
        channel.rowsLeft -= count;
    }

    // Row `y` of the target, a row of samples for each component.
    std::array<const std::int16_t*, 4> Row(int y) const {
        std::array<const std::int16_t*, 4> rows = {};
        for (std::size_t i = 0; i < channels_.size(); ++i) {
            rows[i] = channels_[i].scaler->plane().data() +
                      static_cast<std::ptrdiff_t>(y) * target_.width;
        }
        return rows;
    }

 private:
    struct Channel {
        std::unique_ptr<ReducedInverse> inverse;
        std::unique_ptr<scale::PlaneScaler> scaler;
        std::vector<std::int16_t> rows;  // of samples, from one row of blocks
        int rowsLeft = 0;
    };

    // A component's steps are known from its first scan on.
    void Begin(const JpgComponent& component, const KeptFrequencies& kept, Channel& channel) {
        const scale::ScaleAxis across =
            AxisOf(frame_.width, component.across, frame_.maxAcross, kept.across, target_.width);
        const scale::ScaleAxis down =
            AxisOf(frame_.height, component.down, frame_.maxDown, kept.down, target_.height);
        channel.inverse = std::make_unique<ReducedInverse>(kept, component.quant);
        channel.scaler = std::make_unique<scale::PlaneScaler>(across, down);
        channel.rows.resize(static_cast<std::size_t>(component.blocksAcross * kept.across) *
                            static_cast<std::size_t>(kept.down));
        channel.rowsLeft = down.samples;
    }

    const JpgFrame& frame_;
    std::span<const KeptFrequencies> kept_;
    Size target_;
    std::vector<Channel> channels_;
};

// The most memory that a file may take beside the scaled picture; a file that would take more is
// read less finely.
constexpr std::int64_t kMostBytes = 20 * 1024 * 1024;
constexpr std::int64_t kMostCoefficientBytes = 16 * 1024 * 1024;

// True when nothing is gained by scaling components one by one: a picture that does not become
// smaller needs all frequencies, and inks make colours by multiplying, which should come before
// scaling.
bool IsBetterReadWhole(const JpgFrame& frame, Size target) {
    const bool needsAll = frame.width <= target.width || frame.height <= target.height ||
                          frame.components.size() == 4;
    return needsAll && BytesToReadWhole(frame) <= kMostBytes;
}

// Inks that are too large to be read whole become colours at twice the target's size: what is lost
// by multiplying means is then too fine to be seen.
Size SizeOfColors(const JpgFrame& frame, Size target) {
    if (frame.components.size() != 4) return target;
    return {std::min(frame.width, target.width * 2), std::min(frame.height, target.height * 2)};
}

KeptFrequencies WithFewer(const KeptFrequencies& kept) {
    const auto fewer = [](int count) { return count == 8 ? kMostReduced : count - 1; };
    if (kept.across == 1 && kept.down == 1) return kept;
    return kept.across >= kept.down ? KeptFrequencies::Of(fewer(kept.across), kept.down)
                                    : KeptFrequencies::Of(kept.across, fewer(kept.down));
}

std::vector<KeptFrequencies> FrequenciesOf(const JpgFrame& frame, Size target) {
    std::vector<KeptFrequencies> kept;
    for (const JpgComponent& component : frame.components) {
        kept.push_back(FrequenciesOf(frame, component, target));
    }
    for (int i = 0; i < 2 * 8 && CoefficientBytes(frame, kept) > kMostCoefficientBytes; ++i) {
        for (KeptFrequencies& each : kept) each = WithFewer(each);
    }
    return kept;
}

std::optional<pictures::ScaledPicture> ReadWhole(pictures::FileBytes file, int width, int height) {
    const std::optional<pictures::RgbPicture> whole = ReadJpg(file);
    if (!whole) return std::nullopt;
    return pictures::ScaledPicture{scale::Resize(*whole, width, height), whole->width,
                                   whole->height};
}

pictures::RgbPicture MakePicture(const JpgMarkers& markers, const ComponentScalers& scalers,
                                 Size stored) {
    const UprightPlace place(TurningOf(markers.orientation()), stored.width, stored.height);
    pictures::RgbPicture picture;
    picture.width = place.width();
    picture.height = place.height();
    picture.pixels.resize(static_cast<std::size_t>(stored.width) *
                          static_cast<std::size_t>(stored.height) * 3);
    const JpgColorKind kind{markers.Color(), markers.InksAreInverted()};
    std::vector<std::uint8_t> row(static_cast<std::size_t>(stored.width) * 3);
    for (int y = 0; y < stored.height; ++y) {
        ConvertFineRow(kind, scalers.Row(y).data(), stored.width, row.data());
        place.PutRow(row.data(), y, picture.pixels.data());
    }
    return picture;
}

}  // namespace

std::optional<pictures::ScaledPicture> ReadJpgScaled(pictures::FileBytes file, int width,
                                                     int height) {
    JpgMarkers markers(file);
    if (!pictures::IsPlausibleSize(width, height) || !markers.NextScan()) return std::nullopt;
    const JpgFrame& frame = markers.frame();
    // The target of the picture as it lies in the file.
    const bool isTurned = TurningOf(markers.orientation()).swapSides;
    const Size target = isTurned ? Size{height, width} : Size{width, height};
    if (IsBetterReadWhole(frame, target)) return ReadWhole(file, width, height);
    const Size colors = SizeOfColors(frame, target);
    const std::vector<KeptFrequencies> kept = FrequenciesOf(frame, colors);
    ComponentScalers scalers(frame, kept, colors);
    if (!ReadCoefficients(file, markers, kept, scalers)) return std::nullopt;
    pictures::ScaledPicture result;
    result.picture = MakePicture(markers, scalers, colors);
    if (colors.width != target.width || colors.height != target.height) {
        result.picture = scale::Resize(result.picture, width, height);
    }
    result.fileWidth = isTurned ? frame.height : frame.width;
    result.fileHeight = isTurned ? frame.width : frame.height;
    return result;
}

}  // namespace vistrel::jpg
