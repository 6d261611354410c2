#include "core/slot_file.h"

#include "core/generali.h"
#include "platform/files.h"

namespace vistrel::core {

bool IsSameFile(const std::string& path, const std::string& other) {
    if (UpperCase(path) == UpperCase(other)) return true;
    const std::string shortPath = CutAtNul(GetShortPath(path));
    return !shortPath.empty() && UpperCase(shortPath) == UpperCase(CutAtNul(GetShortPath(other)));
}

bool HoldsPicture(const std::string& path) {
    bool holds = false;
    if (path.empty()) return false;
    platform::ForEachEntry(path, [&](const platform::FolderEntry& entry) {
        holds = !entry.IsFolder() && entry.size > 0;
        return false;
    });
    return holds;
}

bool CopyScreen(const std::string& slot, const std::string& target) {
    if (IsSameFile(slot, target)) return platform::FileAttributes(target).has_value();
    if (!HoldsPicture(slot) || !platform::CopyOver(slot, target)) return false;
    // A picture from a CD-ROM is read-only; its copy must not stay so.
    platform::SetAttributes(target, platform::kNormalFile);
    return true;
}

bool IsAtOrIn(const std::string& path, const std::string& folder) {
    if (UpperCase(path.substr(0, folder.size())) != UpperCase(folder)) return false;
    return path.size() == folder.size() || path[folder.size()] == '\\';
}

std::string Repointed(const std::string& path, const std::string& from, const std::string& to) {
    return IsAtOrIn(path, from) ? to + path.substr(from.size()) : path;
}

}  // namespace vistrel::core
