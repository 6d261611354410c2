// The Logo browser's commands: its two menus, its buttons below and its keys.
#include "controls/screen_metrics.h"
#include "editor/select_picture_form.h"
#include "resources/ids.h"

namespace vistrel::editor {
namespace {

/// Places of the menus in their resource.
constexpr int kActionMenu = 0;
constexpr int kManageMenu = 1;
constexpr const char* kParentFolder = "..";

}  // namespace

void SelPictureForm::ActButton_Click() {
    if (type_ == SetType::DefaultScreens) {
        SaveDefaultScreens();
        return;
    }
    PopUpMenuAt(ActButton, controls::SubMenu(menus_, kActionMenu));
}

void SelPictureForm::CloseButton_Click() { Unload(); }

void SelPictureForm::LogoList_MouseUp(int button) {
    if (button == controls::kRightButton) ShowManageMenu(controls::PointerPosition());
}

void SelPictureForm::ShowManageMenu(controls::Point screen) {
    PopUpMenu(controls::SubMenu(menus_, kManageMenu), screen);
}

void SelPictureForm::MenuOpens(platform::MenuHandle menu) {
    if (menu != controls::SubMenu(menus_, kManageMenu)) return;
    const std::string name = SelectedName();
    const bool changeable = LogoList.SelectedItems().size() == 1 && name != kParentFolder;
    controls::EnableControls(changeable, ItmRename, ItmDelete);
    for (int i = 0; i < 3; ++i) ItmSetLogo[i].SetEnabled(SlotsEnabled && ImgPreview[i].Visible());
    ItmAdjust.SetEnabled(IsAdjustable());
    ItmManySets.SetEnabled(!SelectedPictures().empty());
    ItmShowAtStart.SetEnabled(IsAdjustable());
    ItmMend.SetEnabled(HasMendableSelected());
    ItmMoveColors.SetEnabled(IsAdjustable());
}

// The keys of the list are those of its menu.
void SelPictureForm::LogoList_KeyUp(int key) {
    // A key that ends or serves the editing of a label is not a command.
    if (LogoList.EditingLabel()) return;
    if (key == controls::kKeyF2) ItmRename_Click();
    if (key == controls::kKeyDelete) ItmDelete_Click();
    if (key == controls::kKeyF5) itmRefresh_Click();
}

bool SelPictureForm::RunOpenWith(int id) {
    // Items of the main window's menu close what they opened before they return.
    ActivateOnce = true;
    const bool openWith = host_.OpenWithCommand(id, handle());
    ActivateOnce = false;
    FollowLogoFolder();
    return openWith;
}

void SelPictureForm::MenuCommand(int id) {
    if (RunScreenCommand(id) || RunOpenWith(id)) return;
    if (id == ID_BtnOK && LogoList.HasFocus()) LogoList_DblClick();  // Enter
    if (id == ID_BtnCancel) CloseButton_Click();                     // Esc
    if (const auto command = commands_.find(id); command != commands_.end()) command->second();
}

}  // namespace vistrel::editor
