// The about box: the version and the makers' addresses as links.
#pragma once

#include "controls/button.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/window.h"

namespace vistrel {

class FrmAboutReg : public Window {
 public:
    FrmAboutReg();

    PictureBox Image1;
    Label LblTitProgram;
    Label LblVersion;
    Label LblComments;
    Label Label4;
    Label Label5;
    Label LblInternet[4];
    Label Line1;
    Button BtnOK;

 protected:
    void Form_Load() override;
    void Form_Paint(DeviceContext target) override;
    void MenuCommand(int id) override;

 private:
    void LblInternet_Click(int index);
    void BtnOK_Click();
};

}  // namespace vistrel
