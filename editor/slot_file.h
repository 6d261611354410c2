// The files that fill the editor's slots.
#pragma once

#include <string>

namespace vistrel {

/// True when `path` names a file to fill a screen with. A picture that could not be converted has
/// left an empty file, which is none.
bool HoldsPicture(const std::string& path);

/// Copies a slot's file onto a screen of a set. A slot that names its own target is left alone.
/// False when there is no such file or it could not be copied.
bool CopyScreen(const std::string& slot, const std::string& target);

/// `path` with its beginning `from` replaced by `to`, where it begins so (in any case).
std::string Repointed(const std::string& path, const std::string& from, const std::string& to);

}  // namespace vistrel
