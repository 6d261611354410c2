#include "tools/moving.h"

#include <algorithm>
#include <cstdio>
#include <new>

#include "pictures/compose/stages.h"
#include "pictures/file.h"
#include "pictures/screen/indexed_screen.h"
#include "pictures/screen/moving_screen.h"

namespace vistrel::tools {
namespace {

using pictures::ConversionResult;

std::optional<screen::IndexedScreen> ReadScreen(const std::string& path) {
    const std::optional<std::vector<std::uint8_t>> file = pictures::ReadWholeFile(path);
    return file ? screen::ReadIndexedScreen(*file) : std::nullopt;
}

/// What the bars are put on: the picture, and what moves where it is a screen.
std::optional<screen::MovingPicture> Begin(const std::string& source,
                                           const compose::Composition& composition) {
    const std::optional<compose::Framed> framed = compose::ReadFramed(source, composition);
    if (!framed) return std::nullopt;
    screen::IndexedScreen base{pictures::kLogoWidth,
                               pictures::kLogoHeight,
                               std::vector<std::uint8_t>(screen::kScreenPixels),
                               {},
                               0};
    std::optional<screen::IndexedScreen> read = ReadScreen(source);
    if (read && read->width == base.width && read->height == base.height) base = std::move(*read);
    return screen::BeginMoving(std::move(base), compose::Adjust(*framed, composition));
}

ConversionResult Write(const std::string& path, const screen::IndexedScreen& screen) {
    return pictures::WriteWholeFile(path, screen::ScreenFile(screen))
               ? ConversionResult::Written
               : ConversionResult::NotWritten;
}

}  // namespace

ConversionResult MakeScreenWithBars(const std::string& source, const std::string& target,
                                    const ConvertOptions& options) try {
    std::optional<screen::MovingPicture> document = Begin(source, options.composition);
    if (!document) return ConversionResult::NotRead;
    for (const Bar& bar : options.bars) {
        screen::Layer layer;
        layer.pattern = bar.pattern;
        layer.area = screen::RectangleArea(0, bar.top, pictures::kLogoWidth, bar.height);
        document->layers.push_back(std::move(layer));
        document->ring = bar.ring;
    }
    const std::optional<screen::IndexedScreen> made = screen::MakeMovingScreen(*document);
    return made ? Write(target, *made) : ConversionResult::NotReduced;
} catch (const std::bad_alloc&) {
    return ConversionResult::NotReduced;
}

ConversionResult WriteFrames(const std::string& source, const std::string& out, int count) {
    std::optional<screen::IndexedScreen> screen = ReadScreen(source);
    if (!screen) return ConversionResult::NotRead;
    for (int i = 1; i <= count; ++i) {
        char ending[16];
        std::snprintf(ending, sizeof ending, "-%02d.bmp", i);
        screen::IndexedScreen frame = *screen;
        frame.firstAnimated = 0;
        const ConversionResult result = Write(out + ending, frame);
        if (result != ConversionResult::Written) return result;
        screen::RotateColors(*screen);
    }
    return ConversionResult::Written;
}

}  // namespace vistrel::tools
