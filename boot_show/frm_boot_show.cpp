#include "boot_show/frm_boot_show.h"

#include <utility>

#include "controls/screen_metrics.h"
#include "platform/message_box.h"
#include "platform/pointer.h"
#include "resources/ids.h"

namespace vistrel::boot_show {
namespace {

/// In the middle in the shape of a tube, 4:3: as high as the display, or as wide where that is
/// less.
controls::Rect PlaceOn(const controls::Rect& display) {
    controls::Size size{display.height * 4 / 3, display.height};
    if (size.width > display.width) size = {display.width, display.width * 3 / 4};
    return {(display.width - size.width) / 2, (display.height - size.height) / 2, size.width,
            size.height};
}

/// Keys that do nothing by themselves.
bool IsHeldWithOthers(int key) {
    return key == controls::kKeyShift || key == controls::kKeyControl;
}

}  // namespace

FrmBootShow::FrmBootShow(std::vector<screen::IndexedScreen> screens)
    : Window("FrmBootShow", IDD_FrmBootShow),
      screens_(std::move(screens)),
      StepTimer(preview::kAnimationInterval) {
    Add(Screen, ID_BootScreen);
    Add(StepTimer);
    StepTimer.Tick = [this] { animation_->Step(); };
    Screen.MouseDown = [this](int, controls::Point) { pressed_ = true; };
    Screen.MouseUp = [this](int, controls::Point) {
        if (std::exchange(pressed_, false)) GoOn();
    };
}

void FrmBootShow::Form_Load() {
    CoverDisplay();
    ShowScreen();
    Screen.HidePointer();
}

bool FrmBootShow::Form_Unload() {
    platform::ShowDefaultPointer();
    return true;
}

void FrmBootShow::CoverDisplay() {
    const controls::Rect display = controls::WholeDisplay();
    SetClientSize({display.width, display.height});
    CentreIn(display);
    Screen.MoveTo(display);
}

void FrmBootShow::ShowScreen() {
    animation_ = std::make_unique<preview::ScreenAnimation>(screens_[shown_]);
    animation_->Attach(Screen, PlaceOn(controls::WholeDisplay()));
    StepTimer.SetEnabled(animation_->IsAnimated());
}

void FrmBootShow::GoOn() {
    if (++shown_ < screens_.size())
        ShowScreen();
    else
        Unload();
}

bool FrmBootShow::Form_KeyDown(int key) {
    key_ = key;
    return true;
}

// Not before the key is up: the window behind would take that for a key of its own.
void FrmBootShow::Form_KeyUp(int key) {
    if (key != key_) return;
    key_ = 0;
    if (IsHeldWithOthers(key)) return;
    if (key == controls::kKeyEscape)
        Unload();
    else
        GoOn();
}

void FrmBootShow::Form_DisplayChange() {
    CoverDisplay();
    animation_->Attach(Screen, PlaceOn(controls::WholeDisplay()));
}

void ShowAsAtStart(platform::WindowHandle owner, const std::vector<ScreenFile>& files) {
    std::vector<screen::IndexedScreen> screens;
    {
        const platform::BusyPointer busy;
        screens = ReadScreens(files);
    }
    if (screens.empty()) {
        platform::Tell(owner, "There is no screen here that can be shown.");
        return;
    }
    FrmBootShow show(std::move(screens));
    show.ShowModal(owner);
}

}  // namespace vistrel::boot_show
