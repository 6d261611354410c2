#include "pictures/preview/draw_animation.h"

#include <algorithm>
#include <utility>

#include "controls/display_palette.h"
#include "pictures/file.h"
#include "pictures/screen/indexed_screen.h"
#include "platform/drawing_objects.h"
#include "platform/win32.h"

namespace vistrel::preview {

struct ScreenAnimation::State {
    screen::IndexedScreen screen;
    std::vector<std::uint8_t> rows;  ///< as Windows draws them: padded to multiples of four
    controls::Rect moving;           ///< holds all pixels of the screen whose colours move
    HPALETTE palette = nullptr;      ///< the screen's own colours, on a display with a palette
    controls::PictureBox* box = nullptr;
    controls::Rect place;  ///< of the screen in the box

    ~State() { SetPalette(nullptr); }

    void SetPalette(HPALETTE other) {
        if (palette) DeleteObject(palette);
        palette = other;
    }
};

namespace {

std::vector<std::uint8_t> PaddedRows(const screen::IndexedScreen& screen) {
    const std::size_t stride = (static_cast<std::size_t>(screen.width) + 3) & ~std::size_t{3};
    std::vector<std::uint8_t> rows(stride * screen.height);
    for (int y = 0; y < screen.height; ++y)
        std::copy_n(screen.indices.begin() + static_cast<std::ptrdiff_t>(y) * screen.width,
                    screen.width, rows.begin() + static_cast<std::ptrdiff_t>(y * stride));
    return rows;
}

controls::Rect MovingPart(const screen::IndexedScreen& screen) {
    if (!screen.IsAnimated()) return {};
    int left = screen.width, top = screen.height, right = 0, bottom = 0;
    const std::uint8_t* index = screen.indices.data();
    for (int y = 0; y < screen.height; ++y)
        for (int x = 0; x < screen.width; ++x) {
            if (*index++ < screen.firstAnimated) continue;
            left = std::min(left, x);
            right = std::max(right, x + 1);
            top = std::min(top, y);
            bottom = y + 1;
        }
    return {left, top, std::max(right - left, 0), std::max(bottom - top, 0)};
}

/// Where a part of a screen is seen that is stretched over `place`, rounded outwards.
RECT SeenPart(const controls::Rect& part, const screen::IndexedScreen& screen,
              const controls::Rect& place) {
    const auto outwards = [](int value, int times, int by) {
        return (value * times + by - 1) / by;
    };
    return {place.left + part.left * place.width / screen.width,
            place.top + part.top * place.height / screen.height,
            place.left + outwards(part.right(), place.width, screen.width),
            place.top + outwards(part.bottom(), place.height, screen.height)};
}

void BlackenAround(HDC target, const controls::Rect& place, int width, int height) {
    const auto black = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    const RECT around[] = {{0, 0, width, place.top},
                           {0, place.bottom(), width, height},
                           {0, place.top, place.left, place.bottom()},
                           {place.right(), place.top, width, place.bottom()}};
    for (const RECT& part : around) FillRect(target, &part, black);
}

/// All 256 colours, from the first that moves to the last one before it: the system has room for
/// 236 beside its own and takes them in order, and those that move must not be left out. They are
/// reserved, so that the system lets us change them.
void FillEntries(const screen::IndexedScreen& screen, PALETTEENTRY* entries) {
    for (int i = 0; i < 256; ++i) {
        const int from = (screen.firstAnimated + i) % 256;
        const auto& color = screen.palette[from];
        const bool moves = screen.IsAnimated() && from >= screen.firstAnimated;
        const BYTE flags = moves ? PC_RESERVED : 0;
        entries[i] = {color[0], color[1], color[2], flags};
    }
}

HPALETTE OwnPalette(const screen::IndexedScreen& screen) {
    struct {
        WORD version = 0x300;
        WORD count = 256;
        PALETTEENTRY entries[256];
    } colors;
    FillEntries(screen, colors.entries);
    return platform::NewPalette(&colors);
}

}  // namespace

ScreenAnimation::ScreenAnimation(screen::IndexedScreen screen) : state_(std::make_unique<State>()) {
    state_->screen = std::move(screen);
    state_->rows = PaddedRows(state_->screen);
    state_->moving = MovingPart(state_->screen);
}

ScreenAnimation::~ScreenAnimation() {
    if (state_->box) state_->box->PaintInstead = nullptr;
}

std::unique_ptr<ScreenAnimation> ScreenAnimation::Load(const std::string& path) {
    const auto bytes = pictures::ReadWholeFile(path);
    if (!bytes) return nullptr;
    auto screen = screen::ReadIndexedScreen(*bytes);
    if (!screen || !screen->IsAnimated()) return nullptr;
    return std::make_unique<ScreenAnimation>(std::move(*screen));
}

bool ScreenAnimation::IsAnimated() const { return state_->screen.IsAnimated(); }

void ScreenAnimation::Attach(controls::PictureBox& box) {
    Attach(box, {0, 0, state_->screen.width, state_->screen.height});
}

void ScreenAnimation::Attach(controls::PictureBox& box, const controls::Rect& place) {
    state_->box = &box;
    state_->place = place;
    box.PaintInstead = [this](platform::DeviceContext target) { Paint(target); };
    state_->SetPalette(controls::DisplayHasPalette() ? OwnPalette(state_->screen) : nullptr);
    box.Repaint();
}

void ScreenAnimation::Paint(platform::DeviceContext target) {
    struct {
        BITMAPINFOHEADER header;
        union {
            RGBQUAD colors[256];
            WORD numbers[256];
        };
    } info;
    info.header = platform::HeaderFromTop(state_->screen.width, state_->screen.height, 8);
    HPALETTE former = nullptr;
    if (state_->palette) {
        former = SelectPalette(target, state_->palette, !state_->box->InActiveWindow());
        RealizePalette(target);
        for (int i = 0; i < 256; ++i)
            info.numbers[i] = static_cast<WORD>((i - state_->screen.firstAnimated + 256) % 256);
    } else {
        for (int i = 0; i < 256; ++i) {
            const auto& color = state_->screen.palette[i];
            info.colors[i] = {color[2], color[1], color[0], 0};
        }
    }
    const controls::Rect& place = state_->place;
    SetStretchBltMode(target, COLORONCOLOR);
    StretchDIBits(target, place.left, place.top, place.width, place.height, 0, 0,
                  state_->screen.width, state_->screen.height, state_->rows.data(),
                  reinterpret_cast<const BITMAPINFO*>(&info),
                  state_->palette ? DIB_PAL_COLORS : DIB_RGB_COLORS, SRCCOPY);
    BlackenAround(target, place, state_->box->ScaleWidth(), state_->box->ScaleHeight());
    if (former) SelectPalette(target, former, FALSE);
}

void ScreenAnimation::Step() {
    if (!IsAnimated()) return;
    screen::RotateColors(state_->screen);
    if (!state_->palette) {
        // The rest stays as it is, which spares an old machine most of the work.
        const RECT moving = SeenPart(state_->moving, state_->screen, state_->place);
        InvalidateRect(state_->box->handle(), &moving, FALSE);
        return;
    }
    // The display's own table changes; what is on the screen moves without being painted.
    PALETTEENTRY entries[256];
    FillEntries(state_->screen, entries);
    AnimatePalette(state_->palette, 0, static_cast<UINT>(256 - state_->screen.firstAnimated),
                   entries);
}

}  // namespace vistrel::preview
