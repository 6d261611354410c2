#include "platform/drives.h"

#include <windows.h>

#include "platform/fault.h"

namespace vistrel::platform {

std::vector<std::string> DriveRoots() {
    if (fault::ShouldFail()) return {};
    // A run of NUL-terminated texts that an empty one ends; the last character is never offered.
    char texts[2048] = {};
    GetLogicalDriveStringsA(sizeof texts - 1, texts);
    std::vector<std::string> roots;
    for (const char* text = texts; *text; text += roots.back().size() + 1) roots.push_back(text);
    return roots;
}

DriveKind KindOfDrive(const std::string& root) {
    if (fault::ShouldFail()) return DriveKind::Unknown;
    return static_cast<DriveKind>(GetDriveTypeA(root.c_str()));
}

std::string VolumeLabel(const std::string& root) {
    if (fault::ShouldFail()) return {};
    char label[MAX_PATH + 1] = {};
    if (!GetVolumeInformationA(root.c_str(), label, sizeof label, nullptr, nullptr, nullptr,
                               nullptr, 0))
        return {};
    return label;
}

}  // namespace vistrel::platform
