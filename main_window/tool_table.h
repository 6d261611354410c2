// The main window's tools and the bands on which they stand.
#pragma once

#include <span>

#include "controls/active_bar.h"

namespace vistrel::main_window {

std::span<const controls::Tool> MainTools();
std::span<const controls::Band> MainBands();

}  // namespace vistrel::main_window
