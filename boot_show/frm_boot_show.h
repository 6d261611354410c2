// Screens over the whole display, one after the other, as they are seen while the system starts and
// ends.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "boot_show/boot_screens.h"
#include "controls/picture_box.h"
#include "controls/timer.h"
#include "controls/window.h"
#include "pictures/preview/draw_animation.h"

namespace vistrel::boot_show {

class FrmBootShow : public controls::Window {
 public:
    /// At least one.
    explicit FrmBootShow(std::vector<screen::IndexedScreen> screens);

    bool HasDialogKeys() const override { return false; }

    controls::PictureBox Screen;

 protected:
    void Form_Load() override;
    bool Form_Unload() override;
    bool Form_KeyDown(int key) override;
    void Form_KeyUp(int key) override;
    void Form_ProgramLeft() override { CloseSoon(); }
    void Form_DisplayChange() override;

 private:
    void CoverDisplay();
    void ShowScreen();
    void GoOn();

    std::vector<screen::IndexedScreen> screens_;
    std::size_t shown_ = 0;  ///< the number of the one that is seen
    std::unique_ptr<preview::ScreenAnimation> animation_;
    controls::Timer StepTimer;
    int key_ = 0;           ///< went down here and is not up yet
    bool pressed_ = false;  ///< a button of the mouse went down here
};

/// Shows the screens of these files in front of `owner` until the user has seen the last one or
/// presses Esc. Where there is none to be seen, tells so.
void ShowAsAtStart(platform::WindowHandle owner, const std::vector<ScreenFile>& files);

}  // namespace vistrel::boot_show
