// Loading, writing and deleting sets in the Logo browser. What a command writes before a step fails
// stays written, and the step's failure ends the command.
#include "core/generali.h"
#include "core/library.h"
#include "editor/elimina_logo_set.h"
#include "editor/select_picture_form.h"
#include "editor/slot_file.h"
#include "pictures/draw_preview.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/pointer.h"

namespace vistrel {
namespace {

/// Places in arrays of the three screens.
constexpr int kStartup = 0;
constexpr int kWait = 1;
constexpr int kShutdown = 2;

}  // namespace

void SelPictureForm::NameLogoSet_Change() {
    if (NameLogoSet.Text().empty()) {
        EnableControls(false, OkButton[0], OkButton[1]);
        return;
    }
    NameChanged = true;
    CheckBtnStatus();
}

void SelPictureForm::NameLogoSet_Click() {
    LoadedIndex = NameLogoSet.ListIndex();
    const BusyPointer busy;
    LoadedSet = NameLogoSet.Text();
    ChooseByCode(IsSingleLogoSet(LoadedSet) ? SetType::OnlyStartup : SetType::Complete);
    LoadSlots(LogoFolder() + LoadedSet + "\\");
    EliminaSetBtn.SetEnabled(true);
    SetChanged = false;
    NameChanged = false;
    CheckBtnStatus();
}

void SelPictureForm::LoadSlots(const std::string& setFolder) {
    for (int i = 0; i < 3; ++i) {
        const std::string path = setFolder + kScreenFileNames[i];
        DrawPreview(path, ImgPreview[i]);
        ImgPreview[i].SetTag(path);
        DeleteButton[i].SetEnabled(ImgPreview[i].HasPicture());
    }
}

void SelPictureForm::OkButton_Click(int index) {
    LibraryChanged = true;
    std::string name = NameLogoSet.Text();
    if (OptOnlyStart.Value() && !IsSingleLogoSet(name)) {
        name += ".sls";
        NameLogoSet.SetText(name);
    }
    lastRead_ = name;
    if (index == 1 ? UpdateSet(name) : CreateSet(name))
        FinishSaving();
    else
        ReportSaveError();
}

bool SelPictureForm::UpdateSet(const std::string& name) {
    if (!RenameLoadedSet(name)) return false;
    const std::string folder = AddBackslash(LogoFolder() + name);
    // Unchanged slots have nothing to copy that would tell of a folder that has gone.
    if (!IsFolder(folder)) return false;
    if (!RemoveFilesOfEmptySlots(kStartup, kStartup, folder) ||
        !CopySlots(kStartup, kStartup, folder))
        return false;
    if (OptCompSet.Value()) {
        if (!RemoveFilesOfEmptySlots(kWait, kShutdown, folder) ||
            !CopySlots(kWait, kShutdown, folder))
            return false;
    } else if (!Remove(folder + kScreenFileNames[kWait]) ||
               !Remove(folder + kScreenFileNames[kShutdown])) {
        return false;
    }
    // The set selected in the main window counts, whichever was loaded here: it is kept so.
    const int selected = main_.SelectedSet();
    if (selected >= 0 && main_.SetNames()[static_cast<std::size_t>(selected)] == main_.CurrentSet())
        main_.SetCurrentSet(name);
    return true;
}

bool SelPictureForm::RenameLoadedSet(const std::string& name) {
    const std::string oldName = NameLogoSet.Item(LoadedIndex);
    if (oldName == name) return true;
    if (!Rename(LogoFolder() + oldName, LogoFolder() + name)) return false;
    NameLogoSet.RemoveItem(LoadedIndex);
    AddName(name);
    // Slots that hold the set's own screens would otherwise have no source any more.
    RepointSlots(LogoFolder() + oldName + "\\", AddBackslash(LogoFolder() + name));
    return true;
}

bool SelPictureForm::CreateSet(const std::string& name) {
    if (!MakeFolder(LogoFolder() + name)) return false;
    const std::string folder = AddBackslash(LogoFolder() + name);
    const int last = OptCompSet.Value() ? kShutdown : kStartup;
    for (int i = kStartup; i <= last; ++i) {
        const std::string tag = ReadTag(i);
        if (HoldsPicture(tag) && !CopyScreen(tag, folder + kScreenFileNames[i])) return false;
    }
    AddName(name);
    return true;
}

// Adds a set's name to the combo box and makes it the set that is being edited.
void SelPictureForm::AddName(const std::string& name) {
    LoadedIndex = NameLogoSet.AddItem(name);
    NameLogoSet.SetListIndex(LoadedIndex);
    LoadedSet = name;
}

bool SelPictureForm::SaveDefaultScreens() {
    return RemoveFilesOfEmptySlots(kWait, kShutdown, LogoFolder()) &&
           CopySlots(kWait, kShutdown, LogoFolder());
}

std::string SelPictureForm::ReadTag(int index) { return lastRead_ = ImgPreview[index].Tag(); }

bool SelPictureForm::RemoveFilesOfEmptySlots(int first, int last, const std::string& folder) {
    for (int i = first; i <= last; ++i)
        if (ReadTag(i).empty() && !Remove(folder + kScreenFileNames[i])) return false;
    return true;
}

// An empty slot is not passed over: there is nothing to copy then, which fails.
bool SelPictureForm::CopySlots(int first, int last, const std::string& folder) {
    for (int i = first; i <= last; ++i)
        if (!CopyScreen(ReadTag(i), folder + kScreenFileNames[i])) return false;
    return true;
}

void SelPictureForm::FinishSaving() {
    EnableControls(false, OkButton[0], OkButton[1]);
    EliminaSetBtn.SetEnabled(true);
    SetChanged = false;
    NameChanged = false;
    AggiornaDir();
}

void SelPictureForm::ReportSaveError() {
    Ask(handle(), "A directory named " + lastRead_ + " already exist or bad directory name!",
        kExclamationOk, "Cannot create directory");
}

void SelPictureForm::EliminaSetBtn_Click() {
    const std::string name = NameLogoSet.Text();
    // Without a name the folder would be the logo folder itself.
    if (name.empty()) return;
    if (!EliminaLogoSet(handle(), main_, LogoFolder() + name, name, name)) return;
    LibraryChanged = true;
    LoadedSet.clear();
    LoadedIndex = -1;
    EliminaSetBtn.SetEnabled(false);
    NameLogoSet.RemoveItem(NameLogoSet.ListIndex());
    NameLogoSet.SetText("");
    NameLogoSet_Change();
    ClearAllButton_Click();
    AggiornaDir();
}

}  // namespace vistrel
