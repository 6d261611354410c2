#include "editor/picture_folder.h"

#include <algorithm>

#include "core/generali.h"
#include "platform/files.h"

namespace vistrel {
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

bool IsScreenName(const std::string& name) { return UpperEnding(name) == ".SYS"; }

bool IsPictureName(const std::string& name) {
    const std::string ending = UpperEnding(name);
    return ending == ".SYS" || ending == ".BMP" || ending == ".GIF" || ending == ".JPG";
}

bool ReadPictureFolder(const std::string& folder, PictureFolder& found) {
    found = {};
    Error error;
    const bool read = ForEachEntry(
        folder + "*.*",
        [&](const FolderEntry& entry) {
            if (entry.attributes & (kHiddenFile | kSystemFile) || entry.name == ".") return true;
            if (entry.IsFolder())
                found.folders.push_back(entry.name);
            else if (IsPictureName(entry.name))
                found.pictures.push_back(entry.name);
            return true;
        },
        &error);
    SortIgnoringCase(found.folders);
    SortIgnoringCase(found.pictures);
    // The root of an empty disk holds no entry at all.
    return read || (error.IsFileNotFound() && IsFolder(folder));
}

}  // namespace vistrel
