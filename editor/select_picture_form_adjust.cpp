// Adjusting the selected picture, or the one in a slot, and making sets of many.
#include "adjust/frm_adjust.h"
#include "adjust/frm_many_sets.h"
#include "controls/menu.h"
#include "core/generali.h"
#include "editor/picture_folder.h"
#include "editor/select_picture_form.h"
#include "pictures/formats.h"
#include "pictures/preview/draw_preview.h"
#include "platform/message_box.h"
#include "resources/ids.h"

namespace vistrel::editor {

bool SelPictureForm::IsAdjustable() const {
    return SlotsEnabled && ImageInfo.ForeColor() != kNoPictureColor;
}

void SelPictureForm::AdjustButton_Click() {
    if (!IsAdjustable()) return;
    const std::string screen = Adjusted(SelectedPicture);
    if (!screen.empty()) ShowAsSelected(screen);
}

void SelPictureForm::AdjustSlot(int index) {
    const std::string screen = Adjusted(ImgPreview[index].Tag());
    if (screen.empty()) return;
    SetChanged = true;
    CheckBtnStatus();
    FillSlot(index, screen);
}

// Opens the window on a picture, or on the one that a screen of this session was made of. The file
// of the new screen; empty when nothing was made.
std::string SelPictureForm::Adjusted(const std::string& path) {
    adjust::FrmAdjust window(adjustments_.For(path), NewFileOfSession());
    if (!window.ReadPicture()) {
        platform::Tell(handle(),
                       window.Settings().source +
                           " cannot be read as a picture. It may have been moved or damaged.");
        return {};
    }
    // When it closes nothing is to be filled again.
    ActivateOnce = true;
    window.ShowModal(handle());
    ActivateOnce = false;
    if (!window.Screen().empty()) adjustments_.Remember(window.Screen(), window.Settings());
    return window.Screen();
}

// A finished screen, whatever the name of its file.
void SelPictureForm::ShowAsSelected(const std::string& screen) {
    preview::DrawPreview(screen, CurView);
    SelectedPicture = screen;
    CurView.SetTag(screen);
    IsSysFile = true;
    ShowVerdict(kReadyColor, "320 x  400 x  256");
    EnableImage();
    JudgeSelected();
}

// The menu is the main window's: what a slot adds to it is taken away again.
void SelPictureForm::ShowPictureMenu(const controls::PictureBox& box, controls::Point at) {
    const platform::MenuHandle menu = host_.OpenWithMenu(box.Tag());
    const bool isSlot = &box != &CurView;
    const int adjust = ID_ItmAdjustSlot + static_cast<int>(&box - ImgPreview);
    menuBox_ = &box;
    // Colours move on a startup screen only.
    controls::SetMenuEnabled(menu, ID_ItmMoveColors,
                             isSlot ? &box == &ImgPreview[0] : IsAdjustable());
    if (isSlot) controls::AddMenuItemBefore(menu, ID_ItmShowAtStart, adjust, "Ad&just...");
    PopUpMenu(menu, box.OnScreen(at), host_.DefaultOpenWithItem());
    if (isSlot) controls::RemoveItemBefore(menu, adjust);
}

std::vector<std::string> SelPictureForm::SelectedPictures() const {
    std::vector<std::string> paths;
    for (const int item : LogoList.SelectedItems()) {
        const std::string name = LogoList.ItemText(item);
        if (pictures::IsPictureName(name) && LogoList.ItemIcon(item) != "closed")
            paths.push_back(CurrentFolder + name);
    }
    return paths;
}

void SelPictureForm::ItmManySets_Click() {
    const std::vector<std::string> pictures = SelectedPictures();
    if (pictures.empty()) return;
    adjust::FrmManySets window(LogoFolder(), pictures);
    ActivateOnce = true;
    window.ShowModal(handle());
    ActivateOnce = false;
    if (window.Made().empty()) return;
    LibraryChanged = true;
    const std::string shown = NameLogoSet.Text();
    for (const std::string& name : window.Made()) NameLogoSet.AddItem(name);
    NameLogoSet.SetText(shown);
    FindLoadedIndex();
    if (InLogoFolder()) AggiornaDir();
}

}  // namespace vistrel::editor
