// Draws one picture of a GIF file.
#include "pictures/gif_frame.h"

#include <algorithm>

namespace vistrel {

bool GifFrameWriter::Draw(std::span<const std::uint8_t> colors) {
    while (!colors.empty() && y_ < frame_.height) {
        const std::size_t room = frame_.width - x_;
        const std::span<const std::uint8_t> now = colors.first(std::min(colors.size(), room));
        Put(now);
        colors = colors.subspan(now.size());
        x_ += static_cast<int>(now.size());
        if (x_ == frame_.width) NextRow();
    }
    return y_ < frame_.height;
}

// Draws colour numbers that lie in one row.
void GifFrameWriter::Put(std::span<const std::uint8_t> colors) {
    const int y = frame_.top + y_;
    const int left = frame_.left + x_;
    if (y >= screen_.height || left >= screen_.width) return;
    const std::size_t room = screen_.width - left;
    std::uint8_t* rgb = &screen_.pixels[3 * (std::size_t(y) * screen_.width + left)];
    for (const std::uint8_t color : colors.first(std::min(colors.size(), room))) {
        if (color != frame_.transparent) std::copy_n(frame_.palette[color].begin(), 3, rgb);
        rgb += 3;
    }
}

// An interlaced frame has every eighth row first, then those in the middle between them, and so on.
void GifFrameWriter::NextRow() {
    constexpr int kFirst[] = {0, 4, 2, 1};
    constexpr int kStep[] = {8, 8, 4, 2};
    x_ = 0;
    y_ += frame_.interlaced ? kStep[pass_] : 1;
    while (frame_.interlaced && y_ >= frame_.height && pass_ < 3) y_ = kFirst[++pass_];
}

}  // namespace vistrel
