// What a folder holds that the Logo browser lists.
#pragma once

#include <string>
#include <vector>

#include "platform/files.h"

namespace vistrel::editor {

/// True for a hidden or system entry, which no list shows.
bool IsOutOfSight(const platform::FolderEntry& entry);

/// Names of one folder, each group in the system's order without regard to case.
struct PictureFolder {
    std::vector<std::string> folders;  ///< with ".." first, where the folder has it
    std::vector<std::string> pictures;
};

/// Reads the folders and pictures of `folder`, which ends in a backslash, into `found`. Hidden and
/// system entries stay out. False when the folder cannot be read; `found` is then empty.
bool ReadPictureFolder(const std::string& folder, PictureFolder& found);

}  // namespace vistrel::editor
