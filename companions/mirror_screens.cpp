#include "companions/mirror_screens.h"

#include "companions/replace_screen.h"
#include "core/generali.h"
#include "core/locations.h"
#include "platform/files.h"

namespace vistrel::companions {

Outcome MirrorScreens(const std::string& folder, const std::string& windowsDirectory) {
    if (folder.empty()) return Outcome::NoFolderNamed;
    platform::FailOnDrivesNotReady();
    if (!platform::IsFolder(folder)) return Outcome::FolderNotThere;
    bool mirroredAll = true;
    for (const core::LogoScreen screen : {core::LogoScreen::Wait, core::LogoScreen::Shutdown}) {
        const std::string name = core::kScreenFileNames[static_cast<int>(screen)];
        if (!ReplaceScreen(core::AddBackslash(folder) + name, windowsDirectory + name))
            mirroredAll = false;
    }
    return mirroredAll ? Outcome::Done : Outcome::ScreenNotCopied;
}

}  // namespace vistrel::companions
