// Makes red, green and blue of the components of JPEG files.
#pragma once

#include "pictures/jpg/frame.h"
#include "pictures/loops/loops.h"

namespace vistrel::jpg {

/// How a file's components are to be shown.
struct JpgColorKind {
    JpgColor color = JpgColor::Grey;
    bool inverted = false;  ///< inks: 255 stands for none, else 0 does
};

/// Converts `width` pixels: `rows` has a row of samples for each component; `rgb` takes three bytes
/// per pixel.
void ConvertRow(const JpgColorKind& kind, const std::uint8_t* const* rows, int width,
                std::uint8_t* rgb);

/// Samples with a fraction, as scaling gives them: 64 times a sample's distance from 128.
inline constexpr int kFineBits = loops::kSampleBits;

/// The same for rows of fine samples, which may overshoot the range of bytes. Inks make colours by
/// multiplying, which should be done before scaling, or at least before most of it.
void ConvertFineRow(const JpgColorKind& kind, const std::int16_t* const* rows, int width,
                    std::uint8_t* rgb);

}  // namespace vistrel::jpg
