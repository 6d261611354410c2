// The companion that changes the logo set at every start: a shell link in the Startup folder is the
// only record of the choice.
#pragma once

#include <optional>
#include <string>

namespace vistrel::core {

enum class StartUpActionKind { Rotaline = 0, Shufflet = 1, Nothing = 2 };

/// Writes the companions' shell links into the program folder where they are missing, as they are
/// when the programs were copied by hand, or lead elsewhere, as they do when the folder was moved.
/// A link in the Startup folder that leads elsewhere is replaced too. Nothing is written for a
/// companion that is not there, and what cannot be written is passed over.
void MakeMissingLinks(const std::string& programFolder, const std::string& startupFolder);

/// The action in force; empty when both links lie in the Startup folder.
std::optional<StartUpActionKind> ReadStartUpAction(const std::string& startupFolder);

/// Removes both links, then copies the chosen one from the program folder. A step that fails is
/// passed over.
void ApplyStartUpAction(StartUpActionKind action, const std::string& programFolder,
                        const std::string& startupFolder);

}  // namespace vistrel::core
