// Decodes JPEG files to a small size: of each block only the frequencies that the small picture can
// show, each component scaled by itself from its own grid, and the colours made last.
#include <memory>

#include "pictures/exif_orientation.h"
#include "pictures/jpg_color.h"
#include "pictures/jpg_decoder.h"
#include "pictures/jpg_inverse_reduced.h"
#include "pictures/jpg_reader.h"
#include "pictures/resize.h"

namespace vistrel {
namespace {

struct Size {
    int width;
    int height;
};

// How many of the eight frequencies of an axis give at least `percent` hundredths of the target's
// samples. `samples` of the component are `part` of `whole` samples of the frame.
int FrequenciesFor(int frameSamples, int part, int whole, int target, int percent) {
    const std::int64_t wanted = std::int64_t{8} * whole * target * percent;
    const std::int64_t each = std::int64_t{100} * part * frameSamples;
    return static_cast<int>(std::clamp<std::int64_t>((wanted + each - 1) / each, 1, 8));
}

// A picture of half as many samples again as the target loses a tenth of a decibel. Progressive
// files come with their low frequencies first, so that there more of them cost little, and none but
// the constant terms costs next to nothing.
KeptFrequencies FrequenciesOf(const JpgFrame& frame, const JpgComponent& component, Size target) {
    constexpr int kPercent = 150, kProgressivePercent = 200, kConstantsPercent = 125;
    const auto across = [&](int percent) {
        return FrequenciesFor(frame.width, component.across, frame.maxAcross, target.width,
                              percent);
    };
    const auto down = [&](int percent) {
        return FrequenciesFor(frame.height, component.down, frame.maxDown, target.height, percent);
    };
    if (!frame.progressive) return KeptFrequencies::Of(across(kPercent), down(kPercent));
    if (across(kConstantsPercent) == 1 && down(kConstantsPercent) == 1) {
        return KeptFrequencies::Of(1, 1);
    }
    return KeptFrequencies::Of(across(kProgressivePercent), down(kProgressivePercent));
}

// An axis of a component of which `frequencies` a block are kept: `part` / `whole` of the frame's
// samples, of which each eight become so many.
ScaleAxis AxisOf(int frameSamples, int part, int whole, int frequencies, int target) {
    ScaleAxis axis;
    axis.extent65536 = (std::int64_t{frameSamples} * part * frequencies << 16) / (whole * 8);
    axis.samples = static_cast<int>((axis.extent65536 + 65535) >> 16);
    axis.target = target;
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
        std::unique_ptr<PlaneScaler> scaler;
        std::vector<std::int16_t> rows;  // of samples, from one row of blocks
        int rowsLeft = 0;
    };

    // A component's steps are known from its first scan on.
    void Begin(const JpgComponent& component, const KeptFrequencies& kept, Channel& channel) {
        const ScaleAxis across =
            AxisOf(frame_.width, component.across, frame_.maxAcross, kept.across, target_.width);
        const ScaleAxis down =
            AxisOf(frame_.height, component.down, frame_.maxDown, kept.down, target_.height);
        channel.inverse = std::make_unique<ReducedInverse>(kept, component.quant);
        channel.scaler = std::make_unique<PlaneScaler>(across, down);
        channel.rows.resize(static_cast<std::size_t>(component.blocksAcross * kept.across) *
                            static_cast<std::size_t>(kept.down));
        channel.rowsLeft = down.samples;
    }

    const JpgFrame& frame_;
    std::span<const KeptFrequencies> kept_;
    Size target_;
    std::vector<Channel> channels_;
};

RgbPicture MakePicture(const JpgMarkers& markers, const ComponentScalers& scalers, Size stored) {
    const UprightPlace place(TurningOf(markers.orientation()), stored.width, stored.height);
    RgbPicture picture;
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

std::optional<ScaledPicture> ReadJpgScaled(FileBytes file, int width, int height) {
    JpgMarkers markers(file);
    if (!IsPlausibleSize(width, height) || !markers.NextScan()) return std::nullopt;
    const JpgFrame& frame = markers.frame();
    // The target of the picture as it lies in the file.
    const bool isTurned = TurningOf(markers.orientation()).swapSides;
    const Size target = isTurned ? Size{height, width} : Size{width, height};
    std::vector<KeptFrequencies> kept;
    for (const JpgComponent& component : frame.components) {
        kept.push_back(FrequenciesOf(frame, component, target));
    }
    ComponentScalers scalers(frame, kept, target);
    if (!ReadCoefficients(file, markers, kept, scalers)) return std::nullopt;
    ScaledPicture result;
    result.picture = MakePicture(markers, scalers, target);
    result.fileWidth = isTurned ? frame.height : frame.width;
    result.fileHeight = isTurned ? frame.width : frame.height;
    return result;
}

}  // namespace vistrel
