// Brings the wait and shutdown screens of a folder into the Windows directory.
#include "companions/mirror_screens.h"

#include "companions/replace_screen.h"
#include "core/generali.h"
#include "core/locations.h"
#include "platform/files.h"

namespace vistrel {

Outcome MirrorScreens(const std::string& folder, const std::string& windowsDirectory) {
    if (folder.empty()) return Outcome::NoFolderNamed;
    FailOnDrivesNotReady();
    if (!IsFolder(folder)) return Outcome::FolderNotThere;
    bool mirroredAll = true;
    for (const LogoScreen screen : {LogoScreen::Wait, LogoScreen::Shutdown}) {
        const std::string name = kScreenFileNames[static_cast<int>(screen)];
        if (!ReplaceScreen(AddBackslash(folder) + name, windowsDirectory + name))
            mirroredAll = false;
    }
    return mirroredAll ? Outcome::Done : Outcome::ScreenNotCopied;
}

}  // namespace vistrel
