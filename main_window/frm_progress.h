// How far something long is, with a button that ends it.
#pragma once

#include <string>

#include "controls/button.h"
#include "controls/label.h"
#include "controls/progress_bar.h"
#include "controls/window.h"

namespace vistrel::main_window {

/// What Cancel mostly does.
inline constexpr const char* kLeavesAll = "Leaves all as it was";

/// The window comes when what goes on has taken longer than a second, and goes with the object.
class FrmProgress : public controls::Window {
 public:
    /// `what` goes on, in words, in front of `owner`; `afterCancel` is what Cancel does.
    FrmProgress(platform::WindowHandle owner, std::string what,
                const char* afterCancel = kLeavesAll);
    ~FrmProgress() override;

    /// To be called often, with how much is done, from 0 to 1. False when the user has cancelled.
    bool Continue(double share);
    bool Cancelled() const { return cancelled_; }

    controls::Label LblWork;
    controls::ProgressBar WorkBar;
    controls::Button BtnCancel;

 protected:
    void Form_Load() override;
    bool Form_Unload() override;

 private:
    platform::WindowHandle owner_;
    std::string what_;
    double begun_;
    bool cancelled_ = false;
    bool over_ = false;
};

}  // namespace vistrel::main_window
