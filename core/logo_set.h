// A logo set on disk: what it is, and what can be done to it as a whole.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "core/locations.h"
#include "core/progress.h"
#include "platform/handles.h"

namespace vistrel::core {

/// What a set is to hold. The name says the same once it is saved, unless the user typed another.
enum class SetKind { Complete, StartupOnly };

inline constexpr const char* kSingleLogoEnding = ".SLS";

/// True when a set of this name is a single-logo set: the name ends in ".SLS" in any case.
bool IsSingleLogoSet(const std::string& setName);

/// A folder directly below the logo folder. A single-logo set holds a startup screen only; its wait
/// and shutdown screens are those that lie in the logo folder itself.
struct LogoSet {
    std::string library;  ///< the logo folder; ends in a backslash
    std::string name;     ///< of the set and of its folder

    bool IsSingle() const { return IsSingleLogoSet(name); }
    /// Without a backslash at its end.
    std::string Path() const { return library + name; }
    /// With one.
    std::string Folder() const { return Path() + "\\"; }
    /// The full paths of the screens that the set shows, in the order of LogoScreen.
    std::array<std::string, 3> Screens() const;
};

/// The full paths of the three screens that a folder, which ends in a backslash, can hold.
std::array<std::string, 3> ScreensIn(const std::string& folder);

/// `base` followed by `ending`, with the first number from 2 on between them where `isTaken` says
/// so of a name.
std::string FreeName(const std::string& base, const std::string& ending,
                     const std::function<bool(const std::string& name)>& isTaken);

/// Renames the set's folder; another ending changes its kind. Nothing is done, and it succeeds,
/// when the name is the same. False for a name that no set can have, for a set without a name, and
/// when the folder could not be renamed.
bool RenameSet(const LogoSet& set, const std::string& newName);

/// Where a deleted set's files go.
enum class Bin { Recycle, Destroy };

/// Empties a set's folder and removes it. Every step is done whether or not the ones before it
/// succeeded: a folder that holds another one, or a file that the user kept, stays. `owner` is the
/// window in front while the shell asks.
void DeleteSet(platform::WindowHandle owner, const std::string& folder, Bin bin);

/// The same with several sets of the logo folder `library`; the shell asks once, and shows how far
/// it is, where without it `progress` is told. The names of those whose folders are still there.
std::vector<std::string> DeleteSets(platform::WindowHandle owner, const std::string& library,
                                    const std::vector<std::string>& names, Bin bin,
                                    const Progress& progress = kNobodyAsks);

/// True for a folder that can become a set of the logo folder `library`: a drive's root has no name
/// for one, and the logo folder cannot lie in itself.
bool CanBeImported(const std::string& path, const std::string& library);
/// Copies a folder into the library, over the files of the set that has its name. Whether the shell
/// could copy it is not told; it has told the user.
void ImportSet(platform::WindowHandle owner, const std::string& path, const std::string& library);

}  // namespace vistrel::core
