#include "companions/replace_screen.h"

#include "platform/characters.h"
#include "platform/file_contents.h"
#include "platform/files.h"

namespace vistrel::companions {

namespace {

/// The names that one screen has in the folder where it is installed.
struct ScreenNames {
    std::string installed;
    std::string incoming;  ///< the new file until it is complete
    std::string aside;     ///< the old file until the new one is in its place
};

/// "~LOGOW.NEW" and "~LOGOW.OLD" beside "LOGOW.SYS".
ScreenNames NamesOf(const std::string& installed) {
    const std::size_t name = platform::LastBackslash(installed) + 1;
    const std::string stem =
        installed.substr(0, name) + "~" + installed.substr(name, installed.find('.', name) - name);
    return {installed, stem + ".NEW", stem + ".OLD"};
}

/// Deletes a file of ours, read-only or not.
void Discard(const std::string& path) {
    platform::SetAttributes(path, platform::kNormalFile);
    platform::Remove(path);
}

/// Puts the complete incoming file into the place of the installed one, if there is one.
bool TakeThePlace(const ScreenNames& names) {
    Discard(names.aside);
    const bool hadOld = platform::Rename(names.installed, names.aside);
    if (platform::Rename(names.incoming, names.installed)) return true;
    if (hadOld) platform::Rename(names.aside, names.installed);
    return false;
}

bool Replace(const std::string& from, const ScreenNames& names) {
    platform::SetAttributes(names.incoming, platform::kNormalFile);
    platform::Error error;
    if (!platform::CopyOver(from, names.incoming, &error)) {
        if (error.IsFileNotFound()) platform::Remove(names.installed);
        return false;
    }
    platform::SetAttributes(names.incoming, platform::kNormalFile);
    // The rename may reach the disk before the contents do; hence the flush.
    return platform::FlushToDisk(names.incoming) && TakeThePlace(names);
}

}  // namespace

bool ReplaceScreen(const std::string& from, const std::string& to) {
    const ScreenNames names = NamesOf(to);
    // Succeeds only where an earlier run was cut off between its two renames.
    platform::Rename(names.aside, names.installed);
    platform::SetAttributes(names.installed, platform::kNormalFile);
    const bool replaced = platform::SameContents(from, names.installed) || Replace(from, names);
    if (replaced) Discard(names.aside);
    Discard(names.incoming);
    return replaced;
}

}  // namespace vistrel::companions
