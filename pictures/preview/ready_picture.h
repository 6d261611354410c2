// A small picture as the display takes it, to be painted again and again.
#pragma once

#include <cstdint>
#include <vector>

#include "controls/display_palette.h"
#include "pictures/rgb_picture.h"
#include "platform/handles.h"

namespace vistrel::preview {

class ReadyPicture {
 public:
    /// No picture.
    ReadyPicture() = default;
    /// Brought to the colours that the display has now. Whether it has a palette is worth asking
    /// once for many pictures.
    explicit ReadyPicture(const pictures::RgbPicture& picture,
                          bool hasPalette = controls::DisplayHasPalette());

    /// Paints it at (x, y) of a window. False where there is none.
    bool Paint(platform::DeviceContext target, int x, int y) const;

 private:
    int width_ = 0;
    int height_ = 0;
    int bits_ = 0;  ///< per pixel: 8 for numbers of the display's palette, else 24
    std::vector<std::uint8_t> rows_;
};

}  // namespace vistrel::preview
