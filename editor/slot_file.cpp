#include "editor/slot_file.h"

#include "core/generali.h"
#include "platform/files.h"

namespace vistrel::editor {

bool IsSameFile(const std::string& path, const std::string& other) {
    if (core::UpperCase(path) == core::UpperCase(other)) return true;
    const std::string shortPath = core::CutAtNul(core::GetShortPath(path));
    return !shortPath.empty() &&
           core::UpperCase(shortPath) == core::UpperCase(core::CutAtNul(core::GetShortPath(other)));
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
    if (core::UpperCase(path.substr(0, folder.size())) != core::UpperCase(folder)) return false;
    return path.size() == folder.size() || path[folder.size()] == '\\';
}

std::string Repointed(const std::string& path, const std::string& from, const std::string& to) {
    return IsAtOrIn(path, from) ? to + path.substr(from.size()) : path;
}

}  // namespace vistrel::editor
