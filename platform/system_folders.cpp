#include "platform/system_folders.h"

#include <windows.h>

#include "platform/characters.h"
#include "platform/fault.h"

namespace vistrel::platform {

namespace {

constexpr unsigned kFolderBuffer = 145;

}  // namespace

std::string ProgramFolder() {
    char program[1024] = {};
    GetModuleFileNameA(nullptr, program, sizeof program - 1);
    std::string folder = program;
    const auto lastBackslash = LastBackslash(folder);
    if (lastBackslash == std::string::npos) return folder;
    const bool isRoot = lastBackslash == 2;
    return folder.substr(0, isRoot ? 3 : lastBackslash);
}

std::string SystemWindowsDirectory() {
    if (fault::ShouldFail()) return {};
    char folder[kFolderBuffer] = {};
    return GetWindowsDirectoryA(folder, sizeof folder) < sizeof folder ? folder : "";
}

std::string SystemTempFolder() {
    if (fault::ShouldFail()) return {};
    char folder[kFolderBuffer] = {};
    return GetTempPathA(sizeof folder, folder) < sizeof folder ? folder : "";
}

std::string MakeTempFile(const std::string& folder, const std::string& prefix) {
    if (fault::ShouldFail()) return {};
    char name[MAX_PATH] = {};
    if (!GetTempFileNameA(folder.c_str(), prefix.c_str(), 0, name)) return {};
    return name;
}

std::string SystemShortPath(const std::string& path) {
    std::string shortPath(255, '\0');
    if (!fault::ShouldFail()) GetShortPathNameA(path.c_str(), shortPath.data(), 250);
    return shortPath;
}

}  // namespace vistrel::platform
