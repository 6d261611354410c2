// The main window's list: reading the logo folder, showing a set, selecting, renaming, deleting and
// importing sets.
#include "controls/window_place.h"
#include "core/entry_name.h"
#include "core/generali.h"
#include "core/library.h"
#include "main_window/principale.h"
#include "pictures/preview/draw_preview.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/pointer.h"
#include "platform/shell.h"

namespace vistrel::main_window {
namespace {

/// SHFileOperation's flag that answers yes to every question.
constexpr unsigned short kYesToAll = 16;

/// "D:" or "D:\\", which has no name to be a set's.
bool IsDriveRoot(const std::string& path) {
    return path.size() <= 3 && path.size() >= 2 && path[1] == ':';
}

}  // namespace

std::vector<std::string> Principale::SetNames() const {
    std::vector<std::string> names;
    for (int i = 0; i < MyList.Count(); ++i) names.push_back(MyList.ItemText(i));
    return names;
}

std::string Principale::CurrentSet() const {
    return savedView_ ? savedView_->currentSet : DefaultLogo.Text();
}

void Principale::SetCurrentSet(const std::string& name) {
    settings_.defaultLogoSet = name;
    // While the installed screens are shown the label keeps saying so.
    if (savedView_)
        savedView_->currentSet = name;
    else
        DefaultLogo.SetText(name);
}

void Principale::LeggiDatiDisco() {
    const bool installedShown = savedView_.has_value();
    if (installedShown) LeaveInstalledView();

    bool installedFound = false;
    MyList.SuspendPainting();
    MyList.Clear();
    core::ForEachLogoSet(core::AddBackslash(settings_.logoPath), [&](const std::string& name) {
        if (name == settings_.defaultLogoSet) installedFound = true;
        MyList.AddItem(name, core::IconKeyOfSet(name));
    });
    MyList.ResumePainting();
    ShowListaLogo();
    VisualizzaNumLogo();
    if (installedFound) SelItem(settings_.defaultLogoSet);
    DefaultLogo.SetText(installedFound ? settings_.defaultLogoSet : core::kUnknownSet);

    if (installedShown) ShowInstalledScreens();
}

void Principale::VisualizzaNumLogo() {
    NumLogo.SetText(core::CountLine(MyList.Count()));
    if (MyList.Count() == 0) LogoType.SetText("");
}

void Principale::ShowScreens(const std::array<std::string, 3>& paths) {
    for (int i = 0; i < 3; ++i) {
        preview::DrawPreview(paths[i], Imag[i]);  // a missing screen clears the box
        Imag[i].SetTag(paths[i]);
    }
}

void Principale::ClearScreens() {
    for (controls::PictureBox& box : Imag) {
        box.SetTag("");
        box.Clear();
    }
}

void Principale::RedrawScreens() {
    for (controls::PictureBox& box : Imag)
        if (box.HasPicture()) preview::DrawPreview(box.Tag(), box);
}

void Principale::ShowListaLogo() {
    const int selected = MyList.SelectedItem();
    if (selected < 0) {
        ClearScreens();
        LogoType.SetText("");
        return;
    }
    const platform::BusyPointer busy;
    const std::string name = MyList.ItemText(selected);
    LogoType.SetText(core::TypeCaptionOfSet(name));
    ShowScreens(core::ScreenPathsOfSet(settings_.logoPath, name));
}

void Principale::SelItem(const std::string& name) {
    const int index = MyList.FindItem(name);
    if (index < 0) return;
    MyList.Select(index);
    MyList.EnsureVisible(index);
    ShowListaLogo();
}

bool Principale::MyList_BeforeLabelEdit() {
    oldName_ = MyList.ItemText(MyList.EditedItem());
    return true;
}

bool Principale::ConfirmFormatChange(bool toSingle) {
    if (settings_.confirmLogoTypeChange != 1) return true;
    const std::string from = toSingle ? "Multi Logo" : "Single Logo";
    const std::string to = toSingle ? "Single Logo" : "Multi Logo";
    return platform::Ask(
               handle(),
               "Would you like to change your logoset format from " + from + " to " + to + "?",
               platform::kQuestionYesNo) == platform::Answer::Yes;
}

bool Principale::MyList_AfterLabelEdit(const std::string& typed) {
    const auto folder = core::SetFolderName(typed, settings_.logoPath);
    if (folder == oldName_) return false;
    const std::string newName = folder.value_or(typed);
    const bool toSingle = core::IsSingleLogoSet(newName);
    const bool formatChanges = toSingle != core::IsSingleLogoSet(oldName_);
    if (formatChanges && !ConfirmFormatChange(toSingle)) return false;

    const int edited = MyList.EditedItem();
    // The new icon stays although the renaming may fail: it is kept so until the next refresh.
    if (formatChanges) MyList.SetItemIcon(edited, core::IconKeyOfSet(newName));
    if (!folder || !platform::Rename(settings_.logoPath + oldName_, settings_.logoPath + newName)) {
        platform::Ask(handle(),
                      "Cannot rename folder. The folder already exists or has an invalid name",
                      platform::kExclamationOk);
        return false;
    }
    MyList.SetItemText(edited, newName);
    SelItem(newName);
    if (CurrentSet() == oldName_) SetCurrentSet(newName);
    // The label shows the folder's name by now, which is not always the text as it was typed.
    return false;
}

void Principale::SelectAfterDelete(int index) {
    if (MyList.Count() == 0) {
        ClearScreens();
        return;
    }
    const int next = index == MyList.Count() ? index - 1 : index;
    SelItem(MyList.ItemText(next));
}

bool Principale::ConfirmOverwriting(const std::string& name) {
    // The folder came from another window, which is still the one in front.
    controls::BringToFront(handle());
    return platform::Ask(
               handle(),
               "The selected folder '" + name +
                   "' already exist in your logo folder. Would you like to overwrite the existing "
                   "files?",
               platform::kQuestionYesNoDefaultNo) == platform::Answer::Yes;
}

void Principale::MyList_OLEDragDrop(const std::vector<std::string>& paths) {
    bool showLast = false;
    std::string name;
    for (std::string path : paths) {
        showLast = false;
        if (IsDriveRoot(path) || !platform::IsFolder(core::AddBackslash(path))) continue;
        name = core::GetFileName(path);
        const bool exists = platform::IsFolder(settings_.logoPath + name);
        if (exists && !ConfirmOverwriting(name)) continue;
        // Whether the shell could copy it is not asked: the list catches up at the next refresh.
        platform::ShellCopy(handle(), path, settings_.logoPath, kYesToAll);
        if (!exists) MyList.AddItem(name, core::IconKeyOfSet(name));
        showLast = true;
    }
    if (!showLast) return;
    EndInstalledView();
    // An existing set may have been dropped in other case than the list has it.
    const int item = MyList.FindItemOfAnyCase(name);
    if (item >= 0) SelItem(MyList.ItemText(item));
}

}  // namespace vistrel::main_window
