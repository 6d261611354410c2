// The about box: the version and the makers' addresses as links.
#pragma once

#include "controls/button.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/window.h"

namespace vistrel::about {

class FrmAboutReg : public controls::Window {
 public:
    FrmAboutReg();

    controls::PictureBox Image1;
    controls::Label LblTitProgram;
    controls::Label LblVersion;
    controls::Label LblComments;
    controls::Label Label4;
    controls::Label Label5;
    controls::Label LblInternet[4];
    controls::Label Line1;
    controls::Button BtnOK;

 protected:
    void Form_Load() override;
    void Form_Paint(platform::DeviceContext target) override;
    void MenuCommand(int id) override;

 private:
    void LblInternet_Click(int index);
    void BtnOK_Click();
};

}  // namespace vistrel::about
