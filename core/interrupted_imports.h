// What an import leaves in the library when the program is ended in the middle of it.
#pragma once

#include <string>

namespace vistrel::core {

/// How the names of the folders begin into which sets are unpacked.
inline constexpr const char* kImportFolders = "~import";
/// In the folder of an unpacked set as long as its screens replace others: a file of the set's
/// name.
inline constexpr const char* kNameOfSet = "Set.txt";

/// A set that had got some of its new screens gets the rest; all else that was unpacked goes.
void EndInterruptedImports(const std::string& library);

}  // namespace vistrel::core
