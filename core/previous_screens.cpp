#include "core/previous_screens.h"

#include <algorithm>
#include <sstream>
#include <vector>

#include "archive/crc32.h"
#include "core/library.h"
#include "core/set_in_making.h"
#include "pictures/file.h"
#include "platform/file_contents.h"
#include "platform/files.h"

namespace vistrel::core {
namespace {

constexpr const char* kFirstLine = "Vistrel undo 1";

/// While new screens are being kept they lie in a folder of this ending, and the former ones step
/// aside into one of the other.
constexpr const char* kNew = ".new";
constexpr const char* kOld = ".old";

/// Nothing for a file that is missing.
std::optional<std::uint32_t> SumOf(const std::string& path) {
    const auto file = pictures::FileOnDisk::Open(path);
    if (!file) return std::nullopt;
    const pictures::PictureFile bytes(*file);
    std::uint32_t sum = 0;
    std::vector<std::uint8_t> room;
    for (std::size_t at = 0; at < bytes.size(); at += pictures::FileWindow::kRoom) {
        const std::size_t count = std::min(bytes.size() - at, pictures::FileWindow::kRoom);
        sum = archive::Crc32(sum, bytes.Piece(at, count, room));
    }
    if (file->HasFailed()) return std::nullopt;
    return sum;
}

bool Is(const std::string& path, bool isThere, std::uint32_t sum) {
    const auto found = SumOf(path);
    return found.has_value() == isThere && found.value_or(sum) == sum;
}

/// Hidden folders are no sets: the program's folder may be the logo folder, too.
bool MakeHiddenFolder(const std::string& path) {
    if (!platform::MakeFolder(path)) return false;
    platform::SetAttributes(path, platform::kHiddenFile);
    return true;
}

/// By this name a screen is on its way to its place.
std::string ComingTo(const std::string& place) { return place.substr(0, place.size() - 3) + "~vs"; }

/// Puts a file in the place of another, which stays until the new one is on the disk.
bool PutInPlace(const std::string& from, const std::string& to) {
    const std::string coming = ComingTo(to);
    platform::Remove(coming);
    if (!platform::CopyOver(from, coming)) return false;
    platform::SetAttributes(coming, platform::kNormalFile);
    if (!platform::FlushToDisk(coming)) return false;
    platform::SetAttributes(to, platform::kNormalFile);
    platform::Remove(to);
    return platform::Rename(coming, to);
}

}  // namespace

std::array<std::string, 3> PreviousScreens::Installed() const {
    return InstalledScreenPaths(targets_.bootRoot, targets_.windowsDirectory);
}

std::array<std::string, 3> PreviousScreens::SourceOf(const InstallRecord& record) const {
    return record.areKept ? ScreensIn(folder_ + "\\")
                          : LogoSet{targets_.logoFolder, record.setName}.Screens();
}

bool PreviousScreens::Keep(const std::string& setName, const std::string& newName, bool synchronize,
                           bool companionWanted) {
    EndInterruptedKeeping();
    InstallRecord record;
    record.setName = setName;
    record.newName = newName;
    record.companionWanted = companionWanted;
    record.areKept = setName.empty();
    bool changes = false;
    const auto coming = LogoSet{targets_.logoFolder, newName}.Screens();
    const auto source = LogoSet{targets_.logoFolder, setName}.Screens();
    for (std::size_t i = 0; i < record.screens.size(); ++i) {
        ReplacedScreen& screen = record.screens[i];
        const auto attributes = platform::FileAttributes(Installed()[i]);
        screen.wasThere = attributes.has_value();
        screen.attributes = attributes.value_or(0);
        const auto sum = SumOf(Installed()[i]);
        // Without the one or the other taking it back would delete a screen that was there.
        if (screen.wasThere != sum.has_value()) return false;
        screen.sum = sum.value_or(0);
        const bool stays = synchronize && i > 0;
        const auto newSum = stays ? sum : SumOf(coming[i]);
        screen.isThere = newSum.has_value();
        screen.newSum = newSum.value_or(0);
        changes = changes || newSum != sum;
        if (!record.areKept && !Is(source[i], screen.wasThere, screen.sum)) record.areKept = true;
    }
    if (setName == newName && !changes) return true;
    if (record.areKept) return KeepScreens(record);
    if (!platform::FileAttributes(folder_) && !MakeHiddenFolder(folder_)) return false;
    return WriteRecord(folder_, record);
}

// The new folder is whole before the former one goes.
bool PreviousScreens::KeepScreens(const InstallRecord& record) {
    const std::string coming = folder_ + kNew;
    RemoveWithContents(coming);
    if (!MakeHiddenFolder(coming)) return false;
    const auto installed = Installed();
    const auto kept = ScreensIn(coming + "\\");
    for (std::size_t i = 0; i < installed.size(); ++i) {
        if (!record.screens[i].wasThere) continue;
        if (!platform::CopyOver(installed[i], kept[i])) return false;
        platform::SetAttributes(kept[i], platform::kNormalFile);
        if (!platform::FlushToDisk(kept[i])) return false;
    }
    if (!WriteRecord(coming, record)) return false;
    if (platform::FileAttributes(folder_) && !platform::Rename(folder_, folder_ + kOld))
        return false;
    if (!platform::Rename(coming, folder_)) {
        platform::Rename(folder_ + kOld, folder_);
        return false;
    }
    RemoveWithContents(folder_ + kOld);
    return true;
}

// Between the two new names of KeepScreens there is no folder of the right one, and two that could
// be: the new one is whole by then.
void PreviousScreens::EndInterruptedKeeping() const {
    if (!platform::FileAttributes(folder_)) {
        if (platform::FileAttributes(folder_ + kOld) && platform::FileAttributes(folder_ + kNew))
            platform::Rename(folder_ + kNew, folder_);
        else if (platform::FileAttributes(folder_ + kOld))
            platform::Rename(folder_ + kOld, folder_);
    }
    if (platform::FileAttributes(folder_)) RemoveWithContents(folder_ + kOld);
}

void PreviousScreens::EndInterrupted() const {
    pictures::EndInterruptedWriting(RecordFile());
    EndInterruptedKeeping();
    RemoveWithContents(folder_ + kNew);
    // Without this it would be a set where the program's folder is the logo folder, too.
    if (platform::FileAttributes(folder_)) platform::SetAttributes(folder_, platform::kHiddenFile);
    const auto record = Last();
    if (!record) return;
    const auto installed = Installed();
    for (std::size_t i = 0; i < installed.size(); ++i) {
        const std::string coming = ComingTo(installed[i]);
        if (!platform::FileAttributes(coming)) continue;
        // The former one had gone already. One that is not whole is as good as none.
        const bool whole = Is(coming, true, record->screens[i].sum);
        if (platform::FileAttributes(installed[i]) || !whole)
            platform::Remove(coming);
        else
            platform::Rename(coming, installed[i]);
    }
}

bool PreviousScreens::WriteRecord(const std::string& folder, const InstallRecord& record) const {
    std::ostringstream text;
    text << kFirstLine << "\n" << record.areKept << " " << record.companionWanted << "\n";
    for (const ReplacedScreen& screen : record.screens)
        text << screen.wasThere << " " << screen.attributes << " " << screen.sum << " "
             << screen.isThere << " " << screen.newSum << "\n";
    text << record.setName << "\n" << record.newName << "\n";
    const std::string bytes = text.str();
    return pictures::WriteWholeFile(folder + "\\Undo.txt", {bytes.begin(), bytes.end()});
}

std::optional<InstallRecord> PreviousScreens::Last() const {
    EndInterruptedKeeping();
    const auto bytes = pictures::ReadWholeFile(RecordFile());
    if (!bytes) return std::nullopt;
    std::istringstream text(std::string(bytes->begin(), bytes->end()));
    std::string firstLine;
    if (!std::getline(text, firstLine) || firstLine != kFirstLine) return std::nullopt;
    InstallRecord record;
    text >> record.areKept >> record.companionWanted;
    for (ReplacedScreen& screen : record.screens)
        text >> screen.wasThere >> screen.attributes >> screen.sum >> screen.isThere >>
            screen.newSum;
    text.ignore(1);
    std::getline(text, record.setName);
    std::getline(text, record.newName);
    if (!text) return std::nullopt;
    return record;
}

bool PreviousScreens::HaveChangedSince(const InstallRecord& record) const {
    const auto installed = Installed();
    for (std::size_t i = 0; i < installed.size(); ++i)
        if (!Is(installed[i], record.screens[i].isThere, record.screens[i].newSum)) return true;
    return false;
}

UndoResult PreviousScreens::BringBack(const InstallRecord& record) {
    const auto installed = Installed();
    const auto source = SourceOf(record);
    for (std::size_t i = 0; i < source.size(); ++i)
        if (!Is(source[i], record.screens[i].wasThere, record.screens[i].sum))
            return UndoResult::SourceIsGone;

    for (std::size_t i = 0; i < source.size(); ++i) {
        const ReplacedScreen& was = record.screens[i];
        if (was.wasThere) {
            if (!Is(installed[i], true, was.sum) && !PutInPlace(source[i], installed[i]))
                return UndoResult::NotWritten;
            if (!platform::SetAttributes(installed[i], was.attributes))
                return UndoResult::NotWritten;
        } else if (platform::FileAttributes(installed[i])) {
            platform::SetAttributes(installed[i], platform::kNormalFile);
            if (!platform::Remove(installed[i])) return UndoResult::NotWritten;
        }
    }
    // The screens stay where they are kept; there is just nothing to take back any more.
    platform::Remove(RecordFile());
    return UndoResult::Done;
}

}  // namespace vistrel::core
