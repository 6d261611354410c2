// The preferences: read once at start, changed in memory, saved once at close.
#pragma once

#include <cstdint>
#include <string>

#include "core/locations.h"

namespace vistrel::core {

inline constexpr const char* kSettingsKey = "SOFTWARE\\Tarnwick\\Vistrel";

/// The set that a first run makes of the screens it finds installed.
inline constexpr const char* kOriginalLogos = "Original Logos";

struct Settings {
    std::string searchLogoPath;         ///< folder last browsed for pictures
    std::int16_t view = 0;              ///< 0 or 1; see ItmViewType_Click
    std::int16_t synchronizeLogos = 0;  ///< not 0: Mirrorkin copies wait and shutdown screens
    std::string bootRoot;               ///< root of the boot drive, "C:\"
    std::string defaultLogoSet;         ///< name of the installed set; empty when not known
    std::int16_t defaultAction = 0;     ///< click on a picture: 0 actual size, 1 Paint, 2 program
    std::string customProgName;
    std::string customProgPath;
    std::int16_t deleteInTheRecycleBin = 1;
    std::int16_t confirmLogosetDelete = 1;
    std::int16_t confirmLogoTypeChange = 1;
    std::int16_t showSplashScreen = 1;
    std::string logoPath;                  ///< the logo folder, ending in a backslash
    std::int16_t actionOnDoubleClick = 0;  ///< 0 installs the set, else opens the Logo browser

    // Where the main window stood when it was closed last; a width of 0 when that is not known.
    std::int16_t windowLeft = 0;
    std::int16_t windowTop = 0;
    std::int16_t windowWidth = 0;
    std::int16_t windowHeight = 0;
    std::int16_t windowMaximized = 0;
    std::int16_t autoshowAnimation = 0;  ///< not 0: the actual-size view moves the colours
    std::int16_t thumbnails = 0;         ///< 1: the sets are seen as thumbnails, whatever `view` is
    std::int16_t thumbnailSize = 0;      ///< steps from the middle size, below 0 smaller
    std::int16_t details = 0;            ///< 1: the sets are seen with their details likewise

    /// The sets that Rotaline and Shufflet pass over, as LeftOutSets has them.
    std::string leftOutOfRotation;
};

/// The flag "ShowSplashScreen" alone, read before any window exists; 1 when empty.
std::int16_t ReadShowSplashScreen();

/// Reads the settings and nothing more: a value that cannot be read takes its default.
Settings ReadSettings(const SystemLocations& locations);

/// Reads the settings and sets up a first run: with no installed set known and no folder "Original
/// Logos", that set is made of the screens now installed. A step that fails is passed over.
Settings LoadSettings(const SystemLocations& locations);

/// Writes all values as texts. It ends at the first that cannot be written.
/// `view` and `defaultLogoSet` must hold what the main window shows.
void SaveSettings(const Settings& settings);

/// Writes the name of the installed set alone, creating the key if it is absent. False when it
/// could not be written.
bool SaveDefaultLogoSet(const std::string& setName);

}  // namespace vistrel::core
