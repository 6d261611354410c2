#include "core/replacing.h"

#include "core/generali.h"
#include "core/mdl_registry.h"
#include "core/settings.h"
#include "pictures/file.h"
#include "platform/characters.h"
#include "platform/files.h"

namespace vistrel::core {
namespace {

constexpr const char* kNote = "Replacing";

void RemoveNote() { DeleteValue(platform::Hive::LocalMachine, kSettingsKey, kNote); }

}  // namespace

// A note that cannot be made keeps nobody from his work.
ReplacingNote::ReplacingNote(const std::string& path) {
    CreateNewKey(platform::Hive::LocalMachine, kSettingsKey);
    SetKeyValue(platform::Hive::LocalMachine, kSettingsKey, kNote, path, platform::kRegistryText);
}

ReplacingNote::~ReplacingNote() { RemoveNote(); }

bool WriteOver(const std::string& path, const std::vector<std::uint8_t>& bytes) {
    const ReplacingNote note(path);
    return pictures::WriteWholeFile(path, bytes);
}

void EndInterruptedReplacing() {
    const std::string path =
        CutAtNul(TextOf(QueryValue(platform::Hive::LocalMachine, kSettingsKey, kNote)));
    if (path.empty()) return;
    pictures::EndInterruptedWriting(path);
    const std::size_t folder = platform::LastBackslash(path) + 1;
    platform::RemoveMatching(path.substr(0, folder) + pictures::kFilesBeingWritten);
    RemoveNote();
}

}  // namespace vistrel::core
