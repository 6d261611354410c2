// The program where a user has it, put there as a user does.
#pragma once

#include <optional>
#include <string>

#include "tests/support/user/snapshot.h"

namespace vistrel::test {

inline const std::string kProgramFolder = "C:\\Program Files\\Vistrel\\";
/// The command line that opens the program.
inline const std::string kOpenProgram = "\"" + kProgramFolder + "vistrel.exe\"";

/// Whether the installer lies beside the tests. It is a 32-bit program, which Wine for 64 bits
/// cannot run.
bool HasInstaller();
/// Runs the installer without windows. Its exit status.
std::optional<unsigned long> InstallSilently(const std::string& arguments = "");
/// Runs the uninstaller of a folder without windows and waits until the program is gone. True when
/// it is.
bool UninstallSilently(const std::string& folder = kProgramFolder);

/// What a shell link starts; empty when it is none.
std::string TargetOf(const std::string& link);

/// Beginnings of what an uninstaller does not put back: what the tests own and what the system
/// notes down itself.
std::vector<std::string> NotOurs();

}  // namespace vistrel::test
