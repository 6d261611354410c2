#include "core/set_in_making.h"

#include <utility>
#include <vector>

#include "core/logo_set.h"
#include "platform/files.h"

namespace vistrel::core {
namespace {

constexpr const char* kBeginning = "~making";

std::string WithoutBackslash(const std::string& folder) {
    return folder.substr(0, folder.size() - 1);
}

}  // namespace

std::string MakeHiddenFolder(const std::string& library, const std::string& beginning) {
    const std::string folder = FreeName(library + beginning, "", [](const std::string& path) {
        return platform::FileAttributes(path).has_value();
    });
    if (!platform::MakeFolder(folder)) return {};
    if (platform::SetAttributes(folder, platform::kHiddenFile)) return folder + "\\";
    // It would be a set.
    platform::RemoveFolder(folder);
    return {};
}

void RemoveWithContents(const std::string& folder) {
    std::vector<platform::FolderEntry> entries;
    platform::ForEachEntry(folder + "\\*.*", [&](const platform::FolderEntry& entry) {
        if (entry.name != "." && entry.name != "..") entries.push_back(entry);
        return true;
    });
    for (const platform::FolderEntry& entry : entries) {
        const std::string path = folder + "\\" + entry.name;
        if (entry.IsFolder()) {
            RemoveWithContents(path);
            continue;
        }
        platform::SetAttributes(path, platform::kNormalFile);
        platform::Remove(path);
    }
    platform::RemoveFolder(folder);
}

SetInMaking::SetInMaking(std::string library)
    : library_(std::move(library)), hidden_(MakeHiddenFolder(library_, kBeginning)) {
    if (!hidden_.empty() && platform::MakeFolder(hidden_ + "1")) folder_ = hidden_ + "1\\";
}

SetInMaking::~SetInMaking() {
    if (!folder_.empty()) RemoveWithContents(WithoutBackslash(folder_));
    if (!hidden_.empty()) platform::RemoveFolder(WithoutBackslash(hidden_));
}

bool SetInMaking::Finish(const std::string& name) {
    if (folder_.empty() || !platform::Rename(WithoutBackslash(folder_), library_ + name))
        return false;
    folder_.clear();
    return true;
}

void RemoveUnfinishedSets(const std::string& library) {
    std::vector<platform::FolderEntry> left;
    platform::ForEachEntry(library + kBeginning + "*", [&](const platform::FolderEntry& entry) {
        if (entry.IsFolder()) left.push_back(entry);
        return true;
    });
    for (const platform::FolderEntry& entry : left) {
        // One that could not be hidden any more has nothing in it: what a user has put into a
        // folder of that name stays.
        if (entry.attributes & platform::kHiddenFile)
            RemoveWithContents(library + entry.name);
        else
            platform::RemoveFolder(library + entry.name);
    }
}

}  // namespace vistrel::core
