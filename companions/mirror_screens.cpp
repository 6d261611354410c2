// Brings the wait and shutdown screens of a folder into the Windows directory.
#include "companions/mirror_screens.h"

#include "core/generali.h"
#include "core/locations.h"
#include "platform/files.h"

namespace vistrel {

namespace {

/// The names that one screen has in the Windows directory.
struct ScreenNames {
    std::string installed;
    std::string incoming;  ///< the new file until it is complete
    std::string aside;     ///< the old file until the new one is in its place
};

ScreenNames NamesOf(LogoScreen screen, const std::string& windowsDirectory) {
    const std::string fileName = kScreenFileNames[static_cast<int>(screen)];
    const std::string stem = windowsDirectory + "~" + fileName.substr(0, fileName.find('.'));
    return {windowsDirectory + fileName, stem + ".NEW", stem + ".OLD"};
}

/// Deletes a file of ours, read-only or not.
void Discard(const std::string& path) {
    SetAttributes(path, kNormalFile);
    Remove(path);
}

/// Puts the complete incoming file into the place of the installed one, if there is one.
bool TakeThePlace(const ScreenNames& names) {
    Discard(names.aside);
    const bool hadOld = Rename(names.installed, names.aside);
    if (Rename(names.incoming, names.installed)) return true;
    if (hadOld) Rename(names.aside, names.installed);
    return false;
}

bool Replace(const std::string& from, const ScreenNames& names) {
    SetAttributes(names.incoming, kNormalFile);
    Error error;
    if (!CopyOver(from, names.incoming, &error)) {
        if (error.IsFileNotFound()) Remove(names.installed);
        return false;
    }
    SetAttributes(names.incoming, kNormalFile);
    // The rename may reach the disk before the contents do; hence the flush.
    return FlushToDisk(names.incoming) && TakeThePlace(names);
}

bool MirrorScreen(const std::string& from, const ScreenNames& names) {
    // Succeeds only where an earlier run was cut off between its two renames.
    Rename(names.aside, names.installed);
    SetAttributes(names.installed, kNormalFile);
    const bool mirrored = SameContents(from, names.installed) || Replace(from, names);
    if (mirrored) Discard(names.aside);
    Discard(names.incoming);
    return mirrored;
}

}  // namespace

Outcome MirrorScreens(const std::string& folder, const std::string& windowsDirectory) {
    if (folder.empty()) return Outcome::NoFolderNamed;
    if (!IsFolder(folder)) return Outcome::FolderNotThere;
    bool mirroredAll = true;
    for (const LogoScreen screen : {LogoScreen::Wait, LogoScreen::Shutdown}) {
        const std::string from = AddBackslash(folder) + kScreenFileNames[static_cast<int>(screen)];
        if (!MirrorScreen(from, NamesOf(screen, windowsDirectory))) mirroredAll = false;
    }
    return mirroredAll ? Outcome::Done : Outcome::ScreenNotCopied;
}

}  // namespace vistrel
