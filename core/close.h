// What closing the program leaves behind.
#pragma once

#include <cstdint>
#include <optional>

#include "core/settings.h"

namespace vistrel::core {

/// What the main window hands over when it closes.
struct ClosingState {
    /// The boot-logo option if the user changed it; otherwise it stays as the file has it.
    std::optional<std::int16_t> changedBootOption;
    /// True when a set was installed last while synchronizing was on.
    bool companionWanted = false;
    /// `view` and `defaultLogoSet` as the main window shows them.
    Settings settings;
};

/// Writes the boot-logo option and the settings back and registers or removes Mirrorkin. A step
/// that fails is passed over.
void WriteBackOnClose(const SystemLocations& locations, const ClosingState& state);

}  // namespace vistrel::core
