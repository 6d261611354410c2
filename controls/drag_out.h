// Dragging files and folders out of the program.
#pragma once

#include <string>
#include <vector>

#include "platform/handles.h"

namespace vistrel::controls {

/// The user drags entries of a folder, with the left button, which is down over `source`. Returns
/// when it has been let go: the window there has got copies then, if it wanted them. Those that are
/// not there any more are left out; what happens to the others is for who gets them to tell.
void DragOut(platform::WindowHandle source, const std::string& folder,
             const std::vector<std::string>& names);

/// True while DragOut runs: what is dragged now is the program's own.
bool IsDraggingOut();

}  // namespace vistrel::controls
