// Pictures, screens and folders that are dropped on the Logo browser.
#include "core/generali.h"
#include "editor/select_picture_form.h"
#include "platform/characters.h"
#include "platform/files.h"

namespace vistrel::editor {
namespace {

/// With a backslash.
std::string FolderOf(const std::string& path) {
    return path.substr(0, platform::LastBackslash(path) + 1);
}

std::string NameOf(const std::string& path) {
    return path.substr(platform::LastBackslash(path) + 1);
}

}  // namespace

void SelPictureForm::AcceptDrops() {
    LogoList.OLEDragDrop = [this](const std::vector<std::string>& paths) {
        LogoList_OLEDragDrop(paths);
    };
    LogoList.AcceptDrops();
    for (int i = 0; i < 3; ++i)
        slotDrops_[i] = std::make_unique<controls::FileDropTarget>(
            ImgPreview[i].handle(), [this, i](const std::vector<std::string>& paths) {
                EndEdits();
                ImgPreview_OLEDragDrop(i, paths);
            });
}

// Behind a window in front of this one nothing changes.
void SelPictureForm::LogoList_OLEDragDrop(const std::vector<std::string>& paths) {
    if (paths.empty() || !IsEnabled()) return;
    const std::string& first = paths.front();
    if (platform::IsFolder(first)) return GoTo(core::AddBackslash(first));
    GoTo(FolderOf(first));
    SelectDropped(paths);
    CheckImage(first);
}

// The file may be in a folder that is not listed, and nothing is selected then.
void SelPictureForm::ImgPreview_OLEDragDrop(int index, const std::vector<std::string>& paths) {
    if (paths.empty() || !IsEnabled() || platform::IsFolder(paths.front())) return;
    SelectDropped({paths.front()});
    CheckImage(paths.front());
    AddButton_Click(index);
}

/// The keys go on at the first.
void SelPictureForm::SelectDropped(const std::vector<std::string>& paths) {
    const auto itemOf = [this](const std::string& path) {
        const bool isListed = core::UpperCase(FolderOf(path)) == core::UpperCase(CurrentFolder);
        return isListed ? LogoList.FindItemOfAnyCase(NameOf(path)) : -1;
    };
    const int first = itemOf(paths.front());
    LogoList.Select(first);
    if (first >= 0) LogoList.EnsureVisible(first);
    for (const std::string& path : paths) LogoList.SelectToo(itemOf(path));
}

}  // namespace vistrel::editor
