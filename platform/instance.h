// The running program's module, which holds its resources.
#pragma once

#include "platform/handles.h"

namespace vistrel {

InstanceHandle ProgramInstance();

}  // namespace vistrel
