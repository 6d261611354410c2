// Where the system keeps its boot screens, and where ours lie.
#include "core/locations.h"

#include "core/generali.h"
#include "platform/files.h"

namespace vistrel {

SystemLocations FindSystemLocations() {
    return {AddBackslash(ProgramFolder()), AddBackslash(GetWindowsDir()), {}};
}

}  // namespace vistrel
