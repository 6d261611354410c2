// General helpers on paths and files.
#include "core/generali.h"

#include <algorithm>
#include <cstdint>

#include "core/mdl_registry.h"
#include "platform/files.h"

namespace vistrel {

namespace {

constexpr const char* kShellFoldersKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\explorer\\Shell folders";

/// The attributes that hide an entry from a search that does not ask for them.
constexpr std::uint32_t kAskedForOnly = kHiddenFile | kSystemFile | kDirectory;

}  // namespace

std::string GetWindowsDir() { return SystemWindowsDirectory(); }

std::string GetTempFile() { return MakeTempFile(SystemTempFolder(), "~tm"); }

std::string GetShortPath(const std::string& path) { return Trim(SystemShortPath(path)); }

std::string GetStartupFolder() {
    return AddBackslash(
        CutAtNul(TextOf(QueryValue(Hive::CurrentUser, kShellFoldersKey, "Startup"))));
}

std::string AddBackslash(const std::string& path) {
    if (path.ends_with('\\')) return path;
    return Trim(path) + "\\";
}

bool FileExists(const std::string& path, unsigned attributes) {
    if (path.empty()) return false;
    // A folder's name with a backslash searches what the folder holds.
    const std::string pattern = path.ends_with('\\') ? path + "*.*" : path;
    bool found = false;
    ForEachEntry(pattern, [&](const FolderEntry& entry) {
        found = (entry.attributes & kAskedForOnly & ~attributes) == 0;
        return !found;
    });
    return found;
}

std::string GetFileName(std::string& path) {
    if (path.ends_with('\\')) path.pop_back();
    return path.substr(path.rfind('\\') + 1);
}

std::string CompactPath(const std::string& path, int maximum) {
    const auto length = static_cast<std::int64_t>(path.size());
    if (length <= maximum) return path;
    // Positions count from 1: the tail begins at or after this one.
    const std::int64_t start = length - (static_cast<std::int64_t>(maximum) - 6);
    const auto tail = path.find('\\', static_cast<std::size_t>(start - 1));
    const std::string head = path.substr(0, 3) + "...";
    return tail == std::string::npos ? head : head + path.substr(tail);
}

std::string CutAtNul(std::string text) {
    text.resize(std::min(text.find('\0'), text.size()));
    return text;
}

std::string Trim(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string UpperCase(std::string_view text) {
    // The endings that are compared are plain letters: no other character has to change.
    std::string upper(text);
    for (char& letter : upper) {
        if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    }
    return upper;
}

std::string UpperEnding(std::string_view name) {
    return UpperCase(name.substr(name.size() - std::min<std::size_t>(name.size(), 4)));
}

}  // namespace vistrel
