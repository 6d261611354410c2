// The drives and what kind each is.
#pragma once

#include <string>
#include <vector>

namespace vistrel::platform {

/// The kinds by the system's numbers (GetDriveTypeA).
enum class DriveKind {
    Unknown = 0,
    NoRoot = 1,
    Removable = 2,
    Fixed = 3,
    Remote = 4,
    CdRom = 5,
    RamDisk = 6
};

/// The drives' roots ("C:\"), in the order of their letters.
std::vector<std::string> DriveRoots();
DriveKind KindOfDrive(const std::string& root);
/// The label of a drive's volume; empty when it has none or cannot be read.
std::string VolumeLabel(const std::string& root);

}  // namespace vistrel::platform
