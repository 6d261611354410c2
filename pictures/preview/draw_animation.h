// Shows a screen as the system does, whose colours may move, on displays with a palette and
// without.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "controls/picture_box.h"
#include "pictures/screen/indexed_screen.h"

namespace vistrel::preview {

/// Milliseconds from one step to the next: about 15 a second, as the system moves the colours while
/// it starts.
inline constexpr unsigned kAnimationInterval = 66;

class ScreenAnimation {
 public:
    /// Empty when the file is no screen with animated colours.
    static std::unique_ptr<ScreenAnimation> Load(const std::string& path);
    /// Of any screen; one whose colours do not move stands still.
    explicit ScreenAnimation(screen::IndexedScreen screen);
    ~ScreenAnimation();
    ScreenAnimation(const ScreenAnimation&) = delete;
    ScreenAnimation& operator=(const ScreenAnimation&) = delete;

    bool IsAnimated() const;

    /// Shows the screen in `box`, which has its size, from now on.
    void Attach(controls::PictureBox& box);
    /// Shows it stretched over a part of the box; all around is black. Again after the box, or the
    /// display, has changed.
    void Attach(controls::PictureBox& box, const controls::Rect& place);
    /// Moves the colours by one step. Only colours change: nothing is read or reduced again.
    void Step();

 private:
    struct State;
    void Paint(platform::DeviceContext target);

    std::unique_ptr<State> state_;
};

}  // namespace vistrel::preview
