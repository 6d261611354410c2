// Shows a screen whose colours move, on displays with a palette and without.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "controls/picture_box.h"
#include "pictures/screen/indexed_screen.h"

namespace vistrel::preview {

class ScreenAnimation {
 public:
    /// Empty when the file is no screen with animated colours.
    static std::unique_ptr<ScreenAnimation> Load(const std::string& path);
    /// Of any screen; one whose colours do not move stands still.
    explicit ScreenAnimation(screen::IndexedScreen screen);
    ~ScreenAnimation();
    ScreenAnimation(const ScreenAnimation&) = delete;
    ScreenAnimation& operator=(const ScreenAnimation&) = delete;

    /// Shows the screen in `box`, which has its size, from now on.
    void Attach(controls::PictureBox& box);
    /// Moves the colours by one step. Only colours change: nothing is read or reduced again.
    void Step();

 private:
    struct State;
    void Paint(platform::DeviceContext target);

    std::unique_ptr<State> state_;
};

}  // namespace vistrel::preview
