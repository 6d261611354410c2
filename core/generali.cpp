// General helpers on paths and files.
#include "core/generali.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "core/mdl_registry.h"
#include "platform/characters.h"
#include "platform/files.h"
#include "platform/system_folders.h"

namespace vistrel::core {

namespace {

constexpr const char* kShellFoldersKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\explorer\\Shell folders";

/// The attributes that hide an entry from a search that does not ask for them.
constexpr std::uint32_t kAskedForOnly =
    platform::kHiddenFile | platform::kSystemFile | platform::kDirectory;

/// Where each character of a text begins.
std::vector<std::size_t> CharacterStarts(const std::string& text) {
    std::vector<std::size_t> starts;
    for (std::size_t at = 0; at < text.size(); at += platform::CharacterLength(text, at))
        starts.push_back(at);
    return starts;
}

}  // namespace

std::string GetWindowsDir() { return platform::SystemWindowsDirectory(); }

std::string GetTempFile() { return platform::MakeTempFile(platform::SystemTempFolder(), "~tm"); }

std::string GetShortPath(const std::string& path) { return Trim(platform::SystemShortPath(path)); }

std::string GetStartupFolder() {
    return AddBackslash(
        CutAtNul(TextOf(QueryValue(platform::Hive::CurrentUser, kShellFoldersKey, "Startup"))));
}

std::string AddBackslash(const std::string& path) {
    if (platform::EndsInBackslash(path)) return path;
    return Trim(path) + "\\";
}

bool FileExists(const std::string& path, unsigned attributes) {
    if (path.empty()) return false;
    // A folder's name with a backslash searches what the folder holds.
    const std::string pattern = platform::EndsInBackslash(path) ? path + "*.*" : path;
    bool found = false;
    platform::ForEachEntry(pattern, [&](const platform::FolderEntry& entry) {
        found = (entry.attributes & kAskedForOnly & ~attributes) == 0;
        return !found;
    });
    return found;
}

std::string GetFileName(std::string& path) {
    if (platform::EndsInBackslash(path)) path.pop_back();
    return path.substr(platform::LastBackslash(path) + 1);
}

std::string CompactPath(const std::string& path, int maximum) {
    const std::vector<std::size_t> starts = CharacterStarts(path);
    const auto length = static_cast<std::int64_t>(starts.size());
    if (length <= maximum) return path;
    const std::string head = path.substr(0, length > 3 ? starts[3] : path.size()) + "...";
    // Positions count from 1: the tail begins at or after this one.
    const std::int64_t start = length - (static_cast<std::int64_t>(maximum) - 6);
    for (std::int64_t i = start - 1; i < length; ++i) {
        if (path[starts[i]] == '\\') return head + path.substr(starts[i]);
    }
    // Quirk: a long last name is not shown at all
    // (CompactPathTest.WithoutABackslashInTheTailOnlyTheHeadIsLeft).
    return head;
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
    for (std::size_t at = 0; at < upper.size(); at += platform::CharacterLength(upper, at)) {
        char& letter = upper[at];
        if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    }
    return upper;
}

std::string UpperEnding(std::string_view name) {
    const std::string upper = UpperCase(name);
    return upper.substr(upper.size() - std::min<std::size_t>(upper.size(), 4));
}

}  // namespace vistrel::core
