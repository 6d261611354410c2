// An independent judge of framing: the same filter in doubles, on a part of a picture that has been
// cut out first.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "pictures/rgb_picture.h"

namespace vistrel::test {

inline double Lanczos3(double x) {
    x = std::abs(x);
    if (x < 1e-12) return 1;
    if (x >= 3) return 0;
    const double angle = std::acos(-1.0) * x;
    return 3 * std::sin(angle) * std::sin(angle / 3) / (angle * angle);
}

/// Scales triples along x and gives the picture turned, so that a second call scales the other
/// axis.
inline std::vector<double> ScaledAndTurned(const std::vector<double>& source, int width, int height,
                                           double from, double length, int target) {
    std::vector<double> result(std::size_t(target) * height * 3);
    const double scale = std::max(1.0, length / target);
    // Of the picture there is no more than the pixels that the part touches.
    const int leftmost = static_cast<int>(std::floor(from + 1e-9));
    const int beyond = std::min(width, static_cast<int>(std::ceil(from + length - 1e-9)));
    for (int i = 0; i < target; ++i) {
        const double centre = from + (i + 0.5) * length / target;
        const int first = std::max(leftmost, static_cast<int>(centre - 3 * scale - 1));
        const int end = std::min(beyond, static_cast<int>(centre + 3 * scale + 2));
        std::vector<double> weights;
        double sum = 0;
        for (int j = first; j < end; ++j) {
            weights.push_back(Lanczos3((j + 0.5 - centre) / scale));
            sum += weights.back();
        }
        for (int y = 0; y < height; ++y) {
            double* const to = &result[(std::size_t(i) * height + y) * 3];
            for (int j = first; j < end; ++j) {
                const double* const pixel = &source[(std::size_t(y) * width + j) * 3];
                for (int c = 0; c < 3; ++c) to[c] += pixel[c] * weights[j - first] / sum;
            }
        }
    }
    return result;
}

/// A part of a picture, its sides in pixels.
struct Part {
    double left, top, width, height;
};

inline RgbPicture ScaledReference(const RgbPicture& source, const Part& part, int width,
                                  int height) {
    std::vector<double> samples(source.pixels.begin(), source.pixels.end());
    samples = ScaledAndTurned(samples, source.width, source.height, part.left, part.width, width);
    samples = ScaledAndTurned(samples, source.height, width, part.top, part.height, height);
    RgbPicture picture{width, height, {}};
    for (const double sample : samples)
        picture.pixels.push_back(
            static_cast<std::uint8_t>(std::lround(std::clamp(sample, 0.0, 255.0))));
    return picture;
}

/// Decibels between two pictures of one size.
inline double Psnr(const RgbPicture& one, const RgbPicture& other) {
    double squares = 0;
    for (std::size_t i = 0; i < one.pixels.size(); ++i) {
        const double difference = one.pixels[i] - other.pixels[i];
        squares += difference * difference;
    }
    return squares == 0
               ? 99
               : 10 * std::log10(255.0 * 255.0 * static_cast<double>(one.pixels.size()) / squares);
}

}  // namespace vistrel::test
