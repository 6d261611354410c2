// A screen file on the disk: what keeps the operating system from showing it, and mending it.
#pragma once

#include <string>
#include <vector>

#include "pictures/screen/check.h"

namespace vistrel::core {

/// True for a name that ends in ".SYS".
bool IsScreenName(const std::string& name);

/// What is wrong with a screen file. Nothing where there is no such file, and nothing of a file of
/// another name: that is a picture, which is converted before it becomes a screen.
std::vector<screen::ScreenFault> FaultsOfScreenFile(const std::string& path);

/// Whether there is something wrong that can be made right.
bool CanBeMended(const std::vector<screen::ScreenFault>& faults);

enum class MendResult { Mended, NotRead, NotWritten };

/// Makes a screen file right and leaves alone what is right, its attributes too. Unless the result
/// is Mended the file is as it was.
MendResult MendScreenFile(const std::string& path);

}  // namespace vistrel::core
