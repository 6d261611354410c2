#include "boot_show/boot_screens.h"

#include <new>
#include <utility>

#include "pictures/bmp/header.h"
#include "pictures/compose/stages.h"
#include "pictures/convert.h"
#include "pictures/file.h"
#include "pictures/screen/any_indices.h"

namespace vistrel::boot_show {
namespace {

/// A screen with its colour numbers as the file has them; empty for a picture of another form.
std::optional<screen::IndexedScreen> ReadAsItIs(const std::string& path) {
    const auto file = pictures::ReadWholeFile(path);
    if (!file) return std::nullopt;
    const pictures::FileBytes bytes = *file;
    const auto header = bmp::ReadBmpHeader(bytes);
    if (!header || header->bitsPerPixel > 8 || header->width != pictures::kLogoWidth ||
        header->height != pictures::kLogoHeight)
        return std::nullopt;
    auto indices = screen::ReadAnyIndices(bytes, *header);
    if (!indices) return std::nullopt;
    // The system reads no more than the lowest byte: where a count stands there, colours flash.
    const int first = static_cast<int>(screen::FirstAnimated(bytes) & 0xFF);
    return screen::IndexedScreen{header->width, header->height, std::move(*indices),
                                 header->palette, first};
}

std::optional<screen::IndexedScreen> ReadAsConverted(const std::string& path) {
    const compose::Composition untouched;
    const auto framed = compose::ReadFramed(path, untouched);
    if (!framed) return std::nullopt;
    return compose::Reduce(framed->screen, untouched.dither);
}

}  // namespace

std::vector<ScreenFile> ScreensOfSet(const std::string& startup, const std::string& wait,
                                     const std::string& shutdown) {
    return {{startup, Colors::Move}, {wait, Colors::Stand}, {shutdown, Colors::Stand}};
}

// Without memory for another screen those stay that were read.
std::vector<screen::IndexedScreen> ReadScreens(const std::vector<ScreenFile>& files) {
    std::vector<screen::IndexedScreen> screens;
    for (const ScreenFile& file : files) try {
            auto screen = ReadAsItIs(file.path);
            if (!screen) screen = ReadAsConverted(file.path);
            if (!screen) continue;
            if (file.colors == Colors::Stand) screen->firstAnimated = 0;
            screens.push_back(std::move(*screen));
        } catch (const std::bad_alloc&) {
        }
    return screens;
}

}  // namespace vistrel::boot_show
