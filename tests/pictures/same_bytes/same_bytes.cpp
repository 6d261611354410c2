// Every build makes the same bytes of a picture, by whatever loops: this program runs in each of
// them and compares the digests of what it converts with those of digests.txt. Where they differ,
// it leaves what it found in digests_found.txt: after a change of the conversion that is to be the
// new digests.txt.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>

#include "pictures/bmp/writer.h"
#include "pictures/compose/stages.h"
#include "pictures/convert.h"
#include "pictures/file.h"
#include "pictures/reduce/quantize.h"
#include "pictures/scale/resize.h"
#include "tests/pictures/screen/moving_kinds.h"
#include "tests/support/picture_files/all_loops.h"
#include "tests/support/picture_files/bmp_file.h"
#include "tests/support/picture_files/gif_file.h"
#include "tests/support/picture_files/md5.h"

namespace vistrel::test {

using namespace bmp;
using namespace pictures;
using namespace reduce;
using namespace scale;

namespace {

/// In the folder of the recorded files; beside the program where that runs on another system.
std::string PathOfRecorded(const char* name) {
#ifdef RECORDED_FOLDER
    return std::string(RECORDED_FOLDER "/") + name;
#else
    return name;
#endif
}

/// What conversion makes of a file's bytes under a name of the given ending.
std::string DigestOfConversion(const Bytes& source, const char* ending) {
    const std::string from = std::string("same_bytes_source") + ending;
    const std::string to = "same_bytes_target.sys";
    EXPECT_TRUE(WriteWholeFile(from, source));
    EXPECT_EQ(TryConvertToLogo(from, to), ConversionResult::Written);
    const auto file = ReadWholeFile(to);
    std::remove(from.c_str());
    std::remove(to.c_str());
    return file ? Md5(*file) : "";
}

std::string DigestOfPhoto(const char* name) {
    const auto file = ReadWholeFile(PathOfRecorded(name));
    EXPECT_TRUE(file.has_value()) << PathOfRecorded(name);
    return file ? DigestOfConversion(*file, ".jpg") : "";
}

std::string DigestOfBitmap(int width, int height) {
    const RgbPicture picture = MakePicture(width, height);
    BmpFile file;
    file.width = width;
    file.height = height;
    file.pixels = PackRgb24(picture);
    return DigestOfConversion(file.Encode(), ".bmp");
}

std::string DigestOfReduction(int colors, Dither dither) {
    const RgbPicture picture = MakePicture(123, 77);
    Bytes result(123 * 77 + std::size_t(colors) * 4);
    EXPECT_TRUE(QuantizeRgb(picture.pixels.data(), 123, 77, colors, result.data(),
                            result.data() + 123 * 77, dither));
    return Md5(result);
}

std::string DigestOfResize(int width, int height) {
    return Md5(Resize(MakePicture(451, 333), width, height).pixels);
}

std::string Line(const char* what, const std::string& digest) {
    return digest + "  " + what + "\n";
}

/// A part of a photograph that does not begin or end at a pixel, turned and lit.
std::string DigestOfFramed(const char* name, compose::FramingKind kind) {
    compose::Composition composition;
    composition.orientation = {1, true};
    composition.framing.kind = kind;
    composition.framing.zoom = 1300;
    composition.framing.centreX = compose::kWhole / 3;
    composition.framing.border = compose::Border::BlurredEdge;
    composition.light = {5, 20, 130, 40, true};
    const auto framed = compose::ReadFramed(PathOfRecorded(name), composition);
    EXPECT_TRUE(framed.has_value()) << PathOfRecorded(name);
    return framed ? Md5(compose::Adjust(*framed, composition).pixels) : "";
}

/// Screens with every kind of movement, over one of more colours than are left.
std::string DigestOfMoving() {
    screen::IndexedScreen base{320, 400, MakeIndices(320, 400, 250), {}, 0};
    const std::vector<RgbColor> palette = MakePalette(256);
    std::copy(palette.begin(), palette.end(), base.palette.begin());
    Bytes files;
    for (const Kind& kind : Kinds()) {
        const bool isFilled = kind.pattern == screen::Pattern::Plasma;
        const auto document =
            MakeMoving(kind, base, isFilled ? std::optional(MakePicture(320, 400)) : std::nullopt);
        const auto made = screen::MakeMovingScreen(document);
        EXPECT_TRUE(made.has_value()) << kind.name;
        if (!made) continue;
        const Bytes file = screen::ScreenFile(*made);
        files.insert(files.end(), file.begin(), file.end());
    }
    return Md5(files);
}

std::string AllDigests() {
    return Line("bitmap larger than a screen", DigestOfBitmap(700, 900)) +
           Line("bitmap of a screen's size", DigestOfBitmap(320, 400)) +
           Line("bitmap smaller than a screen", DigestOfBitmap(61, 89)) +
           Line("drawing, 256 colours",
                DigestOfConversion(MakeGif(640, 480, 256).Encode(), ".gif")) +
           Line("drawing, 4 colours", DigestOfConversion(MakeGif(333, 200, 4).Encode(), ".gif")) +
           Line("photograph, baseline", DigestOfPhoto("baseline.jpg")) +
           Line("photograph, progressive", DigestOfPhoto("progressive.jpg")) +
           Line("reduction to 2 colours", DigestOfReduction(2, Dither::On)) +
           Line("reduction to 31 colours", DigestOfReduction(31, Dither::On)) +
           Line("reduction without dithering", DigestOfReduction(256, Dither::Off)) +
           Line("resize for a preview", DigestOfResize(160, 120)) +
           Line("resize to more pixels", DigestOfResize(640, 401)) +
           Line("reduction with much dithering", DigestOfReduction(256, Dither::Strong)) +
           Line("photograph, filled and lit",
                DigestOfFramed("baseline.jpg", compose::FramingKind::Fill)) +
           Line("photograph, fitted and lit",
                DigestOfFramed("progressive.jpg", compose::FramingKind::Fit)) +
           Line("screens that move", DigestOfMoving());
}

/// Each kind of innermost loops that this machine can run, the others being skipped.
class Conversion : public testing::TestWithParam<loops::Kind> {};

TEST_P(Conversion, GivesTheRecordedBytesInThisBuild) {
    if (!loops::CanRun(GetParam())) GTEST_SKIP() << "this machine cannot run these loops";
    loops::Force(GetParam());
    const std::string found = AllDigests();
    const auto file = ReadWholeFile(PathOfRecorded("digests.txt"));
    ASSERT_TRUE(file.has_value());
    const std::string recorded(file->begin(), file->end());
    EXPECT_EQ(found, recorded);
    if (found != recorded) WriteWholeFile("digests_found.txt", Bytes(found.begin(), found.end()));
}

INSTANTIATE_TEST_SUITE_P(ByLoops, Conversion, kAllLoops, NameOfLoops);

}  // namespace
}  // namespace vistrel::test
