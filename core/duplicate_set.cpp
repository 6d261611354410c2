#include "core/duplicate_set.h"

#include "core/entry_name.h"
#include "core/set_in_making.h"
#include "platform/files.h"

namespace vistrel::core {
namespace {

/// Without those that stand for the folder itself and the one above. False when it cannot be read.
bool EntriesOf(const std::string& folder, std::vector<platform::FolderEntry>& entries) {
    return platform::ForEachEntry(folder + "*.*", [&](const platform::FolderEntry& entry) {
        if (entry.name != "." && entry.name != "..") entries.push_back(entry);
        return true;
    });
}

/// Both end in a backslash.
bool CopyContents(const std::string& from, const std::string& to) {
    std::vector<platform::FolderEntry> entries;
    if (!EntriesOf(from, entries)) return false;
    for (const platform::FolderEntry& entry : entries) {
        const std::string source = from + entry.name;
        const std::string target = to + entry.name;
        const bool copied = entry.IsFolder() ? platform::MakeFolder(target) &&
                                                   CopyContents(source + "\\", target + "\\")
                                             : platform::CopyOver(source, target);
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

std::optional<std::string> DuplicateSet(const LogoSet& set) {
    const std::string name = NameOfCopy(set.name, [&](const std::string& taken) {
        return platform::FileAttributes(set.library + taken).has_value();
    });
    if (!SetFolderName(name, set.library)) return std::nullopt;
    if (!platform::IsFolder(set.Path())) return std::nullopt;
    SetInMaking copy(set.library);
    const bool made =
        !copy.Folder().empty() && CopyContents(set.Folder(), copy.Folder()) && copy.Finish(name);
    return made ? std::optional(name) : std::nullopt;
}

}  // namespace vistrel::core
