// Replaces one installed screen so that a power cut at any moment costs nothing.
#pragma once

#include <string>

namespace vistrel::companions {

/// Makes the installed screen at the path `to` equal to the file `from`, with normal attributes.
/// What is equal already is left as it is; where `from` does not exist the installed screen ends up
/// absent, as after installing. True when it is equal in the end.
///
/// Whenever the power goes, the old or the new file is there, complete. Windows 95 cannot replace a
/// file by renaming another over it, so that for the moment between two renames neither bears the
/// screen's own name: the old one is then found aside and put back by the next run.
bool ReplaceScreen(const std::string& from, const std::string& to);

}  // namespace vistrel::companions
