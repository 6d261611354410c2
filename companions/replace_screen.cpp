// Replaces one installed screen so that a power cut at any moment costs nothing.
#include "companions/replace_screen.h"

#include "platform/characters.h"
#include "platform/files.h"

namespace vistrel {

namespace {

/// The names that one screen has in the folder where it is installed.
struct ScreenNames {
    std::string installed;
    std::string incoming;  ///< the new file until it is complete
    std::string aside;     ///< the old file until the new one is in its place
};

/// "~LOGOW.NEW" and "~LOGOW.OLD" beside "LOGOW.SYS".
ScreenNames NamesOf(const std::string& installed) {
    const std::size_t name = LastBackslash(installed) + 1;
    const std::string stem =
        installed.substr(0, name) + "~" + installed.substr(name, installed.find('.', name) - name);
    return {installed, stem + ".NEW", stem + ".OLD"};
}

/// Deletes a file of ours, read-only or not.
void Discard(const std::string& path) {
    SetAttributes(path, kNormalFile);
    Remove(path);
}

/// Puts the complete incoming file into the place of the installed one, if there is one.
bool TakeThePlace(const ScreenNames& names) {
    Discard(names.aside);
    const bool hadOld = Rename(names.installed, names.aside);
    if (Rename(names.incoming, names.installed)) return true;
    if (hadOld) Rename(names.aside, names.installed);
    return false;
}

bool Replace(const std::string& from, const ScreenNames& names) {
    SetAttributes(names.incoming, kNormalFile);
    Error error;
    if (!CopyOver(from, names.incoming, &error)) {
        if (error.IsFileNotFound()) Remove(names.installed);
        return false;
    }
    SetAttributes(names.incoming, kNormalFile);
    // The rename may reach the disk before the contents do; hence the flush.
    return FlushToDisk(names.incoming) && TakeThePlace(names);
}

}  // namespace

bool ReplaceScreen(const std::string& from, const std::string& to) {
    const ScreenNames names = NamesOf(to);
    // Succeeds only where an earlier run was cut off between its two renames.
    Rename(names.aside, names.installed);
    SetAttributes(names.installed, kNormalFile);
    const bool replaced = SameContents(from, names.installed) || Replace(from, names);
    if (replaced) Discard(names.aside);
    Discard(names.incoming);
    return replaced;
}

}  // namespace vistrel
