#include "core/synchronizing.h"

#include "core/library.h"
#include "core/mdl_registry.h"
#include "platform/files.h"
#include "platform/profile.h"

namespace vistrel::core {

namespace {

constexpr const char* kRunKey = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* kEntry = "Mirrorkin";
constexpr const char* kSection = "Settings";
constexpr const char* kPathKey = "Path";

std::string IniFile(const std::string& programFolder) { return programFolder + "Mirrorkin.ini"; }

}  // namespace

std::string SynchronizedPath(const std::string& logoFolder, const std::string& setName) {
    if (IsSingleLogoSet(setName)) return logoFolder;
    // Quirk: without a known set this is a folder that cannot exist, and nothing is mirrored
    // (SynchronizedPathTest.IsAFolderThatCannotExistWhereNoSetIsKnown).
    return logoFolder + (setName.empty() ? kUnknownSet : setName);
}

bool RegisterMirrorkin(const std::string& programFolder, const std::string& logoFolder,
                       const std::string& setName) {
    const bool entered =
        SetKeyValue(platform::Hive::LocalMachine, kRunKey, kEntry,
                    programFolder + "Mirrorkin.exe /auto", platform::kRegistryText) == 0;
    const bool written = platform::WriteProfileText(IniFile(programFolder), kSection, kPathKey,
                                                    SynchronizedPath(logoFolder, setName));
    return entered && written;
}

void RemoveMirrorkin(const std::string& programFolder) {
    platform::Remove(IniFile(programFolder));
    DeleteValue(platform::Hive::LocalMachine, kRunKey, kEntry);
}

std::string ReadSynchronizedPath(const std::string& programFolder) {
    return platform::ReadProfileText(IniFile(programFolder), kSection, kPathKey);
}

}  // namespace vistrel::core
