// Decodes whole JPEG files.
#include "pictures/jpg/reader.h"

#include <algorithm>

#include "pictures/jpg/color.h"
#include "pictures/jpg/decoder.h"
#include "pictures/jpg/exif_orientation.h"
#include "pictures/jpg/idct/full.h"
#include "pictures/jpg/upsample.h"
#include "pictures/jpg/whole.h"

namespace vistrel::jpg {
namespace {

// Makes a plane of samples of each component.
class PlaneMaker : public BlockRowSink {
 public:
    explicit PlaneMaker(const JpgFrame& frame)
        : frame_(frame), planes_(frame.components.size()), steps_(frame.components.size()) {}

    void AddBlockRow(int index, int row, const std::int16_t* blocks) override {
        const std::size_t at = static_cast<std::size_t>(index);
        const JpgComponent& component = frame_.components[at];
        SamplePlane& plane = planes_[at];
        if (row == 0) {
            plane.stride = component.blocksAcross * 8;
            plane.samples.resize(static_cast<std::size_t>(plane.stride) *
                                 static_cast<std::size_t>(component.blocksDown) * 8);
            steps_[at] = DequantTableOf(component.quant);
        }
        std::uint8_t* to =
            plane.samples.data() + static_cast<std::ptrdiff_t>(row) * 8 * plane.stride;
        for (int column = 0; column < component.blocksAcross; ++column) {
            IdctFull(blocks + column * kBlockSize, steps_[at], to + column * 8, plane.stride);
        }
    }

    const std::vector<SamplePlane>& planes() const { return planes_; }

 private:
    const JpgFrame& frame_;
    std::vector<SamplePlane> planes_;
    std::vector<DequantTable> steps_;
};

pictures::RgbPicture MakePicture(const JpgMarkers& markers,
                                 const std::vector<SamplePlane>& planes) {
    const JpgFrame& frame = markers.frame();
    const UprightPlace place(TurningOf(markers.orientation()), frame.width, frame.height);
    pictures::RgbPicture picture;
    picture.width = place.width();
    picture.height = place.height();
    picture.pixels.resize(static_cast<std::size_t>(frame.width) *
                          static_cast<std::size_t>(frame.height) * 3);
    std::vector<Upsampler> upsamplers;
    for (std::size_t i = 0; i < planes.size(); ++i) {
        upsamplers.emplace_back(frame, frame.components[i], planes[i]);
    }
    const JpgColorKind kind{markers.Color(), markers.InksAreInverted()};
    std::vector<std::uint8_t> row(static_cast<std::size_t>(frame.width) * 3);
    for (int y = 0; y < frame.height; ++y) {
        std::array<const std::uint8_t*, 4> samples = {};
        for (std::size_t i = 0; i < upsamplers.size(); ++i) samples[i] = upsamplers[i].Row(y);
        ConvertRow(kind, samples.data(), frame.width, row.data());
        place.PutRow(row.data(), y, picture.pixels.data());
    }
    return picture;
}

std::vector<KeptFrequencies> AllFrequencies(const JpgFrame& frame) {
    return std::vector<KeptFrequencies>(frame.components.size(), KeptFrequencies::Of(8, 8));
}

// Before more than this is asked for, a look is taken whether the picture is there.
constexpr std::int64_t kAskedForAnyway = 12 * 1024 * 1024;

}  // namespace

std::int64_t BytesToReadWhole(const JpgFrame& frame) {
    std::int64_t planes = 0;
    for (const JpgComponent& component : frame.components) {
        planes += BlocksOf(component) * kBlockSize;
    }
    return planes + std::int64_t{frame.width} * frame.height * 3;
}

bool IsJpgToBeTurned(const pictures::PictureFile& file) {
    JpgMarkers markers(file);
    if (!markers.NextScan()) return false;
    const Turning turning = TurningOf(markers.orientation());
    return turning.swapSides || turning.mirrorAcross || turning.mirrorDown;
}

std::optional<pictures::RgbPicture> ReadJpg(const pictures::PictureFile& file) {
    JpgMarkers markers(file);
    if (!markers.NextScan()) return std::nullopt;
    const JpgFrame& frame = markers.frame();
    if (BytesToReadWhole(frame) > kAskedForAnyway && !HasEnough(file)) return std::nullopt;
    const std::vector<KeptFrequencies> all = AllFrequencies(frame);
    PlaneMaker maker(frame);
    if (!ReadCoefficients(file, markers, all, maker)) return std::nullopt;
    return MakePicture(markers, maker.planes());
}

}  // namespace vistrel::jpg
