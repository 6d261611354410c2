// |SYSTEM: what the viewer has to know about the help file as a whole.
#pragma once

#include <cstdint>
#include <string>

#include "help/compiler/source.h"

namespace vistrel::help {

/// The content of |SYSTEM. `contents` is the TOPICOFFSET of the contents topic.
std::string SystemFile(const HelpSource& help, std::uint32_t contents);

}  // namespace vistrel::help
