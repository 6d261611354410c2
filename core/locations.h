// Where the system keeps its boot screens, and where ours lie.
#pragma once

#include <array>
#include <string>

namespace vistrel::core {

/// The three pictures that the system shows. Arrays of three are always in this order.
enum class LogoScreen { Startup = 0, Wait = 1, Shutdown = 2 };
inline constexpr std::array<const char*, 3> kScreenFileNames = {"LOGO.SYS", "LOGOW.SYS",
                                                                "LOGOS.SYS"};
inline constexpr std::array<const char*, 3> kScreenTitles = {"Startup screen", "Wait screen",
                                                             "Shutdown screen"};

/// Folders that are found out once at start; each ends in a backslash. The boot drive root and the
/// logo folder are preferences and lie in Settings.
struct SystemLocations {
    std::string programFolder;
    std::string windowsDirectory;
    std::string startupFolder;

    std::string HelpFile() const { return programFolder + "vistrl.hlp"; }
    /// "C:\msdos.sys", on the drive of the Windows directory.
    std::string BootConfigurationFile() const {
        return windowsDirectory.substr(0, 2) + "\\msdos.sys";
    }
};

/// Finds the program folder and the Windows directory; the Startup folder is left empty, since the
/// main window asks for it (GetStartupFolder) when it loads.
SystemLocations FindSystemLocations();

}  // namespace vistrel::core
