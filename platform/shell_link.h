// Shell links: files that open another one.
#pragma once

#include <string>

namespace vistrel::platform {

/// Writes a shell link at `linkPath` to `target`. False when it could not be written.
bool WriteShellLink(const std::string& linkPath, const std::string& target,
                    const std::string& arguments, const std::string& workingFolder,
                    const std::string& description);
/// The file that a shell link opens, whether or not it exists; empty when `linkPath` is no link.
std::string ShellLinkTarget(const std::string& linkPath);

}  // namespace vistrel::platform
