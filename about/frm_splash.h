// The picture that is shown while the program starts.
#pragma once

#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/window.h"

namespace vistrel {

class frmSplash : public Window {
 public:
    frmSplash();

    PictureBox SplashPicture;
    Label LblVersion;

 protected:
    void Form_Load() override;
};

}  // namespace vistrel
