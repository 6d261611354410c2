// Loading, writing and deleting sets in the Logo browser. What a command writes before a step fails
// stays written, and the step's failure ends the command.
#include "core/entry_name.h"
#include "core/generali.h"
#include "core/library.h"
#include "editor/elimina_logo_set.h"
#include "editor/select_picture_form.h"
#include "editor/slot_file.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/pointer.h"

namespace vistrel::editor {
namespace {

/// Places in arrays of the three screens.
constexpr int kStartup = 0;
constexpr int kWait = 1;
constexpr int kShutdown = 2;

/// The names of the screens that a folder holds, for the user to read.
std::string ScreensIn(const std::string& folder) {
    std::string names;
    for (const char* screen : core::kScreenFileNames) {
        if (!HoldsPicture(folder + screen)) continue;
        if (!names.empty()) names += ", ";
        names += screen;
    }
    return names.empty() ? "no screens" : names;
}

/// True for a file that the folder has as the screen of another slot than this one.
bool IsScreenOfAnotherSlot(int index, const std::string& path, const std::string& folder) {
    for (int other = 0; other < 3; ++other)
        if (other != index && IsSameFile(path, folder + core::kScreenFileNames[other])) return true;
    return false;
}

}  // namespace

void SelPictureForm::NameLogoSet_Change() {
    if (NameLogoSet.Text().empty()) {
        controls::EnableControls(false, OkButton[0], OkButton[1], EliminaSetBtn);
        LblWritten.SetText("");
        return;
    }
    NameChanged = true;
    CheckBtnStatus();
}

void SelPictureForm::NameLogoSet_Click() {
    LoadedIndex = NameLogoSet.ListIndex();
    const platform::BusyPointer busy;
    LoadedSet = NameLogoSet.Text();
    ChooseByCode(core::IsSingleLogoSet(LoadedSet) ? SetType::OnlyStartup : SetType::Complete);
    LoadSlots(LogoFolder() + LoadedSet + "\\");
    EliminaSetBtn.SetEnabled(true);
    SetChanged = false;
    NameChanged = false;
    CheckBtnStatus();
}

void SelPictureForm::LoadSlots(const std::string& setFolder) {
    for (int i = 0; i < 3; ++i) ShowInSlot(i, setFolder + core::kScreenFileNames[i]);
}

// The name as a folder will have it. What no folder can be named stays as it was typed, and making
// or renaming the folder then fails.
std::string SelPictureForm::NameToSave() {
    const std::string typed = NameLogoSet.Text();
    std::string name = core::SetFolderName(typed, LogoFolder()).value_or(typed);
    if (OptOnlyStart.Value() && !core::IsSingleLogoSet(name)) name += ".sls";
    if (name != typed) NameLogoSet.SetText(name);
    return name;
}

void SelPictureForm::OkButton_Click(int index) {
    LibraryChanged = true;
    const std::string name = lastRead_ = NameToSave();
    const std::string folder = core::AddBackslash(LogoFolder() + name);
    if (index == 1 ? UpdateSet(name) : CreateSet(name))
        FinishSaving((index == 1 ? "Updated " : "Created ") + name, folder);
    else
        ReportSaveError();
}

bool SelPictureForm::UpdateSet(const std::string& name) {
    const std::string oldName = NameLogoSet.Item(LoadedIndex);
    if (!RenameLoadedSet(oldName, name)) return false;
    const std::string folder = core::AddBackslash(LogoFolder() + name);
    if (!KeepSources(kStartup, OptCompSet.Value() ? kShutdown : kStartup, folder)) return false;
    if (!RemoveFilesOfEmptySlots(kStartup, kStartup, folder) ||
        !CopySlots(kStartup, kStartup, folder))
        return false;
    if (OptCompSet.Value()) {
        if (!RemoveFilesOfEmptySlots(kWait, kShutdown, folder) ||
            !CopySlots(kWait, kShutdown, folder))
            return false;
    } else if (!platform::Remove(folder + core::kScreenFileNames[kWait]) ||
               !platform::Remove(folder + core::kScreenFileNames[kShutdown])) {
        return false;
    }
    FollowInstalledSet(oldName, name);
    return true;
}

// The set selected in the main window counts, whichever was loaded here: it is kept so. While the
// installed screens are shown there, none is selected.
void SelPictureForm::FollowInstalledSet(const std::string& oldName, const std::string& name) {
    const std::string installed = main_.CurrentSet();
    const int selected = main_.SelectedSet();
    const bool installedSelected =
        selected >= 0 && main_.SetNames()[static_cast<std::size_t>(selected)] == installed;
    if (installedSelected || oldName == installed) main_.SetCurrentSet(name);
}

bool SelPictureForm::RenameLoadedSet(const std::string& oldName, const std::string& name) {
    if (oldName == name) return true;
    // Without a name the folder would be the logo folder itself.
    if (oldName.empty() || !core::SetFolderName(name, LogoFolder())) return false;
    if (!platform::Rename(LogoFolder() + oldName, LogoFolder() + name)) return false;
    ReplaceName(oldName, name);
    // Slots that hold the set's own screens would otherwise have no source any more.
    FollowRename(LogoFolder() + oldName, LogoFolder() + name);
    return true;
}

bool SelPictureForm::CreateSet(const std::string& name) {
    if (!core::SetFolderName(name, LogoFolder()) || !platform::MakeFolder(LogoFolder() + name))
        return false;
    const std::string folder = core::AddBackslash(LogoFolder() + name);
    const int last = OptCompSet.Value() ? kShutdown : kStartup;
    for (int i = kStartup; i <= last; ++i) {
        const std::string tag = ReadTag(i);
        if (HoldsPicture(tag) && !CopyScreen(tag, folder + core::kScreenFileNames[i])) return false;
    }
    LoadedIndex = NameLogoSet.AddItem(name);
    NameLogoSet.SetListIndex(LoadedIndex);
    LoadedSet = name;
    return true;
}

void SelPictureForm::SaveDefaultScreens() {
    LibraryChanged = true;
    if (KeepSources(kWait, kShutdown, LogoFolder()) &&
        RemoveFilesOfEmptySlots(kWait, kShutdown, LogoFolder()) &&
        CopySlots(kWait, kShutdown, LogoFolder()))
        FinishSaving("Saved the default screens", LogoFolder());
    else
        ReportSaveError();
}

std::string SelPictureForm::ReadTag(int index) { return lastRead_ = ImgPreview[index].Tag(); }

bool SelPictureForm::RemoveFilesOfEmptySlots(int first, int last, const std::string& folder) {
    for (int i = first; i <= last; ++i)
        if (ReadTag(i).empty() && !platform::Remove(folder + core::kScreenFileNames[i]))
            return false;
    return true;
}

// An empty slot is not passed over: there is nothing to copy then, which fails.
bool SelPictureForm::CopySlots(int first, int last, const std::string& folder) {
    for (int i = first; i <= last; ++i)
        if (!CopyScreen(ReadTag(i), folder + core::kScreenFileNames[i])) return false;
    return true;
}

// A slot may hold a screen of the same folder that another slot is about to replace or delete: its
// picture is kept aside first, until the session ends.
bool SelPictureForm::KeepSources(int first, int last, const std::string& folder) {
    for (int i = first; i <= last; ++i) {
        const std::string tag = ImgPreview[i].Tag();
        if (HoldsPicture(tag) && IsScreenOfAnotherSlot(i, tag, folder) && !KeepSource(i))
            return false;
    }
    return true;
}

bool SelPictureForm::KeepSource(int index) {
    const std::string kept = core::GetTempFile();
    if (kept.empty()) return false;
    List1.AddItem(kept);
    if (!CopyScreen(ReadTag(index), kept)) return false;
    ImgPreview[index].SetTag(kept);
    return true;
}

void SelPictureForm::FinishSaving(const std::string& what, const std::string& folder) {
    controls::EnableControls(false, OkButton[0], OkButton[1]);
    EliminaSetBtn.SetEnabled(!NameLogoSet.Text().empty());
    SetChanged = false;
    NameChanged = false;
    AggiornaDir();
    LblWritten.SetText(what + ": " + ScreensIn(folder));
}

void SelPictureForm::ReportSaveError() {
    LblWritten.SetText("");
    platform::Ask(handle(),
                  "A directory named " + lastRead_ + " already exist or bad directory name!",
                  platform::kExclamationOk, "Cannot create directory");
}

void SelPictureForm::EliminaSetBtn_Click() {
    const std::string name = NameLogoSet.Text();
    // Without a name the folder would be the logo folder itself.
    if (name.empty()) return;
    if (!EliminaLogoSet(handle(), main_, LogoFolder() + name, name, name)) return;
    LibraryChanged = true;
    ForgetLoadedSet(name);
    AggiornaDir();
}

}  // namespace vistrel::editor
