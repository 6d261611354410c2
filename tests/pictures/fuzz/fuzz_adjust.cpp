// Any wishes for a small picture, sensible or not: each stage gives what the next one takes, and
// the screen that comes of it is whole.
#include <algorithm>
#include <cstring>

#include "pictures/bmp/writer.h"
#include "pictures/compose/stages.h"
#include "pictures/compose/text.h"
#include "pictures/file.h"
#include "tests/pictures/fuzz/memory_folder.h"

using namespace vistrel;
using namespace vistrel::compose;

namespace {

/// Takes values of any kind from the bytes, and zeros when they are used up.
class Wishes {
 public:
    Wishes(const std::uint8_t* data, std::size_t size) : data_(data), end_(data + size) {}

    int Number() {
        std::int32_t number = 0;
        const auto count = std::min<std::ptrdiff_t>(sizeof number, end_ - data_);
        std::memcpy(&number, data_, static_cast<std::size_t>(count));
        data_ += count;
        return number;
    }
    int From(int least, int most) {
        const auto count = static_cast<std::uint32_t>(most - least) + 1;
        return least + static_cast<int>(static_cast<std::uint32_t>(Number()) % count);
    }
    /// Within the limits, or now and then anything.
    int Wild(int least, int most) { return From(0, 7) ? From(least, most) : Number(); }

 private:
    const std::uint8_t* data_;
    const std::uint8_t* end_;
};

void Demand(bool sound) {
    if (!sound) std::abort();
}

TextMask TextOf(Wishes& wishes) {
    TextMask text;
    text.letters.left = wishes.Wild(-400, 400);
    text.letters.top = wishes.Wild(-400, 400);
    text.letters.width = wishes.From(0, 60);
    text.letters.height = wishes.From(0, 40);
    text.letters.cover.assign(static_cast<std::size_t>(text.letters.width) * text.letters.height,
                              static_cast<std::uint8_t>(wishes.Number()));
    switch (wishes.From(0, 2)) {
        case 1:
            text.edge = OutlineOf(text.letters);
            break;
        case 2:
            text.edge = ShadowOf(text.letters);
            break;
    }
    return text;
}

Composition CompositionOf(Wishes& wishes) {
    Composition all;
    all.orientation = {wishes.Wild(-5, 5), wishes.From(0, 1) == 1};
    if (wishes.From(0, 1)) {
        all.crop = Crop{wishes.Wild(-10, 70), wishes.Wild(-10, 70), wishes.Wild(-10, 70),
                        wishes.Wild(-10, 70)};
    }
    all.framing.kind = static_cast<FramingKind>(wishes.From(0, 2));
    all.framing.zoom = wishes.Wild(kZoomOne, kMostZoom);
    all.framing.centreX = wishes.Wild(0, kWhole);
    all.framing.centreY = wishes.Wild(0, kWhole);
    all.framing.border = static_cast<Border>(wishes.From(0, 1));
    all.light = {wishes.From(-100, 100), wishes.From(-100, 100), wishes.From(10, 500),
                 wishes.From(-100, 100), wishes.From(0, 1) == 1};
    all.dither = static_cast<reduce::Dither>(wishes.From(0, 1));
    for (int i = wishes.From(0, 2); i > 0; --i) all.text.push_back(TextOf(wishes));
    return all;
}

/// A picture of any small size.
void WritePicture(const std::string& path, Wishes& wishes) {
    const int width = wishes.From(1, 60), height = wishes.From(1, 60);
    std::vector<std::uint8_t> indices(static_cast<std::size_t>(width) * height);
    const int step = wishes.From(0, 255);
    for (std::size_t i = 0; i < indices.size(); ++i)
        indices[i] = static_cast<std::uint8_t>(i * static_cast<std::size_t>(step));
    std::vector<std::uint8_t> palette(256 * 4);
    for (std::size_t i = 0; i < palette.size(); ++i)
        palette[i] = static_cast<std::uint8_t>(i * 37 + i / 5);
    const auto file = bmp::ColormappedBmp(indices.data(), width, height, 256, palette.data());
    Demand(pictures::WriteWholeFile(path, file));
}

void DemandScreen(const Framed& framed) {
    Demand(framed.screen.width == pictures::kLogoWidth &&
           framed.screen.height == pictures::kLogoHeight);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::MemoryFolder folder;
    Wishes wishes(data, size);
    const std::string source = folder.File("source.bmp"), target = folder.File("LOGO.SYS");
    WritePicture(source, wishes);
    const Composition wished = CompositionOf(wishes);
    const auto intermediate = ReadComposed(source);
    Demand(intermediate.has_value());
    DemandScreen(Frame(*intermediate, wished));
    DemandScreen(FrameFinely(*intermediate, wished));
    Demand(MakeScreen(source, target, wished) == pictures::ConversionResult::Written);
    Demand(std::filesystem::file_size(target) == 129078);
    return 0;
}
