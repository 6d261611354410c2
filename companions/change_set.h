// What Rotaline and Shufflet have in common: installing another set without any window.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "companions/outcome.h"

namespace vistrel::companions {

/// Chooses one of `sets`, of which there is at least one, other than `installed` where possible.
using SetChooser =
    std::function<std::string(const std::vector<std::string>& sets, const std::string& installed)>;

/// Installs the chosen set, records it as the installed one and registers or removes Mirrorkin, as
/// the main window and its closing would. All steps are tried; the first that failed is returned.
Outcome ChangeLogoSet(const SetChooser& choose);

}  // namespace vistrel::companions
