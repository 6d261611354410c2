// The measure as Jon Sneyers published it in version 2.1 (April 2023): three kinds of error maps in
// the XYB colour space, at six scales, each as its mean and as its 4-norm.
#include "bench/pictures/ssimulacra2.h"

#include <algorithm>

namespace vistrel::bench {
namespace {

constexpr int kScales = 6;

/// What each sum counts, in the order channel, scale, norm; in a row: structure, edges that the
/// reference lacks, edges that the candidate lacks. The figures are the published fit.
constexpr double kWeights[3 * kScales * 2][3] = {
    {0, 0.0007376606707406586, 0},
    {0, 0.0007793481682867309, 0},
    {0, 0.0004371155730107379, 0},
    {1.1041726426657346, 0.00066284834129271, 0.00015231632783718752},
    {0, 0.0016406437456599754, 0},
    {1.8422455520539298, 11.441172603757666, 0},
    {0.0007989109436015163, 0.000176816438078653, 0},
    {1.8787594979546387, 10.94906990605142, 0},
    {0.0007289346991508072, 0.9677937080626833, 0},
    {0.00014003424285435884, 0.9981766977854967, 0.00031949755934435053},
    {0.0004550992113792063, 0, 0},
    {0.0013648766163243398, 0, 0},
    {0, 0, 0},
    {7.466890328078848, 0, 17.445833984131262},
    {0.0006235601634041466, 0, 0},
    {6.683678146179332, 0.00037724407979611296, 1.027889937768264},
    {225.20515300849274, 0, 0},
    {19.213238186143016, 0.0011401524586618361, 0.001237755635509985},
    {176.39317598450694, 0, 0},
    {24.43300999870476, 0.28520802612117757, 0.0004485436923833408},
    {0, 0, 0},
    {34.77906344483772, 44.835625328877896, 0},
    {0, 0, 0},
    {0, 0, 0},
    {0, 0.0008680556573291698, 0},
    {0, 0, 0},
    {0, 0.0005313191874358747, 0},
    {0.00016533814161379112, 0, 0},
    {0, 0, 0},
    {0.0004179171803251336, 0.0017290828234722833, 0},
    {0.0020827005846636437, 0, 0},
    {8.826982764996862, 23.19243343998926, 0},
    {95.1080498811086, 0.9863978034400682, 0.9834382792465353},
    {0.0012286405048278493, 171.2667255897307, 0.9807858872435379},
    {0, 0, 0},
    {0.0005130064588990679, 0, 0.00010854057858411537},
};

/// Linear light to the X, Y and B of the eye's model, each brought to about 0..1.
std::array<Plane, 3> ToXyb(const std::array<Plane, 3>& light) {
    constexpr double kBias = 0.0037930732552754493;
    constexpr double kMix[3][3] = {{0.30, 0.622, 0.078},
                                   {0.23, 0.692, 0.078},
                                   {0.24342268924547819, 0.20476744424496821, 0.55180986650955360}};
    std::array<Plane, 3> result = light;
    for (std::size_t i = 0; i < light[0].samples.size(); ++i) {
        double cone[3];
        for (int c = 0; c < 3; ++c) {
            double mixed = kBias;
            for (int k = 0; k < 3; ++k) mixed += kMix[c][k] * light[k].samples[i];
            cone[c] = std::cbrt(std::max(mixed, 0.0)) - std::cbrt(kBias);
        }
        const double y = (cone[0] + cone[1]) / 2;
        result[0].samples[i] = (cone[0] - cone[1]) / 2 * 14 + 0.42;
        result[1].samples[i] = y + 0.01;
        result[2].samples[i] = cone[2] - y + 0.55;
    }
    return result;
}

/// The mean and the 4-norm of an error map.
struct Norms {
    double sums[2] = {0, 0};
    double count = 0;

    void Add(double error) {
        sums[0] += error;
        sums[1] += error * error * error * error;
        ++count;
    }
    double Value(int norm) const {
        const double mean = sums[norm] / count;
        return norm == 0 ? mean : std::sqrt(std::sqrt(mean));
    }
};

Plane Smoothed(const Plane& plane) { return Blurred(plane, 1.5, 5, Outside::Zero); }

/// The three error maps' norms of one channel at one scale.
std::array<Norms, 3> Errors(const Plane& reference, const Plane& candidate) {
    constexpr double kSteady = 0.0009;
    const Plane meanR = Smoothed(reference);
    const Plane meanC = Smoothed(candidate);
    const Plane squareR = Smoothed(Product(reference, reference));
    const Plane squareC = Smoothed(Product(candidate, candidate));
    const Plane product = Smoothed(Product(reference, candidate));
    std::array<Norms, 3> norms;
    for (std::size_t i = 0; i < reference.samples.size(); ++i) {
        const double r = meanR.samples[i];
        const double c = meanC.samples[i];
        const double luma = 1 - (r - c) * (r - c);
        const double shared = 2 * (product.samples[i] - r * c) + kSteady;
        const double spread = squareR.samples[i] - r * r + squareC.samples[i] - c * c + kSteady;
        norms[0].Add(std::max(0.0, 1 - luma * shared / spread));
        const double edges =
            (1 + std::abs(candidate.samples[i] - c)) / (1 + std::abs(reference.samples[i] - r)) - 1;
        norms[1].Add(std::max(edges, 0.0));
        norms[2].Add(std::max(-edges, 0.0));
    }
    return norms;
}

}  // namespace

double Ssimulacra2(std::array<Plane, 3> reference, std::array<Plane, 3> candidate) {
    double sum = 0;
    for (int scale = 0; scale < kScales; ++scale) {
        if (scale > 0) {
            for (Plane& plane : reference) plane = Halved(plane);
            for (Plane& plane : candidate) plane = Halved(plane);
        }
        const std::array<Plane, 3> r = ToXyb(reference);
        const std::array<Plane, 3> c = ToXyb(candidate);
        for (int channel = 0; channel < 3; ++channel) {
            const std::array<Norms, 3> errors = Errors(r[channel], c[channel]);
            for (int norm = 0; norm < 2; ++norm) {
                const double* const weights = kWeights[(channel * kScales + scale) * 2 + norm];
                for (int map = 0; map < 3; ++map) sum += weights[map] * errors[map].Value(norm);
            }
        }
    }
    const double s = sum * 0.9562382616834844;
    const double fitted =
        2.326765642916932 * s - 0.020884521182843837 * s * s + 6.248496625763138e-05 * s * s * s;
    return fitted > 0 ? 100 - 10 * std::pow(fitted, 0.6276336467831387) : 100;
}

}  // namespace vistrel::bench
