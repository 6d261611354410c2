// The character set of help files.
#pragma once

#include <string>
#include <string_view>

namespace vistrel::help {

/// Turns UTF-8 into Windows-1252. Tabs become blanks. False when `utf8` is not well formed or holds
/// a control character or one that Windows-1252 lacks; `problem` then says which.
bool ToWindows1252(std::string_view utf8, std::string& text, std::string& problem);

}  // namespace vistrel::help
