// A logo set on disk as a whole.
#include "core/logo_set.h"

#include <algorithm>
#include <iterator>

#include "core/entry_name.h"
#include "core/file_handling.h"
#include "core/generali.h"
#include "core/slot_file.h"
#include "platform/files.h"
#include "platform/shell.h"

namespace vistrel::core {
namespace {

/// "D:" or "D:\\".
bool IsDriveRoot(const std::string& path) {
    return path.size() <= 3 && path.size() >= 2 && path[1] == ':';
}

/// The shell stops at a folder that has nothing in it, or is gone.
bool HoldsAnything(const std::string& folder) {
    bool holds = false;
    platform::ForEachEntry(folder + "\\*.*", [&](const platform::FolderEntry& entry) {
        holds = entry.name != "." && entry.name != "..";
        return !holds;
    });
    return holds;
}

/// False when the user has said no to the shell, and means the empty sets too.
bool RecycleContents(platform::WindowHandle owner, const std::string& library,
                     const std::vector<std::string>& names) {
    std::vector<std::string> full;
    for (const std::string& name : names)
        if (HoldsAnything(library + name)) full.push_back(library + name);
    if (full.empty()) return true;
    std::vector<std::string> everything;
    for (const std::string& folder : full) everything.push_back(folder + "\\*.*");
    DeleteToRecycleBin(owner, everything);
    return !std::all_of(full.begin(), full.end(), HoldsAnything);
}

}  // namespace

bool IsSingleLogoSet(const std::string& setName) {
    return UpperEnding(setName) == kSingleLogoEnding;
}

std::array<std::string, 3> ScreensIn(const std::string& folder) {
    return {folder + kScreenFileNames[0], folder + kScreenFileNames[1],
            folder + kScreenFileNames[2]};
}

std::array<std::string, 3> LogoSet::Screens() const {
    std::array<std::string, 3> screens = ScreensIn(IsSingle() ? library : Folder());
    screens[0] = Folder() + kScreenFileNames[0];
    return screens;
}

std::string FreeName(const std::string& base, const std::string& ending,
                     const std::function<bool(const std::string& name)>& isTaken) {
    std::string name = base + ending;
    for (int number = 2; isTaken(name); ++number)
        name = base + " " + std::to_string(number) + ending;
    return name;
}

bool RenameSet(const LogoSet& set, const std::string& newName) {
    if (newName == set.name) return true;
    // Without a name the folder would be the logo folder itself.
    if (set.name.empty() || !SetFolderName(newName, set.library)) return false;
    return platform::Rename(set.Path(), set.library + newName);
}

void DeleteSet(platform::WindowHandle owner, const std::string& folder, Bin bin) {
    const std::string everything = folder + "\\*.*";
    if (bin == Bin::Recycle)
        DeleteToRecycleBin(owner, {everything});
    else
        platform::RemoveMatching(everything);
    platform::RemoveFolder(folder);
}

std::vector<std::string> DeleteSets(platform::WindowHandle owner, const std::string& library,
                                    const std::vector<std::string>& names, Bin bin,
                                    const Progress& progress) {
    if (bin == Bin::Recycle && !RecycleContents(owner, library, names)) return names;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (bin == Bin::Destroy) {
            if (!progress(static_cast<double>(i) / static_cast<double>(names.size()))) break;
            platform::RemoveMatching(library + names[i] + "\\*.*");
        }
        platform::RemoveFolder(library + names[i]);
    }
    std::vector<std::string> left;
    std::copy_if(names.begin(), names.end(), std::back_inserter(left),
                 [&](const std::string& name) { return platform::IsFolder(library + name); });
    return left;
}

bool CanBeImported(const std::string& path, const std::string& library) {
    return !IsDriveRoot(path) && !IsSameFile(AddBackslash(path), AddBackslash(library)) &&
           platform::IsFolder(AddBackslash(path));
}

void ImportSet(platform::WindowHandle owner, const std::string& path, const std::string& library) {
    platform::ShellCopyOver(owner, path, library);
}

}  // namespace vistrel::core
