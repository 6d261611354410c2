#include "core/duplicate_set.h"

#include <vector>

#include "core/entry_name.h"
#include "core/set_in_making.h"
#include "platform/files.h"

namespace vistrel::core {
namespace {

struct Entry {
    std::string name;  ///< with the folders it is in
    bool isFolder;
};

/// All that a folder holds, at any depth, a folder before what is in it; `folder` ends in a
/// backslash. False when it cannot be read.
bool EntriesUnder(const std::string& folder, const std::string& inside,
                  std::vector<Entry>& entries) {
    const std::size_t first = entries.size();
    const bool isRead =
        platform::ForEachEntry(folder + inside + "*.*", [&](const platform::FolderEntry& entry) {
            if (entry.name != "." && entry.name != "..")
                entries.push_back({inside + entry.name, entry.IsFolder()});
            return true;
        });
    if (!isRead) return false;
    // Those of the folders in it are added behind them.
    const std::size_t last = entries.size();
    for (std::size_t i = first; i < last; ++i)
        if (entries[i].isFolder && !EntriesUnder(folder, entries[i].name + "\\", entries))
            return false;
    return true;
}

/// Both end in a backslash.
bool CopyContents(const std::string& from, const std::string& to, const Progress& progress) {
    std::vector<Entry> entries;
    if (!EntriesUnder(from, "", entries)) return false;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!progress(static_cast<double>(i) / static_cast<double>(entries.size()))) return false;
        const std::string target = to + entries[i].name;
        const bool copied = entries[i].isFolder
                                ? platform::MakeFolder(target)
                                : platform::CopyOver(from + entries[i].name, target);
        if (!copied) return false;
    }
    return true;
}

}  // namespace

std::string NameOfCopy(const std::string& name,
                       const std::function<bool(const std::string& name)>& isTaken) {
    std::string copy = "Copy of " + name;
    for (int number = 2; isTaken(copy); ++number)
        copy = "Copy (" + std::to_string(number) + ") of " + name;
    return copy;
}

std::optional<std::string> DuplicateSet(const LogoSet& set, const Progress& progress) {
    const std::string name = NameOfCopy(set.name, [&](const std::string& taken) {
        return platform::FileAttributes(set.library + taken).has_value();
    });
    if (!SetFolderName(name, set.library)) return std::nullopt;
    if (!platform::IsFolder(set.Path())) return std::nullopt;
    SetInMaking copy(set.library);
    const bool made = !copy.Folder().empty() &&
                      CopyContents(set.Folder(), copy.Folder(), progress) && copy.Finish(name);
    return made ? std::optional(name) : std::nullopt;
}

}  // namespace vistrel::core
