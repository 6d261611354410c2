// picture-bench: one step of the comparison of colour reductions a call; see compare_pictures.
#include <gd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>

#include "bench/pictures/baselines.h"
#include "bench/pictures/imagequant.h"
#include "bench/pictures/metrics.h"
#include "bench/pictures/processor_time.h"
#include "bench/pictures/whole_way.h"
#include "pictures/convert.h"
#include "pictures/read_picture.h"
#include "pictures/reduce/quantize.h"

namespace vistrel::bench {
namespace {

constexpr int kColors = 256;

[[noreturn]] void Fail(const std::string& what) {
    std::fprintf(stderr, "picture-bench: %s\n", what.c_str());
    std::exit(1);
}

MetricPicture ReadPpm(const std::string& path) {
    std::FILE* const file = std::fopen(path.c_str(), "rb");
    MetricPicture picture;
    if (file == nullptr ||
        std::fscanf(file, "P6 %d %d 255", &picture.width, &picture.height) != 2) {
        Fail(path + " is no PPM file");
    }
    std::fgetc(file);
    picture.pixels.resize(std::size_t(picture.width) * picture.height * 3);
    if (std::fread(picture.pixels.data(), 1, picture.pixels.size(), file) !=
        picture.pixels.size()) {
        Fail(path + " is cut short");
    }
    std::fclose(file);
    return picture;
}

void WritePpm(const std::string& path, const MetricPicture& picture) {
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) Fail("cannot write " + path);
    std::fprintf(file, "P6\n%d %d\n255\n", picture.width, picture.height);
    std::fwrite(picture.pixels.data(), 1, picture.pixels.size(), file);
    std::fclose(file);
}

double Lanczos3(double x) {
    x = std::abs(x);
    if (x < 1e-12) return 1;
    if (x >= 3) return 0;
    const double angle = M_PI * x;
    return 3 * std::sin(angle) * std::sin(angle / 3) / (angle * angle);
}

/// Scales triples along x and gives the
/// picture turned, so that a second call scales the other axis.
std::vector<double> ScaledAndTurned(const std::vector<double>& source, int width, int height,
                                    int target) {
    std::vector<double> result(std::size_t(target) * height * 3);
    const double scale = std::max(1.0, double(width) / target);
    for (int i = 0; i < target; ++i) {
        const double centre = (i + 0.5) * width / target;
        const int first = std::max(0, int(std::ceil(centre - 3 * scale - 0.5)));
        const int end = std::min(width, int(std::ceil(centre + 3 * scale - 0.5)));
        std::vector<double> weights;
        double sum = 0;
        for (int j = first; j < end; ++j) {
            weights.push_back(Lanczos3((j + 0.5 - centre) / scale));
            sum += weights.back();
        }
        for (int y = 0; y < height; ++y) {
            double* const to = &result[(std::size_t(i) * height + y) * 3];
            for (int j = first; j < end; ++j) {
                const double* const from = &source[(std::size_t(y) * width + j) * 3];
                for (int c = 0; c < 3; ++c) to[c] += from[c] * weights[j - first] / sum;
            }
        }
    }
    return result;
}

/// Full decoding, then Lanczos in doubles on code values, rounded.
MetricPicture Reference(const std::string& path) {
    const auto whole = pictures::ReadPicture(path);
    if (!whole) Fail("cannot read " + path);
    std::vector<double> samples(whole->pixels.begin(), whole->pixels.end());
    samples = ScaledAndTurned(samples, whole->width, whole->height, pictures::kLogoWidth);
    samples = ScaledAndTurned(samples, whole->height, pictures::kLogoWidth, pictures::kLogoHeight);
    MetricPicture picture{pictures::kLogoWidth, pictures::kLogoHeight, {}};
    for (const double sample : samples) {
        picture.pixels.push_back(std::uint8_t(std::lround(std::clamp(sample, 0.0, 255.0))));
    }
    return picture;
}

MetricPicture Scaled(const std::string& path) {
    const auto scaled =
        pictures::ReadPictureScaled(path, pictures::kLogoWidth, pictures::kLogoHeight);
    if (!scaled) Fail("cannot read " + path);
    return {pictures::kLogoWidth, pictures::kLogoHeight, scaled->picture.pixels};
}

/// A palette's entries in their places; `channels` red, green, blue.
template <class Channels>
MetricPicture Colored(const MetricPicture& size, const std::vector<std::uint8_t>& indices,
                      Channels channels) {
    MetricPicture picture{size.width, size.height, {}};
    for (const std::uint8_t index : indices) {
        for (const int value : channels(index)) picture.pixels.push_back(std::uint8_t(value));
    }
    return picture;
}

using Triple = std::array<int, 3>;
using Reduction = std::function<MetricPicture(const MetricPicture&, double& milliseconds)>;

MetricPicture ReduceOurs(const MetricPicture& picture, reduce::Dither dither,
                         double& milliseconds) {
    std::vector<std::uint8_t> indices(picture.pixels.size() / 3);
    std::vector<std::uint8_t> palette(kColors * 4);
    const double start = ProcessorTime();
    reduce::QuantizeRgb(picture.pixels.data(), picture.width, picture.height, kColors,
                        indices.data(), palette.data(), dither);
    milliseconds = ProcessorTime() - start;
    return Colored(picture, indices, [&](int i) {
        return Triple{palette[4 * i + 2], palette[4 * i + 1], palette[4 * i]};
    });
}

MetricPicture ReduceTheirs(const MetricPicture& picture, int speed, double& milliseconds) {
    const std::vector<std::uint8_t> rgba = WithAlpha(picture.pixels);
    const double start = ProcessorTime();
    const IndexedPicture reduced = ReduceByImagequant(rgba, picture.width, picture.height, speed);
    milliseconds = ProcessorTime() - start;
    return Colored(picture, reduced.indices, [&](int i) {
        const auto& color = reduced.palette[i];
        return Triple{color[0], color[1], color[2]};
    });
}

MetricPicture ReduceByGd(const MetricPicture& picture, double& milliseconds) {
    const gdImagePtr image = gdImageCreateTrueColor(picture.width, picture.height);
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const std::uint8_t* const rgb =
                &picture.pixels[(std::size_t(y) * picture.width + x) * 3];
            gdImageSetPixel(image, x, y, gdTrueColor(rgb[0], rgb[1], rgb[2]));
        }
    }
    const double start = ProcessorTime();
    gdImageTrueColorToPalette(image, 1, kColors);
    milliseconds = ProcessorTime() - start;
    std::vector<std::uint8_t> indices;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            indices.push_back(std::uint8_t(gdImageGetPixel(image, x, y)));
        }
    }
    const MetricPicture result = Colored(picture, indices, [&](int i) {
        return Triple{gdImageRed(image, i), gdImageGreen(image, i), gdImageBlue(image, i)};
    });
    gdImageDestroy(image);
    return result;
}

