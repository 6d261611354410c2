#include "main_window/frm_view.h"

#include <utility>

#include "controls/screen_metrics.h"
#include "help/context_numbers.h"
#include "pictures/preview/draw_preview.h"
#include "resources/ids.h"

namespace vistrel::main_window {

FrmView::FrmView(std::string path, bool animate)
    : Window("FrmView", IDD_FrmView),
      path_(std::move(path)),
      animate_(animate),
      opened_(controls::MomentOfMessage()),
      AnimationTimer(preview::kAnimationInterval) {
    const controls::Part parts[] = {{Preview, ID_Preview, 0, "Click or press a key to close"}};
    AddParts(parts);
    Add(AnimationTimer);
    AnimationTimer.Tick = [this] { animation_->Step(); };
    Preview.MouseDown = [this](int, controls::Point) { Preview_MouseDown(); };
    Preview.MouseUp = [this](int, controls::Point) { Preview_Click(); };
}

void FrmView::Form_Load() {
    SetHelpTopic(help_number::ActualSize);
    preview::ShowPictureInBox(path_, Preview);
    if (animate_ && Preview.HasPicture()) ShowAnimation();
    SetClientSize({Preview.ScaleWidth(), Preview.ScaleHeight()});
    CentreIn(controls::WorkArea());
}

void FrmView::ShowAnimation() {
    animation_ = preview::ScreenAnimation::Load(path_);
    if (!animation_) return;
    animation_->Attach(Preview);
    AnimationTimer.SetEnabled(true);
}

void FrmView::Form_KeyPress(char) { Unload(); }

// Who double-clicks a picture wants to see it: the second press was not meant to close it again.
void FrmView::Preview_MouseDown() {
    pressed_ = !controls::IsOneDoubleClick(opened_, controls::MomentOfMessage());
}

void FrmView::Preview_Click() {
    if (pressed_) Unload();
}

}  // namespace vistrel::main_window
