// The running program's module, which holds its resources.
#pragma once

#include "platform/handles.h"

namespace vistrel::platform {

InstanceHandle ProgramInstance();

}  // namespace vistrel::platform
