// The Logo browser's screens as the system shows them: seen over the whole display, what is wrong
// with them in words, and mended.
#include "boot_show/frm_boot_show.h"
#include "boot_show/mend_screen.h"
#include "controls/screen_metrics.h"
#include "core/generali.h"
#include "core/screen_file.h"
#include "editor/select_picture_form.h"
#include "pictures/screen/fault_words.h"
#include "resources/ids.h"

namespace vistrel::editor {
namespace {

constexpr const char* kScreens[] = {"the startup screen", "the wait screen", "the shutdown screen"};

}  // namespace

void SelPictureForm::ShowAtStart(const std::vector<boot_show::ScreenFile>& files) {
    // When it closes nothing is to be filled again.
    ActivateOnce = true;
    boot_show::ShowAsAtStart(handle(), files);
    ActivateOnce = false;
}

// A screen alone: the one of a slot as the system shows it at that place.
void SelPictureForm::ShowBoxAtStart(const controls::PictureBox& box) {
    const bool stands = &box == &ImgPreview[1] || &box == &ImgPreview[2];
    ShowAtStart({{box.Tag(), stands ? boot_show::Colors::Stand : boot_show::Colors::Move}});
}

void SelPictureForm::ItmShowAtStart_Click() { ShowBoxAtStart(CurView); }

// The slot with the focus; else the selected picture, and without one the set in the slots.
void SelPictureForm::ShowFocusedAtStart() {
    for (const controls::PictureBox& slot : ImgPreview)
        if (slot.HasFocus()) return ShowBoxAtStart(slot);
    if (CurView.HasPicture() && ImageInfo.ForeColor() != kNoPictureColor)
        return ShowBoxAtStart(CurView);
    const core::Slots slots = FilesInSlots();
    ShowAtStart(boot_show::ScreensOfSet(slots[0], slots[1], slots[2]));
}

void SelPictureForm::Form_KeyUp(int key) {
    if (key != controls::kKeyF11) return;
    EndEdits();
    ShowFocusedAtStart();
}

bool SelPictureForm::HasMendableSelected() const {
    return IsAdjustable() && core::CanBeMended(core::FaultsOfScreenFile(SelectedPicture));
}

void SelPictureForm::ItmMend_Click() {
    if (HasMendableSelected()) Mend(SelectedPicture);
}

// The file may be in several places of the window.
void SelPictureForm::Mend(const std::string& path) {
    if (!boot_show::AskAndMend(handle(), path)) return;
    if (TouchesLibrary(path)) LibraryChanged = true;
    if (core::UpperCase(SelectedPicture) == core::UpperCase(path)) ShowPictureAnew();
    for (int i = 0; i < 3; ++i)
        if (core::UpperCase(ImgPreview[i].Tag()) == core::UpperCase(path)) ShowInSlot(i, path);
}

// What the main window's menu offers is done here with the box that it was opened on.
bool SelPictureForm::RunScreenCommand(int id) {
    if (!menuBox_ || (id != ID_ItmShowAtStart && id != ID_ItmMend)) return false;
    if (id == ID_ItmShowAtStart)
        ShowBoxAtStart(*menuBox_);
    else
        Mend(menuBox_->Tag());
    return true;
}

void SelPictureForm::JudgeSelected() {
    std::string name = SelectedPicture;
    selectedFault_ =
        screen::SentenceOn(core::GetFileName(name), core::FaultsOfScreenFile(SelectedPicture));
    ShowFaults();
}

void SelPictureForm::JudgeSlot(int index) {
    slotFault_[index] =
        screen::SentenceOn(kScreens[index], core::FaultsOfScreenFile(ImgPreview[index].Tag()));
    LblSlot[index].SetForeColor(slotFault_[index].empty() ? controls::kSystemColor
                                                          : controls::kDarkRed);
    ShowFaults();
}

bool SelPictureForm::ShowsFaults() const { return LblWritten.ForeColor() == controls::kDarkRed; }

// The colour says what the line is about; what was written stays until there is something wrong.
void SelPictureForm::ShowFaults() {
    std::string all = selectedFault_;
    for (int i = 0; i < 3; ++i) {
        if (!ImgPreview[i].Visible() || slotFault_[i].empty()) continue;
        if (!all.empty()) all += " ";
        all += slotFault_[i];
    }
    if (all.empty() && !ShowsFaults()) return;
    LblWritten.SetForeColor(controls::kDarkRed);
    LblWritten.SetText(all);
    // Where the line is too short for all of it.
    LblWritten.SetTip(all);
}

void SelPictureForm::ShowWritten(const std::string& text) {
    if (text.empty() && ShowsFaults()) return;
    LblWritten.SetForeColor(controls::kSystemColor);
    LblWritten.SetText(text);
    LblWritten.SetTip("");
}

}  // namespace vistrel::editor
