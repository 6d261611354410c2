// Writing the screens of a logo set. The first step that fails ends the command.
#include "core/save_set.h"

#include "core/entry_name.h"
#include "core/slot_file.h"
#include "platform/files.h"

namespace vistrel::core {
namespace {

/// Places in arrays of the three screens.
constexpr std::size_t kStartup = 0;
constexpr std::size_t kWait = 1;
constexpr std::size_t kShutdown = 2;

/// Writes slots over the screens of one folder.
class SlotWriter {
 public:
    SlotWriter(const std::string& folder, Slots& slots, const NewSessionFile& newFile,
               const std::string& name)
        : screens_(ScreensIn(folder)), slots_(slots), newFile_(newFile), lastRead_(name) {}

    /// A slot may hold a screen of the same folder that another slot is about to replace or delete:
    /// its picture is kept aside first.
    bool KeepSources(std::size_t first, std::size_t last) {
        for (std::size_t i = first; i <= last; ++i)
            if (HoldsPicture(slots_[i]) && IsScreenOfAnotherSlot(i) && !KeepSource(i)) return false;
        return true;
    }

    /// Deletes the screens of empty slots, then copies every slot.
    // Quirk: an empty slot is not passed over then. There is nothing to copy, which fails
    // (SaveSet.AnEmptySlotEndsTheUpdateBehindTheDeletionOfItsScreen).
    bool Write(std::size_t first, std::size_t last) {
        for (std::size_t i = first; i <= last; ++i)
            if (Read(i).empty() && !platform::Remove(screens_[i])) return false;
        for (std::size_t i = first; i <= last; ++i)
            if (!CopyScreen(Read(i), screens_[i])) return false;
        return true;
    }

    bool RemoveScreen(std::size_t index) { return platform::Remove(screens_[index]); }

    SaveResult Result(bool saved) const { return {saved, lastRead_}; }

 private:
    const std::string& Read(std::size_t index) { return lastRead_ = slots_[index]; }

    bool IsScreenOfAnotherSlot(std::size_t index) const {
        for (std::size_t other = 0; other < screens_.size(); ++other)
            if (other != index && IsSameFile(slots_[index], screens_[other])) return true;
        return false;
    }

    bool KeepSource(std::size_t index) {
        const std::string kept = newFile_();
        if (kept.empty() || !CopyScreen(Read(index), kept)) return false;
        slots_[index] = kept;
        return true;
    }

    const std::array<std::string, 3> screens_;
    Slots& slots_;
    const NewSessionFile& newFile_;
    std::string lastRead_;
};

}  // namespace

// Quirk: an empty slot is passed over without a word here, and ends an update
// (SaveSet.CreatesWithoutTheScreensOfEmptyMissingAndUnreadableSlots).
SaveResult CreateSet(const LogoSet& set, SetKind kind, const Slots& slots) {
    if (!SetFolderName(set.name, set.library) || !platform::MakeFolder(set.Path()))
        return {false, set.name};
    const std::array<std::string, 3> screens = ScreensIn(set.Folder());
    const std::size_t last = kind == SetKind::Complete ? kShutdown : kStartup;
    for (std::size_t i = kStartup; i <= last; ++i)
        if (HoldsPicture(slots[i]) && !CopyScreen(slots[i], screens[i])) return {false, slots[i]};
    return {true, set.name};
}

SaveResult UpdateSet(const LogoSet& set, SetKind kind, Slots& slots,
                     const NewSessionFile& newFile) {
    SlotWriter writer(set.Folder(), slots, newFile, set.name);
    if (kind == SetKind::Complete) {
        return writer.Result(writer.KeepSources(kStartup, kShutdown) &&
                             writer.Write(kStartup, kStartup) && writer.Write(kWait, kShutdown));
    }
    // Quirk: a set that lacks the other screens, as one that was startup-only before, ends here
    // (SaveSet.AnUpdateOfAStartupOnlySetEndsAtTheScreensThatAreNotThere).
    return writer.Result(writer.KeepSources(kStartup, kStartup) &&
                         writer.Write(kStartup, kStartup) && writer.RemoveScreen(kWait) &&
                         writer.RemoveScreen(kShutdown));
}

SaveResult SaveSharedScreens(const std::string& library, Slots& slots,
                             const NewSessionFile& newFile) {
    SlotWriter writer(library, slots, newFile, "");
    return writer.Result(writer.KeepSources(kWait, kShutdown) && writer.Write(kWait, kShutdown));
}

}  // namespace vistrel::core
