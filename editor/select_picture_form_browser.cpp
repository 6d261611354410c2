// The Logo browser's left side: drives, folders and pictures, and the preview of the selected one.
#include "controls/drag.h"
#include "controls/screen_metrics.h"
#include "core/generali.h"
#include "core/screen_file.h"
#include "editor/picture_folder.h"
#include "editor/select_picture_form.h"
#include "pictures/formats.h"
#include "pictures/preview/draw_preview.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/pointer.h"

namespace vistrel::editor {
namespace {

constexpr char kBackspace = 8;
constexpr const char* kParentFolder = "..";
/// "C:\".
constexpr std::size_t kRootLength = 3;
constexpr const char* kNoLogoSelected = "No logo selected";
constexpr long kDarkGround = 0;
constexpr long kLightGround = 0xFFFFFF;
constexpr const char* kFixedFolder = "c:\\programmi\\vistrel95\\";

const char* IconOfPicture(const std::string& name) {
    return core::IsScreenName(name) ? "sys" : "im";
}

std::string FolderAbove(std::string folder) {
    const std::string name = core::GetFileName(folder);
    return folder.substr(0, folder.size() - name.size());
}

/// A number with the place of its sign: a blank before one that is not negative.
std::string Signed(long long number) { return (number < 0 ? "" : " ") + std::to_string(number); }

/// 2 raised to a picture's bits per pixel; a header may claim any number of those.
long long ColorsOfDepth(int depth) { return depth >= 0 && depth <= 32 ? 1LL << depth : 0; }

}  // namespace

bool SelPictureForm::FillList(const std::string& folder) {
    PictureFolder found;
    const bool read = ReadPictureFolder(core::AddBackslash(folder), found);
    LogoList.SuspendPainting();
    LogoList.Clear();
    for (const std::string& name : found.folders) LogoList.AddItem(name, "closed");
    for (const std::string& name : found.pictures) LogoList.AddItem(name, IconOfPicture(name));
    LogoList.ResumePainting();
    return read;
}

// What was selected stays so where it is still there.
void SelPictureForm::AggiornaDir() {
    const std::string former = CurrentFolder;
    const std::string withKeys = SelectedName();
    std::vector<std::string> selected;
    for (const int item : LogoList.SelectedItems()) selected.push_back(LogoList.ItemText(item));
    GoWhereAFolderIs();
    FillList(CurrentFolder);
    if (CurrentFolder != former) return;
    SelectInList(withKeys);
    for (const std::string& name : selected) LogoList.SelectToo(LogoList.FindItem(name));
}

void SelPictureForm::itmRefresh_Click() {
    AggiornaDir();
    ShowPictureAnew();
}

// The file may hold another picture by now, or be gone.
void SelPictureForm::ShowPictureAnew() {
    if (ImageInfo.ForeColor() == kNoPictureColor) return;
    if (!platform::FileAttributes(SelectedPicture))
        ForgetPicture();
    else if (pictures::IsPictureName(SelectedPicture))
        CheckImage(SelectedPicture);
}

// The folder may have been deleted, here or elsewhere: then the nearest one above is shown.
void SelPictureForm::GoWhereAFolderIs() {
    std::string folder = CurrentFolder;
    while (folder.size() > kRootLength && !platform::IsFolder(folder)) folder = FolderAbove(folder);
    if (folder == CurrentFolder) return;
    CurrentFolder = folder;
    ShowPath(CurrentFolder);
}

/// On whatever drive it is.
void SelPictureForm::GoTo(const std::string& folder) {
    if (Drive1.SetDrive(folder)) Drive1_Change();
    BrowseTo(folder);
}

void SelPictureForm::BrowseTo(const std::string& folder) {
    CurrentFolder = folder;
    GoWhereAFolderIs();
    ShowPath(CurrentFolder);
    FillList(CurrentFolder);
}

// The tip shows what may not fit the label.
void SelPictureForm::ShowPath(const std::string& path) {
    CurPath.SetText(path);
    CurPath.SetTip(path);
}

void SelPictureForm::Drive1_Change() {
    const std::string drive = Drive1.Drive().substr(0, 2);
    const std::string root = core::AddBackslash(drive);
    if (FillList(root)) {
        CurrentFolder = root;
        ShowPath(CurrentFolder.substr(0, 2));
        return;
    }
    platform::Tell(handle(), "Drive " + drive + " isn't accessible! Check it and retry.",
                   platform::Icon::Critical);
    Drive1.SetDrive(CurrentFolder);
    AggiornaDir();
}

// Quirk: the folder is fixed, and neither the drive list nor CurrentFolder count
// (Browsing.ListsTheFixedFolderWhateverIsBrowsed).
void SelPictureForm::Dir1_Change() {
    LogoList.Clear();
    platform::ForEachEntry(
        std::string(kFixedFolder) + "*.*", [&](const platform::FolderEntry& entry) {
            if (entry.name != "." && entry.name != kParentFolder && !IsOutOfSight(entry))
                LogoList.AddItem(entry.name,
                                 entry.IsFolder() ? "closed" : IconOfPicture(entry.name));
            return true;
        });
}

std::string SelPictureForm::SelectedName() const {
    const int selected = LogoList.SelectedItem();
    return selected < 0 ? std::string() : LogoList.ItemText(selected);
}

void SelPictureForm::LogoList_ItemClick(int index) {
    const std::string name = LogoList.ItemText(index);
    if (name != kParentFolder && !platform::IsFolder(CurrentFolder + name))
        CheckImage(CurrentFolder + name);
}

void SelPictureForm::LogoList_DblClick() {
    const std::string name = SelectedName();
    if (name.empty()) return;
    if (name == kParentFolder)
        GoUp();
    else if (platform::IsFolder(CurrentFolder + name))
        BrowseTo(CurrentFolder + name + "\\");
    else
        Picture_MouseUp(CurView, controls::kLeftButton, {});
}

void SelPictureForm::LogoList_KeyPress(char character) {
    if (character == kBackspace && CurrentFolder.size() > kRootLength) GoUp();
}

// The folder that was left is selected, so that Enter goes back into it.
void SelPictureForm::GoUp() {
    std::string inside = CurrentFolder;
    const std::string name = core::GetFileName(inside);
    BrowseTo(FolderAbove(CurrentFolder));
    SelectInList(name);
}

void SelPictureForm::SelectInList(const std::string& name) {
    const int index = LogoList.FindItem(name);
    LogoList.Select(index);
    if (index >= 0) LogoList.EnsureVisible(index);
}

void SelPictureForm::ShowVerdict(long color, const std::string& text) {
    // Each of the three colours is legible on one of these grounds only.
    ImageInfo.SetBackColor(color == kReadyColor ? kLightGround : kDarkGround);
    ImageInfo.SetForeColor(color);
    ImageInfo.SetText(text);
}

void SelPictureForm::ForgetPicture() {
    SelectedPicture.clear();
    CurView.SetTag("");
    CurView.Clear();
    ShowVerdict(kNoPictureColor, kNoLogoSelected);
    DisableImage();
    JudgeSelected();
}

void SelPictureForm::CheckImage(const std::string& path) {
    IsSysFile = false;
    if (!pictures::IsPictureName(path)) {
        ShowVerdict(kNoPictureColor, kNoLogoSelected);
        // Quirk: buttons that an earlier picture enabled stay enabled; the slots look at the
        // verdict (Browsing.AFileOfNoPictureKindLeavesTheSlotsEnabledButTheyTakeNothing).
        if (!SlotsEnabled) DisableImage();
        selectedFault_.clear();
        ShowFaults();
        return;
    }
    IsSysFile = core::IsScreenName(path);

    const platform::BusyPointer busy;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int16_t depth = 0;
    preview::DrawPreview(path, CurView, width, height, depth);
    SelectedPicture = path;
    CurView.SetTag(path);
    // Quirk: a bitmap that has a screen's form already is converted all the same
    // (Browsing.AScreenIsReadyAndTheSamePictureAsABitmapIsConverted).
    const bool logoForm = width == 320 && height == 400 && depth == 8;
    ShowVerdict(
        logoForm && IsSysFile ? kReadyColor : kConvertColor,
        core::Trim(Signed(width)) + " x " + Signed(height) + " x " + Signed(ColorsOfDepth(depth)));
    EnableImage();
    JudgeSelected();
}

void SelPictureForm::CurView_MouseDown(controls::Point at) { pressedAt_ = at; }

void SelPictureForm::CurView_MouseMove(int button, controls::Point at) {
    if (button == controls::kLeftButton && SlotsEnabled && controls::IsDrag(pressedAt_, at))
        DragPicture(CurView);
}

void SelPictureForm::LogoList_BeginDrag() {
    if (SlotsEnabled && CurrentFolder + SelectedName() == adjustments_.PictureOf(SelectedPicture))
        DragPicture(LogoList);
}

void SelPictureForm::DragPicture(const controls::Control& source) {
    const auto dropped = controls::DragUntilLetGo(source.handle(), dragIcon_);
    if (!dropped) return;
    const controls::Control* target = ControlAt(*dropped);
    for (int i = 0; i < 3; ++i)
        if (target == &ImgPreview[i]) AddButton_Click(i);
}

void SelPictureForm::Picture_MouseUp(const controls::PictureBox& box, int button,
                                     controls::Point at) {
    if (!box.HasPicture()) return;
    if (button == controls::kLeftButton) {
        // Windows that this opens close before it returns, and nothing is to be filled again then.
        ActivateOnce = true;
        host_.OpenPicture(box.Tag(), handle());
        ActivateOnce = false;
        FollowLogoFolder();
    } else if (button == controls::kRightButton) {
        ShowPictureMenu(box, at);
    }
}

}  // namespace vistrel::editor
