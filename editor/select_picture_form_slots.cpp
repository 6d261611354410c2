// The slots of the Logo browser: the type of set that lays them out, filling and emptying them.
#include "core/generali.h"
#include "core/library.h"
#include "editor/select_picture_form.h"
#include "pictures/convert.h"
#include "pictures/preview/draw_preview.h"
#include "platform/pointer.h"

namespace vistrel::editor {

void SelPictureForm::TypeChosen(SetType type) {
    // A click on the type that is chosen already changes nothing.
    if (type != type_) ShowType(type);
}

void SelPictureForm::ChooseByCode(SetType type) {
    OptionSetByCode = true;
    if (type == SetType::OnlyStartup)
        OptOnlyStart.Choose(OptCompSet, OptDefShut);
    else
        OptCompSet.Choose(OptOnlyStart, OptDefShut);
    ShowType(type);
}

void SelPictureForm::ShowType(SetType type) {
    const SetType former = type_;
    type_ = type;
    if (former == SetType::DefaultScreens && type != former) ShowSetsOwnSlots();
    if (type == SetType::DefaultScreens && type != former) KeepSetsOwnSlots();
    if (type == SetType::Complete) OptCompSet_Click();
    if (type == SetType::DefaultScreens) OptDefShut_Click();
    if (type == SetType::OnlyStartup) OptOnlyStart_Click();
    ShowFaults();
}

// The shared screens take the places of the set's own wait and shutdown screens for a while.
void SelPictureForm::KeepSetsOwnSlots() {
    for (int i = 1; i < 3; ++i) setsOwnTag_[i] = ImgPreview[i].Tag();
}

void SelPictureForm::ShowSetsOwnSlots() {
    for (int i = 1; i < 3; ++i) ShowInSlot(i, setsOwnTag_[i]);
}

void SelPictureForm::ShowSlot(int index, bool used) {
    ImgPreview[index].SetVisible(used);
    AddButton[index].SetVisible(used);
    DeleteButton[index].SetVisible(used);
    LblNotAval[index].SetVisible(!used);
    SlotFrame[index].SetVisible(!used);
}

void SelPictureForm::OptCompSet_Click() {
    for (int i = 0; i < 3; ++i) ShowSlot(i, true);
    NameLogoSet.SetEnabled(true);
    ActButton.SetText("Ac&tion...");
    const std::string name = NameLogoSet.Text();
    if (core::IsSingleLogoSet(name)) NameLogoSet.SetText(name.substr(0, name.size() - 4));
    OptionWasSet();
}

void SelPictureForm::OptOnlyStart_Click() {
    ShowSlot(0, true);
    ShowSlot(1, false);
    ShowSlot(2, false);
    NameLogoSet.SetEnabled(true);
    ActButton.SetText("Ac&tion...");
    OptionWasSet();
}

void SelPictureForm::OptionWasSet() {
    if (OptionSetByCode) {
        OptionSetByCode = false;
        return;
    }
    SetChanged = true;
    CheckBtnStatus();
}

void SelPictureForm::OptDefShut_Click() {
    ShowSlot(0, false);
    NameLogoSet.SetEnabled(false);
    ActButton.SetText("Save se&tting");
    for (int i = 1; i < 3; ++i) {
        ShowSlot(i, true);
        ShowInSlot(i, LogoFolder() + core::kScreenFileNames[i]);
    }
}

// Shows a file that is in the slot already, or none: unlike filling it with another one.
void SelPictureForm::ShowInSlot(int index, const std::string& path) {
    preview::DrawPreview(path, ImgPreview[index]);
    ImgPreview[index].SetTag(path);
    // Grey where a file is named that shows nothing.
    DeleteButton[index].SetEnabled(path.empty() || ImgPreview[index].HasPicture());
    JudgeSlot(index);
}

void SelPictureForm::AddButton_Click(int index) {
    const long verdict = ImageInfo.ForeColor();
    if (verdict == kNoPictureColor) return;
    SetChanged = true;
    CheckBtnStatus();
    if (verdict == kReadyColor) {
        FillSlot(index, SelectedPicture);
        return;
    }
    const platform::BusyPointer busy;
    const std::string converted = ConvertSelected();
    // Without a temporary file the slot keeps what it holds.
    if (!converted.empty()) FillSlot(index, converted);
}

std::string SelPictureForm::ConvertSelected() {
    const std::string converted = NewFileOfSession()();
    if (converted.empty()) return {};
    // What cannot be read or written leaves the temporary file empty, and no set gets a copy of it.
    pictures::ConvertToLogo(SelectedPicture, converted);
    // Whoever adjusts the slot begins with the picture itself.
    adjustments_.RememberConversion(converted, SelectedPicture);
    return converted;
}

void SelPictureForm::FillSlot(int index, const std::string& path) {
    // A file that is no picture leaves the box empty.
    preview::DrawPreview(path, ImgPreview[index]);
    ImgPreview[index].SetTag(path);
    DeleteButton[index].SetEnabled(true);
    JudgeSlot(index);
}

void SelPictureForm::DeleteButton_Click(int index) {
    if (ImgPreview[index].HasPicture()) SetChanged = true;
    CheckBtnStatus();
    EmptySlot(index);
}

// Quirk: changes neither SetChanged nor the commands, since it also clears up after a set that is
// no more (Deleting.EmptiesAllSlotsAndLeavesTheCommandsAsTheyAre).
void SelPictureForm::ClearAllButton_Click() {
    for (int i = 0; i < 3; ++i) EmptySlot(i);
}

void SelPictureForm::EmptySlot(int index) { ShowInSlot(index, ""); }

}  // namespace vistrel::editor
