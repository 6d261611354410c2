// What a library of sets holds, and which changes of it a user has asked for.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace vistrel::test {

/// The files of a folder: names with what they hold.
using Files = std::map<std::string, std::string>;

/// Sets by the names of their folders, and under "" the files that lie beside them.
using Library = std::map<std::string, Files>;

/// What a folder of sets holds. Files that another program keeps open hold "?".
Library ReadLibrary(const std::string& folder);

/// What has been asked for since the library was looked at last.
struct Permits {
    int renamed = 0;       ///< how many sets may have another name
    int removed = 0;       ///< how many may be gone
    int added = 0;         ///< how many may be new
    bool changed = false;  ///< sets may hold other screens
    bool installed = false;

    Permits& operator|=(const Permits& more);
};

/// What became of the library that nobody asked for, one line each; empty when all is well.
/// Installed screens are looked at by `UnaskedInstalls`.
std::vector<std::string> UnaskedChanges(const Library& before, const Library& after,
                                        const Permits& permits);

/// What stands as an installed screen without being what was there or a screen of the library.
/// `before` and `after` hold the installed files by their paths; "-" where there is none.
std::vector<std::string> UnaskedInstalls(const Files& before, const Files& after,
                                         const std::vector<const Library*>& libraries,
                                         const Permits& permits);

}  // namespace vistrel::test
