#include "editor/elimina_logo_set.h"

#include "core/library.h"
#include "editor/file_handling.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/pointer.h"

namespace vistrel::editor {

bool EliminaLogoSet(platform::WindowHandle owner, core::MainWindow& main,
                    const std::string& FolderToKill, const std::string& LogoName,
                    const std::string& editorSetName) {
    const core::Settings& settings = main.Preferences();
    if (settings.confirmLogosetDelete == 1 &&
        platform::Ask(owner,
                      "Are you sure you want to delete " + LogoName +
                          " logo set? This operation will delete all files contained in '" +
                          FolderToKill + "' folder!",
                      platform::kQuestionYesNo, "Confirm deletions") != platform::Answer::Yes)
        return false;

    // Every step is done whether or not the ones before it succeeded.
    const platform::BusyPointer busy;
    const std::string everything = FolderToKill + "\\*.*";
    if (settings.deleteInTheRecycleBin == 1)
        DeleteToRecycleBin(owner, {everything});
    else
        platform::RemoveMatching(everything);
    platform::RemoveFolder(FolderToKill);
    if (main.CurrentSet() == editorSetName) main.SetCurrentSet(core::kUnknownSet);
    return true;
}

}  // namespace vistrel::editor
