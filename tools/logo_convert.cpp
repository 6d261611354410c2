// logo-convert: makes screen files of pictures on the command line, from the sources that ship.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

#include "pictures/bmp/header.h"
#include "pictures/bmp/writer.h"
#include "pictures/compose/stages.h"
#include "pictures/file.h"
#include "pictures/formats.h"
#include "pictures/read_picture.h"
#include "pictures/screen/check.h"
#include "pictures/screen/mend.h"
#include "tools/moving.h"
#include "tools/options.h"

namespace vistrel::tools {
namespace {

int Complain(const std::string& path, const char* what) {
    std::fprintf(stderr, "logo-convert: %s: %s\n", path.c_str(), what);
    return 1;
}

constexpr char kNotRead[] = "cannot be read as the picture that its name stands for";

/// True of a crop that has nothing of the picture. One that has some of it is taken so far.
bool IsOutside(const compose::Crop& crop, const pictures::PictureSize& turned) {
    return crop.left >= turned.width || crop.top >= turned.height ||
           std::int64_t{crop.left} + crop.width <= 0 || std::int64_t{crop.top} + crop.height <= 0;
}

/// Complains about a crop outside the picture; 0 when there is none.
int CheckCrop(const std::string& source, const compose::Composition& composition) {
    if (!composition.crop) return 0;
    const std::optional<pictures::PictureSize> size = compose::SizeOfPicture(source);
    if (!size) return Complain(source, kNotRead);
    const pictures::PictureSize turned = compose::SizeWhenTurned(*size, composition.orientation);
    if (!IsOutside(*composition.crop, turned)) return 0;
    const std::string what = "the crop lies outside the picture of " +
                             std::to_string(turned.width) + " x " + std::to_string(turned.height) +
                             " pixels";
    return Complain(source, what.c_str());
}

/// Complains unless `result` says that all went well.
int StatusOf(pictures::ConversionResult result, const std::string& source,
             const std::string& target) {
    switch (result) {
        case pictures::ConversionResult::Written:
            return 0;
        case pictures::ConversionResult::NotRead:
            return Complain(source, kNotRead);
        case pictures::ConversionResult::NotReduced:
            return Complain(source, "there is not enough memory");
        case pictures::ConversionResult::NotWritten:
            break;
    }
    return Complain(target, "cannot be written");
}

int Convert(const std::string& source, const std::string& target, const ConvertOptions& options) {
    return StatusOf(options.bars.empty() ? compose::MakeScreen(source, target, options.composition)
                                         : MakeScreenWithBars(source, target, options),
                    source, target);
}

/// As previews report it.
int DepthOf(const std::string& path) {
    if (const int depth = pictures::FormatOfName(path).depth) return depth;
    const std::optional<std::vector<std::uint8_t>> file = pictures::ReadWholeFile(path);
    const std::optional<bmp::BmpHeader> header = file ? bmp::ReadBmpHeader(*file) : std::nullopt;
    return header ? header->bitsPerPixel : 0;
}

int PrintInfo(const std::string& source) {
    const std::optional<pictures::RgbPicture> picture = pictures::ReadPicture(source);
    if (!picture) return Complain(source, kNotRead);
    std::printf("%d %d %d\n", picture->width, picture->height, DepthOf(source));
    return 0;
}

int WriteRgb(const std::string& source, const std::string& target) {
    const std::optional<pictures::RgbPicture> picture = pictures::ReadPicture(source);
    if (!picture) return Complain(source, kNotRead);
    return pictures::WriteWholeFile(target, picture->pixels)
               ? 0
               : Complain(target, "cannot be written");
}

int CheckScreen(const std::string& path) {
    const std::optional<std::vector<std::uint8_t>> file = pictures::ReadWholeFile(path);
    if (!file) return Complain(path, "cannot be read");
    const std::vector<screen::ScreenFault> faults = screen::FaultsOfScreen(*file);
    for (const screen::ScreenFault fault : faults)
        std::printf("%s %s\n", path.c_str(), screen::InWords(fault));
    return faults.empty() ? 0 : 1;
}

int MendScreen(const std::string& path, const std::string& target) {
    const std::optional<std::vector<std::uint8_t>> file = pictures::ReadWholeFile(path);
    if (!file) return Complain(path, "cannot be read");
    const std::optional<std::vector<std::uint8_t>> mended = screen::MendScreen(*file);
    if (!mended) return Complain(path, screen::InWords(screen::ScreenFault::NotABitmap));
    return pictures::WriteWholeFile(target, *mended) ? 0 : Complain(target, "cannot be written");
}

int Frames(int count, const std::string& screen, const std::string& out) {
    const pictures::ConversionResult result = WriteFrames(screen, out, count);
    if (result == pictures::ConversionResult::NotRead)
        return Complain(screen, "is no screen that Windows shows");
    return StatusOf(result, screen, out);
}

int Repeat(const std::string& source, const std::string& target, const ConvertOptions& options) {
    std::vector<double> milliseconds;
    for (int i = 0; i < options.repeat; ++i) {
        const std::clock_t start = std::clock();
        const int status = Convert(source, target, options);
        if (status != 0) return status;
        milliseconds.push_back(1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    const auto middle = milliseconds.begin() + options.repeat / 2;
    std::nth_element(milliseconds.begin(), middle, milliseconds.end());
    std::printf("%.3f\n", *middle);
    return 0;
}

int Misused(const std::string& complaint) {
    std::fprintf(stderr, "logo-convert: %s\nlogo-convert --help tells what it can do.\n",
                 complaint.c_str());
    return 2;
}

int Run(const ConvertOptions& options) {
    if (options.help) return std::fputs(kHelp, stdout) < 0;
    if (!options.complaint.empty()) return Misused(options.complaint);
    const std::vector<std::string>& files = options.files;
    if (options.info)
        return files.size() == 1 ? PrintInfo(files[0]) : Misused("--info wants one picture");
    if (options.check)
        return files.size() == 1 ? CheckScreen(files[0]) : Misused("--check wants one screen");
    if (files.size() != 2) return Misused("a picture and a target are wanted");
    if (options.rgb) return WriteRgb(files[0], files[1]);
    if (options.frames > 0) return Frames(options.frames, files[0], files[1]);
    if (options.mend) return MendScreen(files[0], files[1]);
    const int status = CheckCrop(files[0], options.composition);
    if (status != 0) return status;
    return options.repeat > 0 ? Repeat(files[0], files[1], options)
                              : Convert(files[0], files[1], options);
}

}  // namespace
}  // namespace vistrel::tools

int main(int count, char** arguments) {
    return vistrel::tools::Run(
        vistrel::tools::ReadOptions(std::vector<std::string>(arguments + 1, arguments + count)));
}
