#include "editor/picture_folder.h"

#include <algorithm>

#include "core/generali.h"
#include "pictures/formats.h"

namespace vistrel::editor {
namespace {

void SortIgnoringCase(std::vector<std::string>& names) {
    const auto lower = [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    };
    std::sort(names.begin(), names.end(), [&](const std::string& a, const std::string& b) {
        return std::lexicographical_compare(
            a.begin(), a.end(), b.begin(), b.end(),
            [&](char left, char right) { return lower(left) < lower(right); });
    });
}

}  // namespace

bool IsOutOfSight(const platform::FolderEntry& entry) {
    return (entry.attributes & (platform::kHiddenFile | platform::kSystemFile)) != 0;
}

bool IsScreenName(const std::string& name) { return core::UpperEnding(name) == ".SYS"; }

bool ReadPictureFolder(const std::string& folder, PictureFolder& found) {
    found = {};
    platform::Error error;
    const bool read = platform::ForEachEntry(
        folder + "*.*",
        [&](const platform::FolderEntry& entry) {
            // ".." may have what hides the folder above, and is the way out of there.
            if (entry.name == "." || (IsOutOfSight(entry) && entry.name != "..")) return true;
            if (entry.IsFolder())
                found.folders.push_back(entry.name);
            else if (pictures::IsPictureName(entry.name))
                found.pictures.push_back(entry.name);
            return true;
        },
        &error);
    SortIgnoringCase(found.folders);
    SortIgnoringCase(found.pictures);
    // The root of an empty disk holds no entry at all.
    return read || (error.IsFileNotFound() && platform::IsFolder(folder));
}

}  // namespace vistrel::editor
