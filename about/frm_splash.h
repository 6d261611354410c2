// The picture that is shown while the program starts.
#pragma once

#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/window.h"

namespace vistrel::about {

class frmSplash : public controls::Window {
 public:
    frmSplash();

    controls::PictureBox SplashPicture;
    controls::Label LblVersion;

 protected:
    void Form_Load() override;
};

}  // namespace vistrel::about
