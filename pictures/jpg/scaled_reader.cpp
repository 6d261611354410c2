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
// samples where `seen` pixels of the frame are seen. A component has `part` samples where the frame
// has `whole`.
int FrequenciesFor(int seen, int part, int whole, int target, int percent) {
    const std::int64_t wanted = std::int64_t{8} * whole * target * percent;
    const std::int64_t each = std::int64_t{100} * part * seen;
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

KeptFrequencies FrequenciesOf(const JpgFrame& frame, const JpgComponent& component, Size seen,
                              Size target) {
    const auto across = [&](int percent) {
        return FrequenciesFor(seen.width, component.across, frame.maxAcross, target.width, percent);
    };
    const auto down = [&](int percent) {
        return FrequenciesFor(seen.height, component.down, frame.maxDown, target.height, percent);
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

// What of an axis of a component is seen, from sample `first` on.
struct SeenAxis {
    int first;
    scale::ScaleAxis axis;
};

// An axis of a component of which `frequencies` a block are kept: `part` / `whole` of the frame's
// samples, of which each eight become so many. Seen are the frame's samples from `from` on, both
// times 65,536.
SeenAxis AxisOf(std::int64_t from, std::int64_t length, int part, int whole, int frequencies,
                int target) {
    const auto inSamples = [&](std::int64_t frameSamples) {
        return frameSamples * part * frequencies / (whole * 8);
    };
    SeenAxis seen{};
    seen.axis.extent65536 = inSamples(length);
    const scale::PixelSpan touched = scale::PixelsTouched(inSamples(from), seen.axis.extent65536);
    seen.first = touched.first;
    seen.axis.start65536 = inSamples(from) % 65536;
    seen.axis.samples = touched.count;
    seen.axis.target = target;
    seen.axis.spread65536 = SpreadOf(part * 2 == whole, frequencies);
    return seen;
}

// Scales each component as its rows of blocks come in.
class ComponentScalers : public BlockRowSink {
 public:
    ComponentScalers(const JpgFrame& frame, std::span<const KeptFrequencies> kept,
                     const pictures::PictureArea& area, Size target)
        : frame_(frame), kept_(kept), area_(area), target_(target), channels_(kept.size()) {}

    void AddBlockRow(int index, int row, const std::int16_t* blocks) override {
        const std::size_t at = static_cast<std::size_t>(index);
        const KeptFrequencies& kept = kept_[at];
        Channel& channel = channels_[at];
        if (row == 0) Begin(frame_.components[at], kept, channel);
        const int begin = std::max(channel.firstRow - row * kept.down, 0);
        const int end = std::min(channel.endRow - row * kept.down, kept.down);
        if (begin >= end) return;  // nothing of it is seen
        const std::size_t width = static_cast<std::size_t>(channel.blocks * kept.across);
        channel.idct->Transform(blocks + std::ptrdiff_t{channel.firstBlock} * kept.stride,
                                channel.blocks, channel.rows.data(),
                                static_cast<std::ptrdiff_t>(width));
        for (int y = begin; y < end; ++y) {
            channel.scaler->AddRow(channel.rows.data() + static_cast<std::size_t>(y) * width +
                                   channel.firstSample);
        }
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
        std::unique_ptr<ReducedIdct> idct;
        std::unique_ptr<scale::PlaneScaler> scaler;
        std::vector<std::int16_t> rows;  // of samples, from one row of blocks
        int firstBlock = 0;              // of a row, that is seen
        int blocks = 0;                  // so many are seen
        int firstSample = 0;             // that is seen of the first of these
        int firstRow = 0;                // of samples, that is seen
        int endRow = 0;
    };

    // A component's steps are known from its first scan on.
    void Begin(const JpgComponent& component, const KeptFrequencies& kept, Channel& channel) {
        const SeenAxis across = AxisOf(area_.left, area_.width, component.across, frame_.maxAcross,
                                       kept.across, target_.width);
        const SeenAxis down = AxisOf(area_.top, area_.height, component.down, frame_.maxDown,
                                     kept.down, target_.height);
        channel.idct = std::make_unique<ReducedIdct>(kept, component.quant);
        channel.scaler = std::make_unique<scale::PlaneScaler>(across.axis, down.axis);
        channel.firstBlock = across.first / kept.across;
        channel.firstSample = across.first % kept.across;
        const int lastBlock = (across.first + across.axis.samples - 1) / kept.across;
        channel.blocks = lastBlock + 1 - channel.firstBlock;
        channel.rows.resize(static_cast<std::size_t>(channel.blocks * kept.across) *
                            static_cast<std::size_t>(kept.down));
        channel.firstRow = down.first;
        channel.endRow = down.first + down.axis.samples;
    }

    const JpgFrame& frame_;
    std::span<const KeptFrequencies> kept_;
    pictures::PictureArea area_;  // of the picture as it lies in the file
    Size target_;
    std::vector<Channel> channels_;
};

// The most memory that reading a file whole may take.
constexpr std::int64_t kMostBytes = 20 * 1024 * 1024;

// True when nothing is gained by scaling components one by one: a picture that does not become
// smaller needs all frequencies, and inks make colours by multiplying, which should come before
// scaling.
bool IsBetterReadWhole(const JpgFrame& frame, Size seen, Size target) {
    const bool needsAll =
        seen.width <= target.width || seen.height <= target.height || frame.components.size() == 4;
    return needsAll && BytesToReadWhole(frame) <= kMostBytes;
}

// Inks that are too large to be read whole become colours at twice the target's size: what is lost
// by multiplying means is then too fine to be seen.
Size SizeOfColors(const JpgFrame& frame, Size seen, Size target) {
    if (frame.components.size() != 4) return target;
    return {std::min(seen.width, target.width * 2), std::min(seen.height, target.height * 2)};
}

std::vector<KeptFrequencies> FrequenciesOf(const JpgFrame& frame, Size seen, Size target) {
    std::vector<KeptFrequencies> kept;
    for (const JpgComponent& component : frame.components)
        kept.push_back(FrequenciesOf(frame, component, seen, target));
    return kept;
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

// The upright size of a picture whose first scan has been found.
pictures::PictureSize UprightSize(const JpgMarkers& markers) {
    const JpgFrame& frame = markers.frame();
    if (TurningOf(markers.orientation()).swapSides) return {frame.height, frame.width};
    return {frame.width, frame.height};
}

// A part of the picture, by markers at the file's first scan.
std::optional<pictures::RgbPicture> ReadPart(const pictures::PictureFile& file, JpgMarkers& markers,
                                             const pictures::PictureArea& area, int width,
                                             int height) {
    const JpgFrame& frame = markers.frame();
    // The part and its target as they lie in the file.
    const Turning turning = TurningOf(markers.orientation());
    const pictures::PictureArea stored = StoredArea(turning, area, frame.width, frame.height);
    const Size target = turning.swapSides ? Size{height, width} : Size{width, height};
    const Size seen{std::max(static_cast<int>(stored.width / pictures::PictureArea::kPixel), 1),
                    std::max(static_cast<int>(stored.height / pictures::PictureArea::kPixel), 1)};
    if (IsBetterReadWhole(frame, seen, target)) {
        const std::optional<pictures::RgbPicture> whole = ReadJpg(file);
        if (!whole) return std::nullopt;
        return scale::Resize(*whole, area, width, height);
    }
    const Size colors = SizeOfColors(frame, seen, target);
    const std::vector<KeptFrequencies> kept = FrequenciesOf(frame, seen, colors);
    ComponentScalers scalers(frame, kept, stored, colors);
    if (!ReadCoefficients(file, markers, kept, scalers)) return std::nullopt;
    pictures::RgbPicture picture = MakePicture(markers, scalers, colors);
    if (colors.width == target.width && colors.height == target.height) return picture;
    return scale::Resize(picture, width, height);
}

}  // namespace

std::optional<pictures::PictureSize> SizeOfJpg(const pictures::PictureFile& file) {
    JpgMarkers markers(file);
    if (!markers.NextScan()) return std::nullopt;
    return UprightSize(markers);
}

std::optional<pictures::ScaledPicture> ReadJpgScaled(const pictures::PictureFile& file, int width,
                                                     int height) {
    JpgMarkers markers(file);
    if (!pictures::IsPlausibleSize(width, height) || !markers.NextScan()) return std::nullopt;
    const pictures::PictureSize size = UprightSize(markers);
    std::optional<pictures::RgbPicture> picture = ReadPart(
        file, markers, pictures::PictureArea::WholeOf(size.width, size.height), width, height);
    if (!picture) return std::nullopt;
    return pictures::ScaledPicture{std::move(*picture), size.width, size.height};
}

std::optional<pictures::RgbPicture> ReadJpgScaled(const pictures::PictureFile& file,
                                                  const pictures::PictureArea& area, int width,
                                                  int height) {
    JpgMarkers markers(file);
    if (!pictures::IsPlausibleSize(width, height) || !markers.NextScan()) return std::nullopt;
    return ReadPart(file, markers, area, width, height);
}

}  // namespace vistrel::jpg
