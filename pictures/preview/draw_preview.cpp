#include "pictures/preview/draw_preview.h"

#include <array>
#include <cstdio>
#include <optional>

#include "controls/display_palette.h"
#include "pictures/convert.h"
#include "pictures/little_endian.h"
#include "pictures/preview/draw_rgb.h"
#include "platform/standard_picture.h"

namespace vistrel::preview {
namespace {

constexpr std::int16_t kGifDepth = 8;
constexpr std::int16_t kJpgDepth = 24;

void DrawOver(controls::PictureBox& box, const std::uint8_t* rgb, int width, int height) {
    ImgDLLDrawRGB(box.Canvas(), rgb, width, height, 0, 0, box.ScaleWidth(), box.ScaleHeight(), 0);
    box.Keep();
}

/// Draws a picture scaled straight to the box: nobody here needs all of it. Its own size; empty
/// when it cannot be read.
std::optional<controls::Size> DrawScaled(const std::string& path, controls::PictureBox& target) {
    const auto scaled =
        pictures::ReadPicturePreview(path, target.ScaleWidth(), target.ScaleHeight());
    if (!scaled) {
        target.Clear();
        return std::nullopt;
    }
    DrawOver(target, scaled->picture.pixels.data(), scaled->picture.width, scaled->picture.height);
    return controls::Size{scaled->fileWidth, scaled->fileHeight};
}

bool ShowByLoader(const std::string& path, controls::PictureBox& box) {
    platform::StandardPicture standard;
    if (!platform::LoadStandardPicture(path, standard)) return false;
    box.SetScaleSize({standard.width, standard.height});
    DrawOver(box, standard.pixels.data(), standard.width, standard.height);
    return true;
}

bool ShowByReaders(const std::string& path, controls::PictureBox& box) {
    const auto picture = pictures::ReadPicture(path);
    if (!picture) return false;
    box.SetScaleSize({picture->width, picture->height});
    DrawOver(box, picture->pixels.data(), picture->width, picture->height);
    return true;
}

using HeaderBytes = std::array<std::uint8_t, 30>;

std::optional<HeaderBytes> ReadHeaderBytes(const std::string& path) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (!file) return std::nullopt;
    HeaderBytes header;
    const std::size_t size = std::fread(header.data(), 1, header.size(), file);
    std::fclose(file);
    if (size < header.size()) return std::nullopt;
    return header;
}

/// An OS/2 1.x header has its numbers elsewhere: where the file has one, they are taken from there.
/// Unless they are a screen's: the system could not show such a file, and nobody is to take it for
/// a finished screen.
void ReadOs2Header(const std::string& path, std::int32_t& width, std::int32_t& height,
                   std::int16_t& depth) {
    constexpr std::uint32_t kOs2HeaderSize = 12;
    const auto header = ReadHeaderBytes(path);
    if (!header || pictures::DoubleWord(*header, 14) != kOs2HeaderSize) return;
    const std::uint32_t across = pictures::Word(*header, 18);
    const std::uint32_t down = pictures::Word(*header, 20);
    const std::uint32_t bits = pictures::Word(*header, 24);
    if (across == pictures::kLogoWidth && down == pictures::kLogoHeight && bits == 8) return;
    width = static_cast<std::int32_t>(across);
    height = static_cast<std::int32_t>(down);
    depth = static_cast<std::int16_t>(bits);
}

}  // namespace

void ReadBitmapHeader(const std::string& path, std::int32_t& width, std::int32_t& height,
                      std::int16_t& depth) {
    const auto header = ReadHeaderBytes(path);
    if (!header) return;
    width = static_cast<std::int32_t>(pictures::DoubleWord(*header, 18));
    height = static_cast<std::int32_t>(pictures::DoubleWord(*header, 22));
    depth = static_cast<std::int16_t>(pictures::Word(*header, 28));
}

void DrawPreview(const std::string& path, controls::PictureBox& target, std::int32_t& width,
                 std::int32_t& height, std::int16_t& depth) {
    const auto size = DrawScaled(path, target);
    const pictures::PictureFormat format = pictures::FormatOfName(path);
    if (format == pictures::PictureFormat::Bmp) {
        // The header tells the size even where the pixels cannot be read.
        ReadBitmapHeader(path, width, height, depth);
        if (size) ReadOs2Header(path, width, height, depth);
        return;
    }
    depth = format == pictures::PictureFormat::Gif ? kGifDepth : kJpgDepth;
    if (size) {
        width = size->width;
        height = size->height;
    }
}

void DrawPreview(const std::string& path, controls::PictureBox& target) {
    DrawScaled(path, target);
}

void ShowPictureInBox(const std::string& path, controls::PictureBox& box) {
    box.Clear();
    // Where the display has a palette, the system's loader brings a picture down to colours that
    // are there already, undithered; and a photograph it shows as it lies in the file, on its side
    // if the camera was. There it is left what our own readers do not know.
    if (controls::DisplayHasPalette() || pictures::IsToBeTurned(path))
        ShowByReaders(path, box) || ShowByLoader(path, box);
    else
        ShowByLoader(path, box) || ShowByReaders(path, box);
}

}  // namespace vistrel::preview
