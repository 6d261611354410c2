// One picture at its actual size; a click or a key closes it.
#pragma once

#include <memory>
#include <string>

#include "controls/mouse_moment.h"
#include "controls/picture_box.h"
#include "controls/timer.h"
#include "controls/window.h"
#include "pictures/preview/draw_animation.h"

namespace vistrel::main_window {

class FrmView : public controls::Window {
 public:
    /// `animate`: a screen with animated palette entries moves as it does while the system starts.
    FrmView(std::string path, bool animate);

    bool HasDialogKeys() const override { return false; }

    controls::PictureBox Preview;

 protected:
    void Form_Load() override;
    void Form_KeyPress(char character) override;

 private:
    void Preview_MouseDown();
    void Preview_Click();
    void ShowAnimation();

    std::string path_;
    bool animate_;
    controls::MouseMoment opened_;  ///< at the click that the window opens at
    bool pressed_ = false;          ///< by a click of its own
    std::unique_ptr<preview::ScreenAnimation> animation_;
    controls::Timer AnimationTimer;
};

}  // namespace vistrel::main_window
