// "Make sets of these pictures": sets of many pictures at once, with a bar that shows how far it
// is.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "controls/button.h"
#include "controls/label.h"
#include "controls/list_box.h"
#include "controls/progress_bar.h"
#include "controls/timer.h"
#include "controls/window.h"
#include "core/picture_sets.h"

namespace vistrel::adjust {

class FrmManySets : public controls::Window {
 public:
    /// `library` is the logo folder and ends in a backslash; `pictures` are paths.
    FrmManySets(std::string library, std::vector<std::string> pictures);

    /// Once the window is closed: the names of the sets that were made.
    std::vector<std::string> Made() const;

    controls::Label LblMany;
    controls::Frame FrameFraming;
    controls::OptionButton OptFraming[2];  ///< fill, fit
    controls::Frame FrameKind;
    controls::OptionButton OptKind[2];  ///< startup-only, complete
    controls::Label LblDone;
    controls::ProgressBar Progress;
    controls::Label LblLeftOut;
    controls::ListBox LeftOut;
    controls::Button BtnMakeSets;
    controls::Button BtnClose;

 protected:
    void Form_Load() override;
    bool Form_Unload() override;

 private:
    void BtnMakeSets_Click();
    void BtnClose_Click();
    bool IsRunning() const { return step_.Enabled(); }
    void Step();
    void Finish(const std::string& how);
    void ShowLeftOut();

    std::string library_;
    std::vector<std::string> pictures_;
    std::optional<core::PictureSets> sets_;
    controls::Timer step_;  ///< a picture a tick: in between the window does what the user wants
};

}  // namespace vistrel::adjust
