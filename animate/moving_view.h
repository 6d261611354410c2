// The screen in a box of the window, moving as it does at start-up, with marks over it that show
// what is worked on.
#pragma once

#include <memory>
#include <vector>

#include "controls/picture_box.h"
#include "pictures/preview/draw_animation.h"
#include "pictures/screen/area.h"

namespace vistrel::animate {

/// What is marked on the screen with dots that are seen on any colour.
struct Marks {
    const screen::Area* area = nullptr;  ///< its edge
    std::vector<screen::ScreenPoint> line;
    std::optional<screen::ScreenPoint> cross;
};

class MovingView {
 public:
    /// Shows another screen from now on, at the step to which the one before has come.
    void Show(const screen::IndexedScreen& screen, const Marks& marks, controls::PictureBox& box);
    void Step();

 private:
    std::unique_ptr<preview::ScreenAnimation> animation_;
    unsigned steps_ = 0;
};

}  // namespace vistrel::animate
