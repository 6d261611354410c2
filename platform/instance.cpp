#include "platform/instance.h"

#include <windows.h>

namespace vistrel {

InstanceHandle ProgramInstance() { return GetModuleHandleA(nullptr); }

}  // namespace vistrel
