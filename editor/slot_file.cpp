#include "editor/slot_file.h"

#include "core/generali.h"
#include "platform/files.h"

namespace vistrel {
namespace {

/// True for two names of one file, long or short.
bool IsSameFile(const std::string& path, const std::string& other) {
    if (UpperCase(path) == UpperCase(other)) return true;
    const std::string shortPath = CutAtNul(GetShortPath(path));
    return !shortPath.empty() && UpperCase(shortPath) == UpperCase(CutAtNul(GetShortPath(other)));
}

}  // namespace

bool HoldsPicture(const std::string& path) {
    bool holds = false;
    if (path.empty()) return false;
    ForEachEntry(path, [&](const FolderEntry& entry) {
        holds = !entry.IsFolder() && entry.size > 0;
        return false;
    });
    return holds;
}

bool CopyScreen(const std::string& slot, const std::string& target) {
    if (IsSameFile(slot, target)) return true;
    if (!HoldsPicture(slot) || !CopyOver(slot, target)) return false;
    // A picture from a CD-ROM is read-only; its copy must not stay so.
    SetAttributes(target, kNormalFile);
    return true;
}

std::string Repointed(const std::string& path, const std::string& from, const std::string& to) {
    if (UpperCase(path.substr(0, from.size())) != UpperCase(from)) return path;
    return to + path.substr(from.size());
}

}  // namespace vistrel
