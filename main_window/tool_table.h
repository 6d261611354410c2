// The main window's tools and the bands on which they stand.
#pragma once

#include <span>

#include "controls/active_bar.h"

namespace vistrel {

std::span<const Tool> MainTools();
std::span<const Band> MainBands();

}  // namespace vistrel
