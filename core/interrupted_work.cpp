#include "core/interrupted_work.h"

#include "core/interrupted_imports.h"
#include "core/previous_screens.h"
#include "core/replacing.h"
#include "core/set_in_making.h"

namespace vistrel::core {

void EndInterruptedWork(const SystemLocations& locations, const Settings& settings) {
    EndInterruptedReplacing();
    RemoveUnfinishedSets(settings.logoPath);
    EndInterruptedImports(settings.logoPath);
    const InstallTargets targets = {settings.logoPath, settings.bootRoot,
                                    locations.windowsDirectory};
    PreviousScreens(locations.programFolder, targets).EndInterrupted();
}

}  // namespace vistrel::core
