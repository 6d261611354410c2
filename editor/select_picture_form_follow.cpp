// Renaming and deleting in the Logo browser's list, and how the session follows: what it names by
// path or by set moves along with a folder, and what is gone is forgotten.
#include <algorithm>

#include "core/entry_name.h"
#include "core/file_handling.h"
#include "core/generali.h"
#include "core/library.h"
#include "core/rotation.h"
#include "core/slot_file.h"
#include "editor/select_picture_form.h"
#include "platform/files.h"
#include "platform/message_box.h"

namespace vistrel::editor {
namespace {

constexpr const char* kParentFolder = "..";

bool SameName(const std::string& name, const std::string& other) {
    return core::UpperCase(name) == core::UpperCase(other);
}

std::string WithoutBackslash(std::string folder) {
    if (folder.ends_with('\\')) folder.pop_back();
    return folder;
}

}  // namespace

// Renaming and deleting are about one item: which of several was meant would be a guess.
void SelPictureForm::ItmRename_Click() {
    if (LogoList.SelectedItems().size() == 1) LogoList.StartLabelEdit();
}

bool SelPictureForm::LogoList_BeforeLabelEdit() {
    oldName_ = LogoList.ItemText(LogoList.EditedItem());
    return oldName_ != kParentFolder;
}

bool SelPictureForm::LogoList_AfterLabelEdit(const std::string& typed) {
    const std::string before = CurrentFolder + oldName_;
    const bool folder = platform::IsFolder(before);
    const auto name =
        folder ? core::SetFolderName(typed, CurrentFolder) : core::EntryName(typed, CurrentFolder);
    if (name == oldName_) return false;
    if (!name || !platform::Rename(before, CurrentFolder + *name)) {
        platform::Tell(handle(), "Cannot rename " + oldName_ + ". A file or folder named " + typed +
                                     " already exists or the name is not valid.");
        return false;
    }
    const std::string after = CurrentFolder + *name;
    FollowRename(before, after);
    if (folder && InLogoFolder()) FollowRenamedSet(oldName_, *name);
    AggiornaDir();
    SelectInList(*name);
    // Another ending may make another kind of picture of it.
    if (SelectedPicture == after) CheckImage(after);
    // The list shows the new name already.
    return false;
}

void SelPictureForm::ItmDelete_Click() {
    const std::string name = SelectedName();
    if (LogoList.SelectedItems().size() != 1 || name == kParentFolder) return;
    const std::string path = CurrentFolder + name;
    const bool isSet = InLogoFolder() && platform::IsFolder(path);
    const int place = LogoList.SelectedItem();
    core::DeleteToRecycleBin(handle(), {path});
    if (TouchesLibrary(path)) LibraryChanged = true;
    AggiornaDir();
    if (platform::FileAttributes(path)) return;
    // The keys go on at the next item; another deletion is to be meant.
    LogoList.GiveKeys(std::min(place, LogoList.Count() - 1));
    if (core::IsAtOrIn(SelectedPicture, path)) ForgetPicture();
    if (!isSet) return;
    core::RemoveLeftOut(host_.Preferences(), name);
    if (SameName(name, LoadedSet))
        ForgetLoadedSet(name);
    else
        RemoveName(name);
}

bool SelPictureForm::InLogoFolder() const {
    return SameName(CurrentFolder, core::AddBackslash(LogoFolder()));
}

bool SelPictureForm::TouchesLibrary(const std::string& path) const {
    const std::string library = WithoutBackslash(LogoFolder());
    return core::IsAtOrIn(path, library) || core::IsAtOrIn(library, path);
}

void SelPictureForm::FollowRename(const std::string& from, const std::string& to) {
    for (controls::PictureBox& slot : ImgPreview)
        slot.SetTag(core::Repointed(slot.Tag(), from, to));
    for (std::string& tag : setsOwnTag_) tag = core::Repointed(tag, from, to);
    SelectedPicture = core::Repointed(SelectedPicture, from, to);
    adjustments_.Repoint([&](const std::string& path) { return core::Repointed(path, from, to); });
    CurView.SetTag(core::Repointed(CurView.Tag(), from, to));
    if (core::IsAtOrIn(CurrentFolder, from)) {
        CurrentFolder = core::Repointed(CurrentFolder, from, to);
        ShowPath(CurrentFolder);
    }
    if (TouchesLibrary(from)) LibraryChanged = true;
}

void SelPictureForm::FollowRenamedSet(const std::string& from, const std::string& to) {
    const bool loaded = SameName(from, LoadedSet);
    ReplaceName(from, to);
    host_.SetWasRenamed(from, to);
    const auto installed = host_.InstalledSet();
    if (installed && SameName(from, *installed)) host_.SetInstalledSet(to);
    if (loaded && type_ != SetType::DefaultScreens &&
        core::IsSingleLogoSet(from) != core::IsSingleLogoSet(to))
        ChooseByCode(core::IsSingleLogoSet(to) ? SetType::OnlyStartup : SetType::Complete);
}

// Gives a set another name in the combo box, in its field too where that shows the former one.
void SelPictureForm::ReplaceName(const std::string& from, const std::string& to) {
    const std::string shown = NameLogoSet.Text();
    if (SameName(from, LoadedSet)) LoadedSet = to;
    const int index = NameLogoSet.FindItem(from);
    if (index >= 0) NameLogoSet.RemoveItem(index);
    const int added = NameLogoSet.AddItem(to);
    if (SameName(shown, from) || SameName(shown, to))
        NameLogoSet.SetListIndex(added);
    else
        NameLogoSet.SetText(shown);
    FindLoadedIndex();
}

// Takes a set's name out of the combo box; its field keeps what it shows.
void SelPictureForm::RemoveName(const std::string& name) {
    const std::string shown = NameLogoSet.Text();
    const int index = NameLogoSet.FindItem(name);
    if (index >= 0) NameLogoSet.RemoveItem(index);
    NameLogoSet.SetText(shown);
    FindLoadedIndex();
}

void SelPictureForm::FindLoadedIndex() {
    LoadedIndex = LoadedSet.empty() ? -1 : NameLogoSet.FindItem(LoadedSet);
}

void SelPictureForm::ForgetLoadedSet(const std::string& name) {
    LoadedSet.clear();
    EliminaSetBtn.SetEnabled(false);
    RemoveName(name);
    // What the user has typed for the next set stays.
    if (!NameChanged || SameName(NameLogoSet.Text(), name)) NameLogoSet.SetText("");
    OkButton[1].SetEnabled(false);
    NameLogoSet_Change();
    for (std::string& tag : setsOwnTag_) tag.clear();
    // The shared screens belong to no set.
    if (type_ != SetType::DefaultScreens) ClearAllButton_Click();
}

// The logo folder may be another one since the preferences were opened from a picture's menu. What
// is in the slots can still become a set, of the library that there is now.
void SelPictureForm::FollowLogoFolder() {
    if (LogoFolder() == shownLogoFolder_) return;
    shownLogoFolder_ = LogoFolder();
    const std::string shown = NameLogoSet.Text();
    ListNames();
    NameLogoSet.SetText(shown);
    LoadedSet.clear();
    LoadedIndex = -1;
    controls::EnableControls(false, OkButton[1], EliminaSetBtn);
    CheckBtnStatus();
    if (type_ == SetType::DefaultScreens) OptDefShut_Click();
}

}  // namespace vistrel::editor
