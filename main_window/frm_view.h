// One picture at its actual size; a click or a key closes it.
#pragma once

#include <memory>
#include <string>

#include "controls/picture_box.h"
#include "controls/timer.h"
#include "controls/window.h"
#include "pictures/preview/draw_animation.h"

namespace vistrel {

class FrmView : public Window {
 public:
    /// `animate`: a screen with animated palette entries moves as it does while the system starts.
    FrmView(std::string path, bool animate);

    bool HasDialogKeys() const override { return false; }

    PictureBox Preview;

 protected:
    void Form_Load() override;
    void Form_KeyPress(char character) override;

 private:
    void Preview_Click();
    void ShowAnimation();

    std::string path_;
    bool animate_;
    std::unique_ptr<ScreenAnimation> animation_;
    Timer AnimationTimer;
};

}  // namespace vistrel
