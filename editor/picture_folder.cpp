#include "editor/picture_folder.h"

#include <algorithm>

#include "pictures/formats.h"
#include "platform/characters.h"

namespace vistrel::editor {
namespace {

constexpr const char* kParentFolder = "..";

/// The way out of a folder comes before all that lies in it.
bool IsListedBefore(const std::string& name, const std::string& other) {
    if (name == kParentFolder || other == kParentFolder)
        return name != other && name == kParentFolder;
    return platform::ComesBefore(name, other);
}

}  // namespace

bool IsOutOfSight(const platform::FolderEntry& entry) {
    return (entry.attributes & (platform::kHiddenFile | platform::kSystemFile)) != 0;
}

bool ReadPictureFolder(const std::string& folder, PictureFolder& found) {
    found = {};
    platform::Error error;
    const bool read = platform::ForEachEntry(
        folder + "*.*",
        [&](const platform::FolderEntry& entry) {
            // ".." may have what hides the folder above, and is the way out of there.
            if (entry.name == "." || (IsOutOfSight(entry) && entry.name != kParentFolder))
                return true;
            if (entry.IsFolder())
                found.folders.push_back(entry.name);
            else if (pictures::IsPictureName(entry.name))
                found.pictures.push_back(entry.name);
            return true;
        },
        &error);
    std::sort(found.folders.begin(), found.folders.end(), IsListedBefore);
    std::sort(found.pictures.begin(), found.pictures.end(), IsListedBefore);
    // The root of an empty disk holds no entry at all.
    return read || (error.IsFileNotFound() && platform::IsFolder(folder));
}

}  // namespace vistrel::editor
