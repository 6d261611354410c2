// The main window's list: reading the logo folder, showing a set, selecting, renaming, deleting and
// importing sets.
#include <algorithm>

#include "controls/window_place.h"
#include "core/entry_name.h"
#include "core/generali.h"
#include "core/import_sets.h"
#include "core/library.h"
#include "core/rotation.h"
#include "core/screen_file.h"
#include "main_window/principale.h"
#include "pictures/preview/draw_preview.h"
#include "pictures/screen/fault_words.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/pointer.h"

namespace vistrel::main_window {
std::optional<std::string> Principale::InstalledSet() const {
    if (!installedSetListed_) return std::nullopt;
    return settings_.defaultLogoSet;
}

void Principale::SetInstalledSet(const std::optional<std::string>& name) {
    settings_.defaultLogoSet = name.value_or("");
    installedSetListed_ = name.has_value();
    ShowInstalledSet();
    if (MyList.Mode() == controls::ListViewMode::Pictures) MyList.Repaint();  // its mark
}

void Principale::SetWasRenamed(const std::string& from, const std::string& to) {
    SelectedSets& selected = placeBehindBrowser_.selected;
    if (core::UpperCase(selected.shown) == core::UpperCase(from)) selected.shown = to;
    if (selected.all.erase(from) > 0) selected.all.insert(to);
    core::RenameLeftOut(settings_, from, to);
}

void Principale::ShowInstalledSet() {
    // While the installed screens are shown the label says so.
    if (!savedView_) DefaultLogo.SetText(InstalledSet().value_or(core::kUnknownSet));
    LookForInstalledSet();
}

void Principale::LeggiDatiDisco() {
    const bool installedShown = savedView_.has_value();
    if (installedShown) LeaveInstalledView();

    const Doing doing(*this, "Reading the logo folder...");  // there may be thousands of sets
    thumbnails_.Forget();
    columns_.Forget();
    sets_ = core::LogoSetNames(settings_.logoPath);
    installedSetListed_ =
        std::find(sets_.begin(), sets_.end(), settings_.defaultLogoSet) != sets_.end();
    FillList([] { return false; });
    ShowListaLogo();
    VisualizzaNumLogo();
    if (installedSetListed_) SelItem(settings_.defaultLogoSet);
    ShowInstalledSet();

    if (installedShown) ShowInstalledScreens();
}

void Principale::VisualizzaNumLogo() {
    NumLogo.SetText(core::CountLine(MyList.Count()));
    ShowCounts();
    if (MyList.Count() == 0) LogoType.SetText("");
}

void Principale::ShowScreens(const std::array<std::string, 3>& paths) {
    for (int i = 0; i < 3; ++i) {
        preview::DrawPreview(paths[i], Imag[i]);  // a missing screen clears the box
        Imag[i].SetTag(paths[i]);
    }
    ShowFaults();
}

void Principale::ClearScreens() {
    for (controls::PictureBox& box : Imag) {
        box.SetTag("");
        box.Clear();
    }
    ShowFaults();
}

void Principale::ShowFaults() {
    faultTexts_ = {};
    for (int i = 0; i < 3; ++i) {
        const auto faults = core::FaultsOfScreenFile(Imag[i].Tag());
        const std::string name = core::kScreenFileNames[i];
        const std::string sentence = screen::SentenceOn(name, faults);
        Imag[i].SetTip(sentence);
        LblScreen[i].SetForeColor(faults.empty() ? controls::kSystemColor : controls::kDarkRed);
        if (faults.empty()) continue;
        const std::string newLine = faultTexts_[0].empty() ? "" : "\r\n";
        faultTexts_[0] += newLine + sentence;
        faultTexts_[1] += newLine + name + " " + screen::InWords(faults) + ".";
        faultTexts_[2] += newLine + name + ": " + screen::InShort(faults);
        faultTexts_[3] += (faultTexts_[3].empty() ? "Faults: " : ", ") + name;
    }
    LblFaults.SetTip(faultTexts_[0]);
    FitFaults();
    // The right button on the bare window opens a menu, and on a text another one.
    LblFaults.SetVisible(!faultTexts_[0].empty());
}

// The room beside the first screen is small; the tips tell all.
void Principale::FitFaults() {
    const auto fits = [this](const std::string& text) { return LblFaults.HasRoomFor(text); };
    const auto last = faultTexts_.end() - 1;
    LblFaults.SetText(*std::find_if(faultTexts_.begin(), last, fits));
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
    ShowScreens(core::LogoSet{settings_.logoPath, name}.Screens());
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
    return platform::Confirm(
        handle(), "Would you like to change your logoset format from " + from + " to " + to + "?",
        platform::DefaultAnswer::Yes);
}

bool Principale::MyList_AfterLabelEdit(const std::string& typed) {
    const auto folder = core::SetFolderName(typed, settings_.logoPath);
    if (folder == oldName_) return false;
    const std::string newName = folder.value_or(typed);
    const bool toSingle = core::IsSingleLogoSet(newName);
    const bool formatChanges = toSingle != core::IsSingleLogoSet(oldName_);
    if (formatChanges && !ConfirmFormatChange(toSingle)) return false;

    const int edited = MyList.EditedItem();
    // Quirk: the new icon stays until the next refresh although the renaming may fail
    // (Renaming.ShowsTheIconAskedForAfterAFailedChangeOfFormatUntilTheNextRefresh).
    if (formatChanges) MyList.SetItemIcon(edited, core::IconKeyOfSet(newName));
    if (!core::RenameSet({settings_.logoPath, oldName_}, newName)) {
        platform::Tell(handle(),
                       "Cannot rename folder. The folder already exists or has an invalid name");
        return false;
    }
    MyList.SetItemText(edited, newName);
    ReplaceSet(oldName_, newName);
    SetWasRenamed(oldName_, newName);
    SelItem(newName);
    if (InstalledSet() == oldName_) SetInstalledSet(newName);
    // The label shows the folder's name by now, which is not always the text as it was typed.
    return false;
}

void Principale::SelectAfterDelete(int index) {
    if (MyList.Count() == 0) {
        ClearScreens();
        return;
    }
    const int next = std::min(index, MyList.Count() - 1);
    SelItem(MyList.ItemText(next));
}

bool Principale::ConfirmOverwriting(const std::string& name) {
    // The folder came from another window, which is still the one in front.
    controls::BringToFront(handle());
    return platform::Confirm(
        handle(),
        "The selected folder '" + name +
            "' already exist in your logo folder. Would you like to overwrite the existing "
            "files?",
        platform::DefaultAnswer::No);
}

void Principale::MyList_OLEDragDrop(const std::vector<std::string>& paths) {
    bool showLast = false;
    std::string name;
    ShowAllSets();
    for (std::string path : paths) {
        showLast = false;
        if (core::IsArchiveName(path) && !platform::IsFolder(path)) {
            const auto last = ImportArchive(path);
            showLast = last.has_value();
            name = last.value_or("");
            continue;
        }
        if (!core::CanBeImported(path, settings_.logoPath)) continue;
        name = core::GetFileName(path);
        const bool exists = platform::IsFolder(settings_.logoPath + name);
        if (exists && !ConfirmOverwriting(name)) continue;
        // Whether it could be copied is not asked: the list catches up at the next refresh.
        core::ImportSet(handle(), path, settings_.logoPath);
        if (!exists) AddSet(name);
        showLast = true;
    }
    ScreensHaveChanged();
    if (!showLast) return;
    EndInstalledView();
    // An existing set may have been dropped in other case than the list has it.
    const int item = MyList.FindItemOfAnyCase(name);
    if (item >= 0) SelItem(MyList.ItemText(item));
}

}  // namespace vistrel::main_window
