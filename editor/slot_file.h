// The files that fill the editor's slots.
#pragma once

#include <string>

namespace vistrel::editor {

/// True when `path` names a file to fill a screen with. A picture that could not be converted has
/// left an empty file, which is none.
bool HoldsPicture(const std::string& path);

/// True for two names of one file, long or short.
bool IsSameFile(const std::string& path, const std::string& other);

/// Copies a slot's file onto a screen of a set. A slot that names its own target leaves it alone.
/// False when there is no such file or it could not be copied.
bool CopyScreen(const std::string& slot, const std::string& target);

/// True for `folder` itself and all that lies in it, in any case. `folder` has no backslash at its
/// end.
bool IsAtOrIn(const std::string& path, const std::string& folder);

/// `path` as it is once `from` has been renamed to `to`: another one where it is `from` or lies in
/// it. Neither ends in a backslash.
std::string Repointed(const std::string& path, const std::string& from, const std::string& to);

}  // namespace vistrel::editor
