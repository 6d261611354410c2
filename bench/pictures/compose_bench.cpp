// compose-bench PICTURE [once]: what each step of adjusting a picture takes beside a whole
// conversion of it, all in turn in one run. With "once" each is run once and nothing is printed,
// for a program that counts instructions; see compare_adjusting.
#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "bench/pictures/processor_time.h"
#include "bench/pictures/run_once.h"
#include "pictures/compose/stages.h"

namespace vistrel::compose {
namespace {

struct Step {
    std::string name;
    std::function<void()> run;
    std::vector<double> milliseconds = {};
};

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// A photograph that is filled, moved, lit and lettered.
compose::Composition Busy() {
    compose::Composition composition;
    composition.framing.kind = compose::FramingKind::Fill;
    composition.framing.zoom = 1200;
    composition.framing.centreX = compose::kWhole / 3;
    composition.light = {10, 15, 120, 20, false};
    compose::TextMask line;
    line.letters = {20, 300, 280, 60, std::vector<std::uint8_t>(280 * 60)};
    for (std::size_t i = 0; i < line.letters.cover.size(); ++i)
        line.letters.cover[i] = i / 8 % 4 == 0 ? 255 : 0;
    line.edge = line.letters;
    composition.text = {line};
    return composition;
}

/// Times all in turn, so that whatever else the machine does meets each of them.
void Compare(std::vector<Step>& steps) {
    constexpr int kRounds = 15;
    for (int round = 0; round < kRounds; ++round) {
        for (Step& step : steps) {
            const double begun = bench::ProcessorTime();
            step.run();
            step.milliseconds.push_back(bench::ProcessorTime() - begun);
        }
    }
    const double whole = Median(steps[0].milliseconds);
    for (const Step& step : steps) {
        const double own = Median(step.milliseconds);
        std::printf("%-16s %8.2f ms %8.3f\n", step.name.c_str(), own, own / whole);
    }
}

int Run(const std::string& source, const std::string& only) {
    const compose::Composition composition = Busy();
    compose::Composition toneAlone = composition;
    toneAlone.light.saturation = 0;
    compose::Composition bordered = composition;
    bordered.framing.kind = compose::FramingKind::Fit;
    bordered.framing.border = compose::Border::BlurredEdge;
    bordered.crop = compose::Crop{0, 0, 1 << 20, 1200};
    const auto intermediate = compose::ReadComposed(source);
    const auto framed = compose::ReadFramed(source, composition);
    if (!intermediate || !framed) {
        std::fprintf(stderr, "compose-bench: cannot read %s\n", source.c_str());
        return 1;
    }
    const pictures::RgbPicture screen = compose::Adjust(*framed, composition);
    std::vector<Step> steps = {
        // To nowhere: the disk is not what is measured.
        {"Conversion", [&] { pictures::TryConvertToLogo(source, "/dev/null/none"); }},
        {"ReadComposed", [&] { compose::ReadComposed(source); }},
        {"ReadFramed", [&] { compose::ReadFramed(source, composition); }},
        {"Frame", [&] { compose::Frame(*intermediate, composition); }},
        {"FrameBlurred", [&] { compose::Frame(*intermediate, bordered); }},
        {"FrameFinely", [&] { compose::FrameFinely(*intermediate, composition); }},
        {"Adjust", [&] { compose::Adjust(*framed, composition); }},
        {"AdjustToneAlone", [&] { compose::Adjust(*framed, toneAlone); }},
        {"Reduce", [&] { compose::Reduce(screen, reduce::Dither::On); }},
    };
    if (only.empty()) Compare(steps);
    for (const Step& step : steps)
        if (step.name == only) bench::RunOnce(step.run);
    return 0;
}

}  // namespace
}  // namespace vistrel::compose

int main(int count, char** arguments) {
    if (count < 2) return 1;
    return vistrel::compose::Run(arguments[1], count > 2 ? arguments[2] : "");
}
