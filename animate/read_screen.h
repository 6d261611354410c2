// Reading a screen whose colours are to move.
#pragma once

#include <optional>
#include <string>

#include "pictures/screen/indexed_screen.h"

namespace vistrel::animate {

/// The screen in a file of 320 x 400 pixels and 256 colours; one that Windows would not show is
/// mended on the way. Empty when it cannot be read as a screen.
std::optional<screen::IndexedScreen> ReadScreen(const std::string& path);

}  // namespace vistrel::animate
