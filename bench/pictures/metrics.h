// How near one picture is to another, by the measures that docs/picture-quality.md defines.
#pragma once

#include <cstdint>
#include <vector>

namespace vistrel::bench {

/// 24-bit pictures of one size: red, green, blue, rows from the top.
struct MetricPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;
};

struct PictureMetrics {
    double psnr = 0;         ///< dB, at most 60
    double ssim = 0;         ///< of luma
    double msSsim = 0;       ///< of luma, five scales
    double hpsnr = 0;        ///< dB after blurring in linear light, as seen from afar
    double deltaE = 0;       ///< mean CIE 1976 distance after the same blur
    double ssimulacra2 = 0;  ///< 100 is alike
};

/// Compares a picture with its reference. Both must have the same size, at least 176 x 176.
PictureMetrics Compare(const MetricPicture& reference, const MetricPicture& candidate);

}  // namespace vistrel::bench
