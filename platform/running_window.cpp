// Windows of other programs.
#include "platform/running_window.h"

#include <windows.h>

namespace vistrel {

bool WindowOfClassExists(const std::string& windowClass) {
    return FindWindowA(windowClass.c_str(), nullptr) != nullptr;
}

}  // namespace vistrel
