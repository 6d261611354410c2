// Whether the program is running now.
#include "core/running_instance.h"

#include "platform/running_window.h"

namespace vistrel {

bool VistrelIsRunning() { return WindowOfClassExists(kMainWindowClass); }

}  // namespace vistrel
