// What a file holds: comparing two, and bringing one safely onto the disk.
#pragma once

#include <string>

#include "platform/error.h"

namespace vistrel::platform {

/// Makes sure that what was written to a file is on the disk and not only in a cache.
bool FlushToDisk(const std::string& path, Error* error = nullptr);
/// True when both files can be read and hold the same bytes.
bool SameContents(const std::string& path, const std::string& other);

}  // namespace vistrel::platform
