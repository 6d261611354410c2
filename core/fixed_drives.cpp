#include "core/fixed_drives.h"

#include "core/generali.h"
#include "platform/drives.h"

namespace vistrel::core {

std::vector<std::string> FixedDriveLetters() {
    std::vector<std::string> letters;
    for (const std::string& root : platform::DriveRoots())
        if (platform::KindOfDrive(root) == platform::DriveKind::Fixed)
            letters.push_back(UpperCase(root.substr(0, 1)));
    return letters;
}

}  // namespace vistrel::core
