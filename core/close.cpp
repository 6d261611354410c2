#include "core/close.h"

#include "core/boot_option.h"
#include "core/synchronizing.h"

namespace vistrel::core {

void WriteBackOnClose(const SystemLocations& locations, const ClosingState& state) {
    const std::string bootFile = locations.BootConfigurationFile();
    if (state.changedBootOption) {
        WriteBootLogoOption(bootFile, *state.changedBootOption);
    } else {
        KeepBootLogoOption(bootFile);
    }

    SaveSettings(state.settings);

    if (state.companionWanted) {
        RegisterMirrorkin(locations.programFolder, state.settings.logoPath,
                          state.settings.defaultLogoSet);
    } else {
        RemoveMirrorkin(locations.programFolder);
    }
}

}  // namespace vistrel::core
