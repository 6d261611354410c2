// Making a copy of a logo set beside it.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/logo_set.h"
#include "core/progress.h"

namespace vistrel::core {

/// What the system's file manager calls a copy beside the original: "Copy of Sea", and, where
/// `isTaken` says so, "Copy (2) of Sea" and so on. The ending stays, and the kind with it.
std::string NameOfCopy(const std::string& name,
                       const std::function<bool(const std::string& name)>& isTaken);

/// Copies a set's folder with all that it holds into the same library. The name of the copy; empty
/// when it cannot be made or the user wants no more of it, and nothing of it is left then.
std::optional<std::string> DuplicateSet(const LogoSet& set, const Progress& progress = kNobodyAsks);

}  // namespace vistrel::core
