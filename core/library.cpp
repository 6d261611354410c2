// The library of logo sets.
#include "core/library.h"

#include <algorithm>

#include "core/generali.h"
#include "platform/files.h"

namespace vistrel::core {

const char* IconKeyOfSet(const std::string& setName) {
    return IsSingleLogoSet(setName) ? "singlelogo" : "multilogo";
}

const char* TypeCaptionOfSet(const std::string& setName) {
    return IsSingleLogoSet(setName) ? "Single logo" : "Multi logo";
}

std::array<std::string, 3> InstalledScreenPaths(const std::string& bootRoot,
                                                const std::string& windowsDirectory) {
    return {bootRoot + kScreenFileNames[0], windowsDirectory + kScreenFileNames[1],
            windowsDirectory + kScreenFileNames[2]};
}

void ForEachLogoSet(const std::string& logoFolder,
                    const std::function<void(const std::string& name)>& visit) {
    platform::ForEachEntry(
        AddBackslash(logoFolder) + "*.*", [&](const platform::FolderEntry& entry) {
            const bool hidden =
                (entry.attributes & (platform::kHiddenFile | platform::kSystemFile)) != 0;
            if (entry.IsFolder() && !hidden && entry.name != "." && entry.name != "..")
                visit(entry.name);
            return true;
        });
}

std::vector<std::string> LogoSetNames(const std::string& logoFolder) {
    std::vector<std::string> names;
    ForEachLogoSet(logoFolder, [&](const std::string& name) { names.push_back(name); });
    return names;
}

std::string CountLine(int sets) {
    // Quirk: a blank leads (LibraryTest.TheCountLineHasOneLeadingBlank).
    std::string line = " ";
    line += std::to_string(sets);
    line += sets == 1 ? " logo set" : " logo sets";
    return line;
}

std::optional<std::string> NextLogoSet(const std::vector<std::string>& sets,
                                       const std::string& installed) {
    if (sets.empty()) return std::nullopt;
    const auto found = std::find(sets.begin(), sets.end(), installed);
    if (found == sets.end() || found + 1 == sets.end()) return sets.front();
    return *(found + 1);
}

}  // namespace vistrel::core
