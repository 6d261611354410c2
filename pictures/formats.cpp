#include "pictures/formats.h"

#include <algorithm>

#include "pictures/bmp/reader.h"
#include "pictures/gif/reader.h"
#include "pictures/jpg/reader.h"
#include "pictures/screen/screen_preview.h"

namespace vistrel::pictures {
namespace {

/// A format whose pictures are read row by row needs no more than what opens its files.
template <std::unique_ptr<PictureRows> (*open)(const PictureFile& file)>
constexpr PictureFormat ReadByRows(std::array<const char*, 2> endings, int depth) {
    return {.endings = endings,
            .depth = depth,
            .read = [](const PictureFile& file) -> std::optional<RgbPicture> {
                const auto rows = open(file);
                if (!rows) return std::nullopt;
                return ReadAll(*rows);
            },
            .readScaled = [](const PictureFile& file, int width,
                             int height) -> std::optional<ScaledPicture> {
                const auto rows = open(file);
                if (!rows) return std::nullopt;
                return ReadScaled(*rows, width, height);
            },
            .readPart = [](const PictureFile& file, const PictureArea& area, int width,
                           int height) -> std::optional<RgbPicture> {
                const auto rows = open(file);
                if (!rows) return std::nullopt;
                return ReadScaled(*rows, area, width, height);
            },
            .size = [](const PictureFile& file) -> std::optional<PictureSize> {
                const auto rows = open(file);
                if (!rows) return std::nullopt;
                return PictureSize{rows->width(), rows->height()};
            }};
}

constexpr PictureFormat Bitmaps() {
    PictureFormat format = ReadByRows<bmp::OpenBmp>({".BMP", ".SYS"}, 0);
    format.size = bmp::SizeOfBmp;
    format.readQuickly = screen::PreviewOfScreen;
    return format;
}

constexpr PictureFormat kFormats[] = {
    Bitmaps(),
    ReadByRows<gif::OpenGif>({".GIF", ""}, 8),
    {.endings = {".JPG", ""},
     .depth = 24,
     .read = jpg::ReadJpg,
     .readScaled = jpg::ReadJpgScaled,
     .readPart = jpg::ReadJpgScaled,
     .size = jpg::SizeOfJpg,
     .isToBeTurned = jpg::IsJpgToBeTurned},
};

char Upper(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

/// The row of a name's ending; null when there is none.
const PictureFormat* Find(const std::string& name) {
    if (name.size() < 4) return nullptr;
    std::string ending = name.substr(name.size() - 4);
    std::transform(ending.begin(), ending.end(), ending.begin(), Upper);
    const auto row =
        std::find_if(std::begin(kFormats), std::end(kFormats), [&](const PictureFormat& format) {
            return std::find(format.endings.begin(), format.endings.end(), ending) !=
                   format.endings.end();
        });
    return row == std::end(kFormats) ? nullptr : row;
}

}  // namespace

std::span<const PictureFormat> PictureFormats() { return kFormats; }

const PictureFormat& FormatOfName(const std::string& path) {
    const PictureFormat* const row = Find(path);
    return row != nullptr ? *row : kFormats[0];
}

bool IsPictureName(const std::string& name) { return Find(name) != nullptr; }

}  // namespace vistrel::pictures
