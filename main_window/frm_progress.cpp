#include "main_window/frm_progress.h"

#include <cmath>
#include <utility>

#include "controls/message_loop.h"
#include "help/context_numbers.h"
#include "platform/clock.h"
#include "platform/pointer.h"
#include "resources/ids.h"

namespace vistrel::main_window {
namespace {

constexpr double kSecondsWithout = 1;
constexpr int kSteps = 100;

}  // namespace

FrmProgress::FrmProgress(platform::WindowHandle owner, std::string what, const char* afterCancel)
    : Window("FrmProgress", IDD_FrmProgress),
      owner_(owner),
      what_(std::move(what)),
      begun_(platform::SecondsSinceMidnight()) {
    const controls::Part parts[] = {
        {LblWork, ID_LblWork},
        {WorkBar, ID_WorkBar, help_number::WorkBar},
        {BtnCancel, ID_BtnCancel, help_number::WorkCancel, afterCancel},
    };
    AddParts(parts);
    BtnCancel.Click = [this] { cancelled_ = true; };
}

FrmProgress::~FrmProgress() {
    over_ = true;
    Unload();
}

void FrmProgress::Form_Load() {
    LblWork.SetText(what_);
    WorkBar.SetSteps(kSteps);
}

// What goes on would otherwise go on behind an owner that takes commands again.
bool FrmProgress::Form_Unload() {
    cancelled_ = !over_;
    return over_;
}

bool FrmProgress::Continue(double share) {
    if (!IsOpen()) {
        // At midnight the clock goes backwards.
        if (std::abs(platform::SecondsSinceMidnight() - begun_) < kSecondsWithout) return true;
        // The button is there to be clicked.
        platform::ShowDefaultPointer();
        if (!ShowInFront(owner_)) return true;
    }
    WorkBar.SetValue(static_cast<int>(share * kSteps));
    controls::HandleWaiting();
    return !cancelled_;
}

}  // namespace vistrel::main_window
