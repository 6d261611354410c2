// The measures, on 8-bit sRGB values.
#include "bench/pictures/metrics.h"

#include <algorithm>
#include <array>

#include "bench/pictures/planes.h"
#include "bench/pictures/ssimulacra2.h"

namespace vistrel::bench {
namespace {

constexpr double kHighestPsnr = 60;

double PsnrOfSquares(double sum, double count) {
    if (sum == 0) return kHighestPsnr;
    return std::min(kHighestPsnr, 10 * std::log10(255.0 * 255.0 * count / sum));
}

double Psnr(const MetricPicture& a, const MetricPicture& b) {
    double sum = 0;
    for (std::size_t i = 0; i < a.pixels.size(); ++i) {
        const double difference = a.pixels[i] - b.pixels[i];
        sum += difference * difference;
    }
    return PsnrOfSquares(sum, static_cast<double>(a.pixels.size()));
}

Plane Luma(const MetricPicture& picture) {
    Plane plane(picture.width, picture.height);
    for (std::size_t i = 0; i < plane.samples.size(); ++i) {
        const std::uint8_t* const rgb = &picture.pixels[3 * i];
        plane.samples[i] = 0.299 * rgb[0] + 0.587 * rgb[1] + 0.114 * rgb[2];
    }
    return plane;
}

struct Similarity {
    double structure = 0;  ///< mean of the contrast and structure term
    double whole = 0;      ///< mean of that times the luminance term
};

/// SSIM after Wang et al. 2004, windows wholly inside.
Similarity SimilarityOf(const Plane& a, const Plane& b) {
    constexpr int kRadius = 5;
    constexpr double kC1 = 0.01 * 255 * 0.01 * 255;
    constexpr double kC2 = 0.03 * 255 * 0.03 * 255;
    const auto blurred = [](const Plane& plane) {
        return Blurred(plane, 1.5, kRadius, Outside::EdgeRepeated);
    };
    const Plane meanA = blurred(a);
    const Plane meanB = blurred(b);
    const Plane squareA = blurred(Product(a, a));
    const Plane squareB = blurred(Product(b, b));
    const Plane product = blurred(Product(a, b));
    Similarity sum;
    int count = 0;
    for (int y = kRadius; y < a.height - kRadius; ++y) {
        for (int x = kRadius; x < a.width - kRadius; ++x) {
            const double p = meanA.At(x, y);
            const double q = meanB.At(x, y);
            const double structure = (2 * (product.At(x, y) - p * q) + kC2) /
                                     (squareA.At(x, y) - p * p + squareB.At(x, y) - q * q + kC2);
            sum.structure += structure;
            sum.whole += structure * (2 * p * q + kC1) / (p * p + q * q + kC1);
            ++count;
        }
    }
    return {sum.structure / count, sum.whole / count};
}

/// MS-SSIM after Wang, Simoncelli and Bovik 2003.
double MultiScaleSimilarity(Plane a, Plane b) {
    constexpr std::array<double, 5> kExponents = {0.0448, 0.2856, 0.3001, 0.2363, 0.1333};
    double product = 1;
    for (std::size_t scale = 0; scale < kExponents.size(); ++scale) {
        if (scale > 0) {
            a = Halved(a);
            b = Halved(b);
        }
        const Similarity similarity = SimilarityOf(a, b);
        const bool last = scale + 1 == kExponents.size();
        const double value = last ? similarity.whole : similarity.structure;
        product *= std::pow(std::max(value, 0.0), kExponents[scale]);
    }
    return product;
}

std::array<Plane, 3> Light(const MetricPicture& picture) {
    const Plane empty(picture.width, picture.height);
    std::array<Plane, 3> light = {empty, empty, empty};
    std::array<double, 256> table;
    for (int code = 0; code < 256; ++code) table[code] = ToLinear(code);
    for (std::size_t i = 0; i < picture.pixels.size(); ++i) {
        light[i % 3].samples[i / 3] = table[picture.pixels[i]];
    }
    return light;
}

using Triple = std::array<double, 3>;

/// Linear light (sRGB primaries, D65) to CIELAB.
Triple ToLab(const Triple& light) {
    constexpr double kToXyz[3][3] = {{0.4124564, 0.3575761, 0.1804375},
                                     {0.2126729, 0.7151522, 0.0721750},
                                     {0.0193339, 0.1191920, 0.9503041}};
    constexpr Triple kWhite = {0.95047, 1.0, 1.08883};
    Triple f;
    for (int row = 0; row < 3; ++row) {
        double sum = 0;
        for (int k = 0; k < 3; ++k) sum += kToXyz[row][k] * light[k];
        const double t = sum / kWhite[row];
        f[row] = t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116;
    }
    return {116 * f[1] - 16, 500 * (f[0] - f[1]), 200 * (f[1] - f[2])};
}

/// Fills in the two measures of what is seen from afar.
void CompareBlurred(const std::array<Plane, 3>& a, const std::array<Plane, 3>& b,
                    PictureMetrics& metrics) {
    const auto blurred = [](const std::array<Plane, 3>& planes) {
        std::array<Plane, 3> result = planes;
        for (Plane& plane : result) plane = Blurred(plane, 1.5, 6, Outside::EdgeRepeated);
        return result;
    };
    const std::array<Plane, 3> first = blurred(a);
    const std::array<Plane, 3> second = blurred(b);
    const std::size_t pixels = first[0].samples.size();
    double squares = 0;
    double distances = 0;
    for (std::size_t i = 0; i < pixels; ++i) {
        Triple p;
        Triple q;
        for (int c = 0; c < 3; ++c) {
            p[c] = first[c].samples[i];
            q[c] = second[c].samples[i];
            const double difference = ToCode(p[c]) - ToCode(q[c]);
            squares += difference * difference;
        }
        const Triple labP = ToLab(p);
        const Triple labQ = ToLab(q);
        distances += std::hypot(labP[0] - labQ[0], labP[1] - labQ[1], labP[2] - labQ[2]);
    }
    metrics.hpsnr = PsnrOfSquares(squares, 3.0 * static_cast<double>(pixels));
    metrics.deltaE = distances / static_cast<double>(pixels);
}

}  // namespace

PictureMetrics Compare(const MetricPicture& reference, const MetricPicture& candidate) {
    PictureMetrics metrics;
    metrics.psnr = Psnr(reference, candidate);
    const Plane lumaR = Luma(reference);
    const Plane lumaC = Luma(candidate);
    metrics.ssim = SimilarityOf(lumaR, lumaC).whole;
    metrics.msSsim = MultiScaleSimilarity(lumaR, lumaC);
    const std::array<Plane, 3> lightR = Light(reference);
    const std::array<Plane, 3> lightC = Light(candidate);
    CompareBlurred(lightR, lightC, metrics);
    metrics.ssimulacra2 = Ssimulacra2(lightR, lightC);
    return metrics;
}

}  // namespace vistrel::bench