Reduction ReductionOf(const std::string& name) {
    using Picture = MetricPicture;
    if (name == "ours") {
        return [](const Picture& p, double& ms) { return ReduceOurs(p, reduce::Dither::On, ms); };
    }
    if (name == "ours-undithered") {
        return [](const Picture& p, double& ms) { return ReduceOurs(p, reduce::Dither::Off, ms); };
    }
    if (name == "imagequant-1") {
        return [](const Picture& p, double& ms) { return ReduceTheirs(p, 1, ms); };
    }
    if (name == "imagequant-4") {
        return [](const Picture& p, double& ms) { return ReduceTheirs(p, 4, ms); };
    }
    if (name == "gd") return ReduceByGd;
    if (name == "k-means") return [](const Picture& p, double&) { return ReduceByKMeans(p); };
    if (name == "diffusion") {
        return [](const Picture& p, double&) { return ReduceByErrorDiffusion(p); };
    }
    Fail("no reduction is called " + name);
}

int Run(const std::vector<std::string>& arguments) {
    const std::size_t count = arguments.size();
    const std::string mode = count > 0 ? arguments[0] : "";
    if (mode == "reference" && count == 3) {
        WritePpm(arguments[2], Reference(arguments[1]));
    } else if (mode == "scaled" && count == 3) {
        WritePpm(arguments[2], Scaled(arguments[1]));
    } else if (mode == "compare" && count == 3) {
        const PictureMetrics m = Compare(ReadPpm(arguments[1]), ReadPpm(arguments[2]));
        std::printf("%.4f %.6f %.6f %.4f %.5f %.4f\n", m.psnr, m.ssim, m.msSsim, m.hpsnr, m.deltaE,
                    m.ssimulacra2);
    } else if (mode == "reduce" && count == 5) {
        // The smallest of several times, after a warm-up where there are several.
        const Reduction reduce = ReductionOf(arguments[1]);
        const MetricPicture picture = ReadPpm(arguments[2]);
        double least = 0;
        for (int i = 0; i < std::atoi(arguments[4].c_str()); ++i) {
            double milliseconds = 0;
            WritePpm(arguments[3], reduce(picture, milliseconds));
            least = i < 2 ? milliseconds : std::min(least, milliseconds);
        }
        std::printf("%.3f\n", least);
    } else if (mode == "convert" && count == 4) {
        double least = 0;
        for (int i = 0; i < std::atoi(arguments[3].c_str()); ++i) {
            const double start = ProcessorTime();
            pictures::ConvertToLogo(arguments[1], arguments[2]);
            const double spent = ProcessorTime() - start;
            least = i < 2 ? spent : std::min(least, spent);
        }
        std::printf("%.3f\n", least);
    } else if (mode == "whole" && count == 4) {
        const WholeWayTimes times =
            MeasureWholeWay(arguments[1], arguments[2], std::atoi(arguments[3].c_str()));
        std::printf("%.3f %.3f %.3f %.3f %.3f\n", times.decodingOurs, times.decodingTwice,
                    times.decodingWhole, times.wholeOurs, times.wholeTheirs);
    } else {
        Fail(
            "usage: picture-bench reference|scaled SOURCE OUT.ppm\n"
            "       picture-bench compare REFERENCE.ppm CANDIDATE.ppm\n"
            "       picture-bench reduce NAME IN.ppm OUT.ppm TIMES\n"
            "       picture-bench convert SOURCE TARGET TIMES\n"
            "       picture-bench whole SOURCE.jpg TARGET TIMES");
    }
    return 0;
}

}  // namespace
}  // namespace vistrel::bench

int main(int count, char** arguments) {
    return vistrel::bench::Run(std::vector<std::string>(arguments + 1, arguments + count));
}
