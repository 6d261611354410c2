// Opening of documents and addresses.
#pragma once

#include <string>

#include "platform/handles.h"

namespace vistrel::about {

/// Opens a document, a web or a mail address with the program that is registered for it, maximized.
/// Where there is none, nothing happens.
void OpenLink(const std::string& target, platform::WindowHandle owner);

}  // namespace vistrel::about
