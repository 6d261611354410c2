// Scales pictures: Lanczos with a support that widens when shrinking, in integers.
#pragma once

#include <memory>

#include "pictures/rgb_picture.h"

namespace vistrel::scale {

/// Scales `source` to `width` x `height` pixels (both 1 to 32,767). The picture is stretched: its
/// aspect ratio is not kept. The result is the same on every machine.
pictures::RgbPicture Resize(const pictures::RgbPicture& source, int width, int height);

/// The same for pixels that lie elsewhere: `rgb` holds sourceWidth * sourceHeight * 3 bytes.
pictures::RgbPicture Resize(const std::uint8_t* rgb, int sourceWidth, int sourceHeight, int width,
                            int height);

/// The same for a part of a picture, which must lie within it. Of pixels that it does not touch
/// nothing is seen; a pixel that it touches is part of its edge.
pictures::RgbPicture Resize(const pictures::RgbPicture& source, const pictures::PictureArea& area,
                            int width, int height);

/// The pixels of an axis that a part of it touches, `from` and `length` in 1/65,536 of them.
struct PixelSpan {
    int first = 0;
    int count = 0;
};
PixelSpan PixelsTouched(std::int64_t from, std::int64_t length);

/// Scales a picture that comes row by row, keeping only as many rows as the filter reaches over.
/// The result is that of Resize.
class RgbScaler {
 public:
    RgbScaler(int sourceWidth, int sourceHeight, int width, int height);

    /// For a part of a picture: of the source, only the rows and pixels that it touches are taken.
    RgbScaler(const pictures::PictureArea& area, int width, int height);
    ~RgbScaler();
    RgbScaler(const RgbScaler&) = delete;
    RgbScaler& operator=(const RgbScaler&) = delete;

    /// Where to write the next source row, from the top: sourceWidth pixels of 3 bytes.
    std::uint8_t* NextRow();

    /// Takes the row that was written there.
    void EndRow();

    /// The finished picture: to be called once, when all source rows have been taken.
    pictures::RgbPicture TakePicture();

 private:
    struct State;
    std::unique_ptr<State> state_;
};

/// One axis of a scaling. Target sample i covers source positions start + (i*extent/target ..
/// (i+1)*extent/target). The extent may begin and end within samples, as for the colour planes of a
/// JPEG, whose last sample may lie half outside the picture.
struct ScaleAxis {
    int samples = 0;               ///< number of source samples
    std::int64_t extent65536 = 0;  ///< how many of them the picture covers, times 65,536
    int target = 0;                ///< number of target samples
    /// What each sample hands over to each of its two neighbours beforehand, times 65,536: above 0
    /// the picture is softened by it, below 0 sharpened.
    int spread65536 = 0;
    /// Where within the first sample the extent begins, times 65,536.
    std::int64_t start65536 = 0;
};

/// Scales one plane of 16-bit samples (any range within -16,384..16,383) that is handed over row by
/// row, keeping only as many rows as the filter reaches over. Results are rounded to whole sample
/// units, so samples should carry some bits of fraction.
class PlaneScaler {
 public:
    PlaneScaler(const ScaleAxis& across, const ScaleAxis& down);
    ~PlaneScaler();
    PlaneScaler(const PlaneScaler&) = delete;
    PlaneScaler& operator=(const PlaneScaler&) = delete;

    /// Takes the next source row, from the top, of across.samples samples. Rows after the
    /// down.samples-th are ignored.
    void AddRow(const std::int16_t* row);

    /// The finished plane, target rows of target samples from the top: valid when all source rows
    /// have been added. Values may overshoot the source's range a little.
    const std::vector<std::int16_t>& plane() const;

 private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace vistrel::scale
