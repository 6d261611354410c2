// logo-convert: makes screen files of pictures on the command line, from the sources that ship.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

#include "pictures/bmp/header.h"
#include "pictures/bmp/writer.h"
#include "pictures/convert.h"
#include "pictures/whole_file.h"

namespace vistrel::tools {
namespace {

constexpr char kUsage[] =
    "usage: logo-convert SOURCE TARGET            make a screen file of a picture\n"
    "       logo-convert --info SOURCE            print width, height and depth\n"
    "       logo-convert --rgb SOURCE OUT         write 24-bit pixels, rows from the top\n"
    "       logo-convert --repeat N SOURCE TARGET convert N times, print the median time in ms\n";

int Complain(const std::string& path, const char* what) {
    std::fprintf(stderr, "logo-convert: %s: %s\n", path.c_str(), what);
    return 1;
}

int Convert(const std::string& source, const std::string& target) {
    switch (pictures::TryConvertToLogo(source, target)) {
        case pictures::ConversionResult::Written:
            return 0;
        case pictures::ConversionResult::NotRead:
            return Complain(source, "cannot be read as the picture that its name stands for");
        case pictures::ConversionResult::NotReduced:
            return Complain(source, "there is not enough memory");
        case pictures::ConversionResult::NotWritten:
            break;
    }
    return Complain(target, "cannot be written");
}

/// As previews report it: 8 for GIF, 24 for JPG, what the header says for bitmaps.
int DepthOf(const std::string& path) {
    switch (pictures::FormatOfName(path)) {
        case pictures::PictureFormat::Gif:
            return 8;
        case pictures::PictureFormat::Jpg:
            return 24;
        case pictures::PictureFormat::Bmp:
            break;
    }
    const std::optional<std::vector<std::uint8_t>> file = pictures::ReadWholeFile(path);
    const std::optional<bmp::BmpHeader> header = file ? bmp::ReadBmpHeader(*file) : std::nullopt;
    return header ? header->bitsPerPixel : 0;
}

int PrintInfo(const std::string& source) {
    const std::optional<pictures::RgbPicture> picture = pictures::ReadPicture(source);
    if (!picture) return Complain(source, "cannot be read as the picture that its name stands for");
    std::printf("%d %d %d\n", picture->width, picture->height, DepthOf(source));
    return 0;
}

int WriteRgb(const std::string& source, const std::string& target) {
    const std::optional<pictures::RgbPicture> picture = pictures::ReadPicture(source);
    if (!picture) return Complain(source, "cannot be read as the picture that its name stands for");
    return bmp::WriteWholeFile(target, picture->pixels) ? 0 : Complain(target, "cannot be written");
}

int Repeat(int times, const std::string& source, const std::string& target) {
    std::vector<double> milliseconds;
    for (int i = 0; i < times; ++i) {
        const std::clock_t start = std::clock();
        const int status = Convert(source, target);
        if (status != 0) return status;
        milliseconds.push_back(1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    const auto middle = milliseconds.begin() + times / 2;
    std::nth_element(milliseconds.begin(), middle, milliseconds.end());
    std::printf("%.3f\n", *middle);
    return 0;
}

int Run(const std::vector<std::string>& arguments) {
    const std::size_t count = arguments.size();
    if (count == 2 && arguments[0] == "--info") return PrintInfo(arguments[1]);
    if (count == 3 && arguments[0] == "--rgb") return WriteRgb(arguments[1], arguments[2]);
    if (count == 4 && arguments[0] == "--repeat") {
        const int times = std::atoi(arguments[1].c_str());
        if (times > 0) return Repeat(times, arguments[2], arguments[3]);
    }
    if (count == 2) return Convert(arguments[0], arguments[1]);
    std::fputs(kUsage, stderr);
    return 1;
}

}  // namespace
}  // namespace vistrel::tools

int main(int count, char** arguments) {
    return vistrel::tools::Run(std::vector<std::string>(arguments + 1, arguments + count));
}
