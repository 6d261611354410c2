// Windows of other programs.
#pragma once

#include <string>

namespace vistrel {

/// True while some program has a top-level window of this class, shown or hidden.
bool WindowOfClassExists(const std::string& windowClass);

}  // namespace vistrel
