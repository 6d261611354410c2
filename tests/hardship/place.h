// Where a hardship test has its machine; the program that is killed finds the same folders.
#pragma once

#include <string>

#include "core/install.h"
#include "core/locations.h"

namespace vistrel::test {

/// The folders of class Machine.
struct Place {
    std::string root = "C:\\machine\\";
    std::string boot = root + "boot\\";
    std::string windows = root + "windows\\";
    std::string logos = root + "logos\\";
    std::string program = root + "program\\";
    std::string pictures = root + "pictures\\";
    core::SystemLocations locations = {program, windows, root + "startup\\"};
    core::InstallTargets targets = {logos, boot, windows};
};

}  // namespace vistrel::test
