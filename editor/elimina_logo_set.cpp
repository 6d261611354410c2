#include "editor/elimina_logo_set.h"

#include "core/library.h"
#include "platform/message_box.h"
#include "platform/pointer.h"

namespace vistrel {

bool EliminaLogoSet(WindowHandle owner, EditorHost& host, const std::string& FolderToKill,
                    const std::string& LogoName, const std::string& editorSetName) {
    const Settings& settings = host.Preferences();
    if (settings.confirmLogosetDelete == 1 &&
        Ask(owner,
            "Are you sure you want to delete " + LogoName +
                " logo set? This operation will delete all files contained in '" + FolderToKill +
                "' folder!",
            kQuestionYesNo, "Confirm deletions") != Answer::Yes)
        return false;

    const BusyPointer busy;
    DeleteSet(owner, FolderToKill,
              settings.deleteInTheRecycleBin == 1 ? Bin::Recycle : Bin::Destroy);
    if (host.InstalledSet() == editorSetName) host.SetInstalledSet(std::nullopt);
    return true;
}

}  // namespace vistrel
