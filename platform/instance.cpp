#include "platform/instance.h"

#include <windows.h>

namespace vistrel::platform {

InstanceHandle ProgramInstance() { return GetModuleHandleA(nullptr); }

}  // namespace vistrel::platform
