// moving-bench SCREEN WIDTH HEIGHT STEP: runs one step of a moving screen that is shown with WIDTH
// x HEIGHT pixels, for a program that counts instructions; see count_moving_steps. Without STEP it
// tells how many pixels are painted at a step, and how many of them move.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/pictures/run_once.h"
#include "pictures/file.h"
#include "pictures/screen/area.h"
#include "pictures/screen/indexed_screen.h"

namespace vistrel::bench {
namespace {

/// The screen as it is shown, and the part of it that is painted at each step.
struct Shown {
    screen::IndexedScreen screen;
    screen::ScreenBounds painted;
    std::vector<std::uint16_t> display;
};

/// The nearest pixels, as the preview takes them.
screen::IndexedScreen Stretched(const screen::IndexedScreen& screen, int width, int height) {
    screen::IndexedScreen stretched{width, height, {}, screen.palette, screen.firstAnimated};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            stretched.indices.push_back(screen.indices[screen::Area::At(
                x * screen.width / width, y * screen.height / height)]);
    return stretched;
}

screen::ScreenBounds MovingPart(const screen::IndexedScreen& screen) {
    screen::ScreenBounds part{screen.width, screen.height, 0, 0};
    for (int y = 0; y < screen.height; ++y) {
        for (int x = 0; x < screen.width; ++x) {
            if (screen.indices[std::size_t(y) * screen.width + x] < screen.firstAnimated) continue;
            part = {std::min(part.left, x), std::min(part.top, y), std::max(part.right, x + 1),
                    y + 1};
        }
    }
    return part;
}

/// What a display of 65,536 colours needs to know of 256: done once a step.
void Translate(const screen::IndexedScreen& screen, std::uint16_t* numbers) {
    for (std::size_t i = 0; i < 256; ++i) {
        const auto& [red, green, blue] = screen.palette[i];
        numbers[i] = static_cast<std::uint16_t>((red >> 3) << 11 | (green >> 2) << 5 | blue >> 3);
    }
}

/// Looks up the colour of each pixel that is painted, as the display's driver does.
void Draw(Shown& shown, const std::uint16_t* numbers) {
    for (int y = shown.painted.top; y < shown.painted.bottom; ++y) {
        const std::size_t row = std::size_t(y) * shown.screen.width;
        const std::uint8_t* in = &shown.screen.indices[row + shown.painted.left];
        std::uint16_t* out = &shown.display[row + shown.painted.left];
        for (int left = shown.painted.right - shown.painted.left; left > 0; --left)
            *out++ = numbers[*in++];
    }
}

int Run(const std::string& path, int width, int height, const std::string& step) {
    const auto file = pictures::ReadWholeFile(path);
    const auto screen = file ? screen::ReadIndexedScreen(*file) : std::nullopt;
    if (!screen || !screen->IsAnimated()) {
        std::fprintf(stderr, "moving-bench: nothing moves on %s\n", path.c_str());
        return 1;
    }
    Shown shown{Stretched(*screen, width, height), {}, {}};
    shown.painted = MovingPart(shown.screen);
    shown.display.resize(shown.screen.indices.size());
    std::uint16_t numbers[256];
    if (step == "RotateColors") RunOnce([&] { screen::RotateColors(shown.screen); });
    if (step == "Translate") RunOnce([&] { Translate(shown.screen, numbers); });
    if (step == "Draw") RunOnce([&] { Draw(shown, numbers); });
    if (!step.empty()) return 0;
    const auto moving =
        std::count_if(shown.screen.indices.begin(), shown.screen.indices.end(),
                      [&](std::uint8_t index) { return index >= shown.screen.firstAnimated; });
    const screen::ScreenBounds& part = shown.painted;
    std::printf("%d %d\n", (part.right - part.left) * (part.bottom - part.top),
                static_cast<int>(moving));
    return 0;
}

}  // namespace
}  // namespace vistrel::bench

int main(int count, char** arguments) {
    if (count < 4) return 1;
    return vistrel::bench::Run(arguments[1], std::atoi(arguments[2]), std::atoi(arguments[3]),
                               count > 4 ? arguments[4] : "");
}
