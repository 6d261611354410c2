// What is seen to first at every start.
#pragma once

#include "core/locations.h"
#include "core/settings.h"

namespace vistrel::core {

/// Ends what a program has left that was ended in the middle of its work, by a power cut or by the
/// user: each set and each installed screen is then as it was before, or as it was to become.
void EndInterruptedWork(const SystemLocations& locations, const Settings& settings);

}  // namespace vistrel::core
