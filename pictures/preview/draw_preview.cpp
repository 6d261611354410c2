#include "pictures/preview/draw_preview.h"

#include <optional>

#include "controls/display_palette.h"
#include "pictures/file.h"
#include "pictures/formats.h"
#include "pictures/imgdll.h"
#include "pictures/little_endian.h"
#include "pictures/locked_block.h"
#include "pictures/preview/draw_rgb.h"
#include "pictures/read_picture.h"
#include "platform/standard_picture.h"

namespace vistrel::preview {
namespace {

void DrawOver(controls::PictureBox& box, const std::uint8_t* rgb, int width, int height) {
    ImgDLLDrawRGB(box.Canvas(), rgb, width, height, 0, 0, box.ScaleWidth(), box.ScaleHeight(), 0);
    box.Keep();
}

/// Draws a picture scaled straight to the box: all of it is not needed here. Its own size; empty
/// when it cannot be read.
std::optional<controls::Size> DrawScaled(const std::string& path, controls::PictureBox& target) {
    const controls::Size box{target.ScaleWidth(), target.ScaleHeight()};
    std::int16_t width = 0;
    std::int16_t height = 0;
    const pictures::LockedBlock scaled(pictures::ImgDLLReadRGBAtSize(
        path.c_str(), box.width, box.height, pictures::ReadingFor::Looking, &width, &height));
    if (scaled.pixels() == nullptr) {
        target.Clear();
        return std::nullopt;
    }
    DrawOver(target, scaled.pixels(), box.width, box.height);
    return controls::Size{width, height};
}

bool ShowByLoader(const std::string& path, controls::PictureBox& box) {
    platform::StandardPicture standard;
    if (!platform::LoadStandardPicture(path, standard)) return false;
    box.SetScaleSize({standard.width, standard.height});
    DrawOver(box, standard.pixels.data(), standard.width, standard.height);
    return true;
}

bool ShowByReaders(const std::string& path, controls::PictureBox& box) {
    std::int16_t width = 0;
    std::int16_t height = 0;
    const pictures::LockedBlock picture(
        pictures::ImgDLLReadRGBAtSize(path.c_str(), pictures::kOwnSize, pictures::kOwnSize,
                                      pictures::ReadingFor::Looking, &width, &height));
    if (picture.pixels() == nullptr) return false;
    box.SetScaleSize({width, height});
    DrawOver(box, picture.pixels(), width, height);
    return true;
}

/// As far as the depth is told.
constexpr std::size_t kHeaderBytes = 30;

/// An OS/2 1.x header has its numbers elsewhere: where the file has one, they are taken from there.
/// Unless they are a screen's: the system could not show such a file, and it must not be taken for
/// a finished screen.
void ReadOs2Header(const std::string& path, std::int32_t& width, std::int32_t& height,
                   std::int16_t& depth) {
    constexpr std::uint32_t kOs2HeaderSize = 12;
    const auto header = pictures::ReadStartOfFile(path, kHeaderBytes);
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
    const auto header = pictures::ReadStartOfFile(path, kHeaderBytes);
    if (!header) return;
    width = static_cast<std::int32_t>(pictures::DoubleWord(*header, 18));
    height = static_cast<std::int32_t>(pictures::DoubleWord(*header, 22));
    depth = static_cast<std::int16_t>(pictures::Word(*header, 28));
}

void DrawPreview(const std::string& path, controls::PictureBox& target, std::int32_t& width,
                 std::int32_t& height, std::int16_t& depth) {
    const auto size = DrawScaled(path, target);
    const int depthOfFormat = pictures::FormatOfName(path).depth;
    if (depthOfFormat == 0) {
        // The header tells the size even where the pixels cannot be read.
        ReadBitmapHeader(path, width, height, depth);
        if (size) ReadOs2Header(path, width, height, depth);
        return;
    }
    depth = static_cast<std::int16_t>(depthOfFormat);
    if (size) {
        width = size->width;
        height = size->height;
    }
}

void DrawPreview(const std::string& path, controls::PictureBox& target) {
    DrawScaled(path, target);
}

void DrawPicture(const pictures::RgbPicture& picture, controls::PictureBox& target) {
    DrawOver(target, picture.pixels.data(), picture.width, picture.height);
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
