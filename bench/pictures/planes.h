// Planes of floating-point samples, and the little arithmetic that picture metrics need.
#pragma once

#include <cmath>
#include <vector>

namespace vistrel::bench {

struct Plane {
    int width = 0;
    int height = 0;
    std::vector<double> samples;

    Plane(int width, int height) : width(width), height(height), samples(width * height) {}
    double& At(int x, int y) { return samples[y * width + x]; }
    double At(int x, int y) const { return samples[y * width + x]; }
};

/// What a blur takes for samples outside the plane.
enum class Outside { Zero, EdgeRepeated };

/// A normalised Gaussian cut at `radius`, first along and then across.
Plane Blurred(const Plane& plane, double sigma, int radius, Outside outside);

/// Means of 2 x 2 samples; where `plane` has an odd side, its last samples count twice.
Plane Halved(const Plane& plane);

/// A sample of both planes at a time through `operation`.
template <class Operation>
Plane Combined(const Plane& a, const Plane& b, Operation operation) {
    Plane result(a.width, a.height);
    for (std::size_t i = 0; i < a.samples.size(); ++i) {
        result.samples[i] = operation(a.samples[i], b.samples[i]);
    }
    return result;
}

inline Plane Product(const Plane& a, const Plane& b) {
    return Combined(a, b, [](double x, double y) { return x * y; });
}

/// An sRGB code value of 0..255 as linear light of 0..1, and back.
inline double ToLinear(double code) {
    const double v = code / 255;
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}
inline double ToCode(double light) {
    return 255 * (light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055);
}

}  // namespace vistrel::bench
