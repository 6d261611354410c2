// Loading, saving and deleting sets in the Logo browser.
#include "core/entry_name.h"
#include "core/generali.h"
#include "core/library.h"
#include "core/slot_file.h"
#include "editor/elimina_logo_set.h"
#include "editor/select_picture_form.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/pointer.h"

namespace vistrel::editor {
namespace {

/// The names of the screens that a folder holds, for the user to read.
std::string NamesOfScreens(const std::string& folder) {
    std::string names;
    for (const char* screen : core::kScreenFileNames) {
        if (!core::HoldsPicture(folder + screen)) continue;
        if (!names.empty()) names += ", ";
        names += screen;
    }
    return names.empty() ? "no screens" : names;
}

}  // namespace

void SelPictureForm::NameLogoSet_Change() {
    if (NameLogoSet.Text().empty()) {
        controls::EnableControls(false, OkButton[0], OkButton[1], EliminaSetBtn);
        ShowWritten("");
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
    LoadSlots(core::LogoSet{LogoFolder(), LoadedSet});
    EliminaSetBtn.SetEnabled(true);
    SetChanged = false;
    NameChanged = false;
    CheckBtnStatus();
}

void SelPictureForm::LoadSlots(const core::LogoSet& set) {
    const std::array<std::string, 3> screens = core::ScreensIn(set.Folder());
    for (int i = 0; i < 3; ++i) ShowInSlot(i, screens[i]);
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

core::SetKind SelPictureForm::KindToSave() const {
    return OptCompSet.Value() ? core::SetKind::Complete : core::SetKind::StartupOnly;
}

void SelPictureForm::OkButton_Click(int index) {
    LibraryChanged = true;
    const core::LogoSet set{LogoFolder(), NameToSave()};
    const core::SaveResult result = index == 1 ? UpdateLoadedSet(set) : CreateNewSet(set);
    FinishSaving(result, (index == 1 ? "Updated " : "Created ") + set.name, set.Folder());
}

core::SaveResult SelPictureForm::UpdateLoadedSet(const core::LogoSet& set) {
    const std::string oldName = NameLogoSet.Item(LoadedIndex);
    if (!RenameLoadedSet(oldName, set.name)) return {false, set.name};
    core::Slots slots = FilesInSlots();
    const core::SaveResult result = core::UpdateSet(set, KindToSave(), slots, NewFileOfSession());
    TagSlots(slots);
    if (result.saved) FollowInstalledSet(oldName, set.name);
    return result;
}

// Quirk: the set selected in the main window counts, whichever was loaded here
// (Saving.TheInstalledSetFollowsTheSetSelectedInTheMainWindow). While the installed screens are
// shown there, none is selected.
void SelPictureForm::FollowInstalledSet(const std::string& oldName, const std::string& name) {
    const auto installed = host_.InstalledSet();
    const int selected = host_.SelectedSet();
    const bool installedSelected =
        selected >= 0 && host_.SetNames()[static_cast<std::size_t>(selected)] == installed;
    if (installedSelected || oldName == installed) host_.SetInstalledSet(name);
}

bool SelPictureForm::RenameLoadedSet(const std::string& oldName, const std::string& name) {
    const core::LogoSet former{LogoFolder(), oldName};
    if (!core::RenameSet(former, name)) return false;
    if (oldName == name) return true;
    ReplaceName(oldName, name);
    host_.SetWasRenamed(oldName, name);
    // Slots that hold the set's own screens would otherwise have no source any more.
    FollowRename(former.Path(), LogoFolder() + name);
    return true;
}

core::SaveResult SelPictureForm::CreateNewSet(const core::LogoSet& set) {
    const core::SaveResult result = core::CreateSet(set, KindToSave(), FilesInSlots());
    if (result.saved) {
        LoadedIndex = NameLogoSet.AddItem(set.name);
        NameLogoSet.SetListIndex(LoadedIndex);
        LoadedSet = set.name;
    }
    return result;
}

void SelPictureForm::SaveDefaultScreens() {
    LibraryChanged = true;
    core::Slots slots = FilesInSlots();
    const core::SaveResult result =
        core::SaveSharedScreens(LogoFolder(), slots, NewFileOfSession());
    TagSlots(slots);
    FinishSaving(result, "Saved the default screens", LogoFolder());
}

core::Slots SelPictureForm::FilesInSlots() const {
    return {ImgPreview[0].Tag(), ImgPreview[1].Tag(), ImgPreview[2].Tag()};
}

void SelPictureForm::TagSlots(const core::Slots& slots) {
    for (std::size_t i = 0; i < slots.size(); ++i) ImgPreview[i].SetTag(slots[i]);
}

core::NewSessionFile SelPictureForm::NewFileOfSession() {
    return [this] {
        const std::string file = core::GetTempFile();
        if (!file.empty()) List1.AddItem(file);
        return file;
    };
}

void SelPictureForm::FinishSaving(const core::SaveResult& result, const std::string& what,
                                  const std::string& folder) {
    // A command that failed may have written some of the screens.
    ShowPictureAnew();
    if (!result.saved) {
        // Quirk: the message is about the folder, whichever step failed, and names what was read
        // last (Saving.AnEmptySlotDeletesItsScreenAndEndsTheUpdate).
        ShowWritten("");
        platform::Tell(
            handle(),
            "A directory named " + result.lastRead + " already exist or bad directory name!",
            platform::Icon::Exclamation, "Cannot create directory");
        return;
    }
    controls::EnableControls(false, OkButton[0], OkButton[1]);
    EliminaSetBtn.SetEnabled(!NameLogoSet.Text().empty());
    SetChanged = false;
    NameChanged = false;
    AggiornaDir();
    ShowWritten(what + ": " + NamesOfScreens(folder));
}

void SelPictureForm::EliminaSetBtn_Click() {
    const std::string name = NameLogoSet.Text();
    // Without a name the folder would be the logo folder itself.
    if (name.empty()) return;
    if (!EliminaLogoSet(handle(), host_, core::LogoSet{LogoFolder(), name}.Path(), name, name))
        return;
    LibraryChanged = true;
    ForgetLoadedSet(name);
    AggiornaDir();
    ShowPictureAnew();
}

}  // namespace vistrel::editor
