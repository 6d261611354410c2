#include "tests/support/user/snapshot.h"

#include <windows.h>

#include <algorithm>

namespace vistrel::test {

namespace {

void AddFolder(const std::string& folder, Snapshot& snapshot) {
    WIN32_FIND_DATAA found;
    HANDLE search = FindFirstFileA((folder + "*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        const std::string name = found.cFileName;
        if (name == "." || name == "..") continue;
        const std::string path = folder + name;
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
            snapshot[path + "\\"] = std::to_string(found.dwFileAttributes);
            AddFolder(path + "\\", snapshot);
        } else {
            snapshot[path] = std::to_string(found.dwFileAttributes) + " " +
                             std::to_string(found.nFileSizeLow) + " " +
                             std::to_string(found.ftLastWriteTime.dwHighDateTime) + " " +
                             std::to_string(found.ftLastWriteTime.dwLowDateTime);
        }
    } while (FindNextFileA(search, &found));
    FindClose(search);
}

void AddKey(HKEY root, const std::string& key, const std::string& shown, Snapshot& snapshot) {
    HKEY open;
    if (RegOpenKeyExA(root, key.c_str(), 0, KEY_READ, &open) != ERROR_SUCCESS) return;
    snapshot[shown] = "key";
    char name[1024];
    for (DWORD i = 0;; ++i) {
        DWORD nameSize = sizeof name, type = 0, size = 0;
        if (RegEnumValueA(open, i, name, &nameSize, nullptr, &type, nullptr, &size)) break;
        std::string bytes(size, '\0');
        RegQueryValueExA(open, name, nullptr, nullptr, reinterpret_cast<BYTE*>(bytes.data()),
                         &size);
        snapshot[shown + ":" + name] = std::to_string(type) + " " + bytes;
    }
    for (DWORD i = 0;; ++i) {
        DWORD nameSize = sizeof name;
        if (RegEnumKeyExA(open, i, name, &nameSize, nullptr, nullptr, nullptr, nullptr)) break;
        AddKey(root, key.empty() ? name : key + "\\" + name, shown + name + "\\", snapshot);
    }
    RegCloseKey(open);
}

}  // namespace

Snapshot TakeSnapshot() {
    Snapshot snapshot;
    AddFolder("C:\\", snapshot);
    AddKey(HKEY_LOCAL_MACHINE, "", "HKLM\\", snapshot);
    AddKey(HKEY_CURRENT_USER, "", "HKCU\\", snapshot);
    return snapshot;
}

std::vector<std::string> Differences(const Snapshot& before, const Snapshot& after,
                                     const std::vector<std::string>& ignored) {
    std::vector<std::string> differences;
    const auto note = [&](char kind, const std::string& path) {
        const bool hidden =
            std::any_of(ignored.begin(), ignored.end(),
                        [&](const std::string& beginning) { return path.starts_with(beginning); });
        if (!hidden) differences.push_back(kind + path);
    };
    for (const auto& [path, what] : after) {
        const auto old = before.find(path);
        if (old == before.end())
            note('+', path);
        else if (old->second != what)
            note('!', path);
    }
    for (const auto& [path, what] : before)
        if (!after.contains(path)) note('-', path);
    return differences;
}

}  // namespace vistrel::test
