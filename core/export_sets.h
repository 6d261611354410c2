// Giving logo sets away: as one ZIP file with a folder for each.
#pragma once

#include <string>
#include <vector>

#include "core/progress.h"

namespace vistrel::core {

enum class ExportResult {
    Written,
    NoScreens,  ///< none of the sets has a screen of its own
    NotRead,    ///< screens could not be read
    NotWritten,
    Stopped  ///< by the user
};

struct ExportOutcome {
    ExportResult result = ExportResult::NotWritten;
    std::vector<std::string> notRead;  ///< the sets that have them
};

/// Writes the screens of sets of the logo folder `library` into one ZIP file, replacing a file of
/// that name. A set gives what lies in its own folder: a single-logo set its startup screen. Unless
/// the result is Written nothing has changed.
ExportOutcome ExportSets(const std::string& library, const std::vector<std::string>& names,
                         const std::string& path, const Progress& progress = kNobodyAsks);

}  // namespace vistrel::core
