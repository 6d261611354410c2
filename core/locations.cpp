#include "core/locations.h"

#include "core/generali.h"
#include "platform/system_folders.h"

namespace vistrel::core {

SystemLocations FindSystemLocations() {
    return {AddBackslash(platform::ProgramFolder()), AddBackslash(GetWindowsDir()), {}};
}

}  // namespace vistrel::core
