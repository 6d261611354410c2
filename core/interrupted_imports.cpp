#include "core/interrupted_imports.h"

#include <vector>

#include "core/logo_set.h"
#include "core/set_in_making.h"
#include "pictures/file.h"
#include "platform/files.h"

namespace vistrel::core {
namespace {

std::vector<platform::FolderEntry> FoldersIn(const std::string& pattern) {
    std::vector<platform::FolderEntry> folders;
    platform::ForEachEntry(pattern, [&](const platform::FolderEntry& entry) {
        if (entry.IsFolder() && entry.name != "." && entry.name != "..") folders.push_back(entry);
        return true;
    });
    return folders;
}

bool IsThere(const std::string& path) { return platform::FileAttributes(path).has_value(); }

/// The one that is there steps aside, unless it has done so already.
bool BringScreen(const std::string& from, const std::string& to, const std::string& aside) {
    if (IsThere(from)) {
        if (IsThere(to)) {
            // Of another set, which has all of its new screens.
            platform::Remove(aside);
            platform::Rename(to, aside);
        }
        if (platform::Rename(from, to)) return true;
    }
    return IsThere(to) || !IsThere(aside) || platform::Rename(aside, to);
}

/// False when screens are left that have no other place.
bool FinishReplacing(const std::string& library, const std::string& from,
                     const std::string& aside) {
    const auto name = pictures::ReadWholeFile(from + kNameOfSet);
    if (!name) return true;
    const LogoSet set{library, std::string(name->begin(), name->end())};
    bool all = true;
    for (const char* screen : kScreenFileNames)
        if (!BringScreen(from + screen, set.Folder() + screen, aside + screen)) all = false;
    return all;
}

}  // namespace

void EndInterruptedImports(const std::string& library) {
    for (const platform::FolderEntry& hidden : FoldersIn(library + kImportFolders + "*")) {
        const std::string folder = library + hidden.name;
        // What a user has put into a folder of that name stays.
        bool ours = (hidden.attributes & platform::kHiddenFile) != 0;
        if (ours)
            for (const platform::FolderEntry& set : FoldersIn(folder + "\\*.*"))
                ours =
                    FinishReplacing(library, folder + "\\" + set.name + "\\", folder + "\\0\\") &&
                    ours;
        if (ours)
            RemoveWithContents(folder);
        else
            platform::RemoveFolder(folder);
    }
}

}  // namespace vistrel::core
