// The picture that is shown while the program starts.
#pragma once

#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/window.h"

namespace vistrel::about {

/// How many milliseconds the splash screen still stays once the main window has been made. Both
/// times are times of day, in days; a splash screen that was shown yesterday stays longer.
double SplashWait(double shownAt, double now);

class frmSplash : public controls::Window {
 public:
    frmSplash();

    controls::PictureBox SplashPicture;
    controls::Label LblVersion;

 protected:
    void Form_Load() override;
};

}  // namespace vistrel::about
