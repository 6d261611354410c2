// Blurring and halving of planes.
#include "bench/pictures/planes.h"

#include <algorithm>

namespace vistrel::bench {
namespace {

std::vector<double> Gaussian(double sigma, int radius) {
    std::vector<double> weights;
    double sum = 0;
    for (int d = -radius; d <= radius; ++d) {
        weights.push_back(std::exp(-d * d / (2 * sigma * sigma)));
        sum += weights.back();
    }
    for (double& weight : weights) weight /= sum;
    return weights;
}

/// Filters along x; the result is turned, so that a second call filters the other way.
Plane BlurredAndTurned(const Plane& plane, const std::vector<double>& weights, Outside outside) {
    const int radius = static_cast<int>(weights.size()) / 2;
    Plane result(plane.height, plane.width);
    std::vector<double> row(plane.width + 2 * radius);
    for (int y = 0; y < plane.height; ++y) {
        for (int x = -radius; x < plane.width + radius; ++x) {
            const bool inside = x >= 0 && x < plane.width;
            row[x + radius] = inside || outside == Outside::EdgeRepeated
                                  ? plane.At(std::clamp(x, 0, plane.width - 1), y)
                                  : 0;
        }
        for (int x = 0; x < plane.width; ++x) {
            double sum = 0;
            for (std::size_t k = 0; k < weights.size(); ++k) sum += weights[k] * row[x + k];
            result.At(y, x) = sum;
        }
    }
    return result;
}

}  // namespace

Plane Blurred(const Plane& plane, double sigma, int radius, Outside outside) {
    const std::vector<double> weights = Gaussian(sigma, radius);
    return BlurredAndTurned(BlurredAndTurned(plane, weights, outside), weights, outside);
}

Plane Halved(const Plane& plane) {
    Plane result((plane.width + 1) / 2, (plane.height + 1) / 2);
    for (int y = 0; y < result.height; ++y) {
        const int below = std::min(2 * y + 1, plane.height - 1);
        for (int x = 0; x < result.width; ++x) {
            const int right = std::min(2 * x + 1, plane.width - 1);
            result.At(x, y) = (plane.At(2 * x, 2 * y) + plane.At(right, 2 * y) +
                               plane.At(2 * x, below) + plane.At(right, below)) /
                              4;
        }
    }
    return result;
}

}  // namespace vistrel::bench
