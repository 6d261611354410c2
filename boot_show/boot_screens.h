// The screens that are shown as they are seen while the system starts and ends.
#pragma once

#include <string>
#include <vector>

#include "pictures/screen/indexed_screen.h"

namespace vistrel::boot_show {

/// What the system does with a screen's colours: it moves those of the startup screen alone.
enum class Colors { Move, Stand };

struct ScreenFile {
    std::string path;
    Colors colors = Colors::Stand;
};

/// The three screens of a set, or those that are installed.
std::vector<ScreenFile> ScreensOfSet(const std::string& startup, const std::string& wait,
                                     const std::string& shutdown);

/// Reads them, each as the system takes it; a picture of another form as the screen that it would
/// become. A file that is missing or cannot be read is passed over.
std::vector<screen::IndexedScreen> ReadScreens(const std::vector<ScreenFile>& files);

}  // namespace vistrel::boot_show
