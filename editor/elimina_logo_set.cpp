#include "editor/elimina_logo_set.h"

#include "core/library.h"
#include "core/rotation.h"
#include "platform/message_box.h"
#include "platform/pointer.h"

namespace vistrel::editor {

bool EliminaLogoSet(platform::WindowHandle owner, EditorHost& host, const std::string& FolderToKill,
                    const std::string& LogoName, const std::string& editorSetName) {
    core::Settings& settings = host.Preferences();
    if (settings.confirmLogosetDelete == 1 &&
        !platform::Confirm(owner,
                           "Are you sure you want to delete " + LogoName +
                               " logo set? This operation will delete all files contained in '" +
                               FolderToKill + "' folder!",
                           platform::DefaultAnswer::Yes, "Confirm deletions"))
        return false;

    const platform::BusyPointer busy;
    core::DeleteSet(owner, FolderToKill,
                    settings.deleteInTheRecycleBin == 1 ? core::Bin::Recycle : core::Bin::Destroy);
    core::RemoveLeftOut(settings, LogoName);
    // Quirk: a set whose folder survived, in part or whole, counts as deleted
    // (Deleting.ForgetsASetWhoseFolderSurvives).
    if (host.InstalledSet() == editorSetName) host.SetInstalledSet(std::nullopt);
    return true;
}

}  // namespace vistrel::editor
