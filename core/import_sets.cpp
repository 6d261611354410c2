#include "core/import_sets.h"

#include <algorithm>
#include <map>

#include "core/entry_name.h"
#include "core/generali.h"
#include "core/interrupted_imports.h"
#include "core/logo_set.h"
#include "core/screen_file.h"
#include "core/set_in_making.h"
#include "pictures/file.h"
#include "platform/code_pages.h"
#include "platform/file_time.h"
#include "platform/files.h"

namespace vistrel::core {
namespace {

using archive::ArchiveFault;
using archive::Entry;
using pictures::PictureFile;

/// No bitmap of 320 x 400 pixels is larger, and no screen that the system shows.
constexpr std::uint32_t kLargestScreen = 1024 * 1024;
/// Of all screens of an archive: more than two thousand of the usual size.
constexpr std::uint64_t kMostBytes = 256ull * 1024 * 1024;

constexpr const char* kNotUnpacked =
    "cannot be unpacked into the logo folder, which may be protected, or its disk full";

/// What stands before and behind the last "/" of an entry's name.
struct EntryPath {
    std::string folder;
    std::string file;
};

EntryPath PathOf(const Entry& entry) {
    const std::size_t slash = entry.name.rfind('/');
    if (slash == std::string::npos) return {"", entry.name};
    return {entry.name.substr(0, slash), entry.name.substr(slash + 1)};
}

/// Which of the three screens a name is; -1 for none.
int ScreenOfName(const std::string& file) {
    for (std::size_t i = 0; i < kScreenFileNames.size(); ++i)
        if (UpperCase(file) == kScreenFileNames[i]) return static_cast<int>(i);
    return -1;
}

bool MayBeScreen(const Entry& entry, const std::string& file) {
    const std::string ending = UpperEnding(file);
    return (ending == ".BMP" || ending == ".SYS") && entry.size <= kLargestScreen;
}

std::string WithoutEnding(const std::string& name) { return name.substr(0, name.rfind('.')); }

std::string FileNameOf(std::string path) { return GetFileName(path); }

class Sorter {
 public:
    explicit Sorter(const std::string& archiveName) : archiveName_(archiveName) {}

    void Add(const Entry& entry) {
        const EntryPath path = PathOf(entry);
        const int screen = ScreenOfName(path.file);
        if (screen >= 0)
            AddScreen(SetOfFolder(path.folder), {&entry, kScreenFileNames[screen]});
        else if (MayBeScreen(entry, path.file))
            pictures_.push_back({WithoutEnding(platform::Utf8ToAnsi(path.file)),
                                 {{&entry, kScreenFileNames[0]}},
                                 true});
    }

    /// With names of which no two are the same.
    std::vector<ArchivedSet> Sets() {
        const auto root = folders_.find("");
        if (root != folders_.end() && HoldsOnlyStartup(sets_[root->second]))
            sets_[root->second].name += kSingleLogoEnding;
        for (ArchivedSet& picture : pictures_) {
            picture.name += kSingleLogoEnding;
            sets_.push_back(std::move(picture));
        }
        for (std::size_t i = 0; i < sets_.size(); ++i) sets_[i].name = NameOf(i);
        return std::move(sets_);
    }

 private:
    /// The first of several of the same name.
    static void AddScreen(ArchivedSet& set, const ArchivedSet::Screen& screen) {
        for (const ArchivedSet::Screen& other : set.screens)
            if (other.file == screen.file) return;
        set.screens.push_back(screen);
    }

    ArchivedSet& SetOfFolder(const std::string& folder) {
        const auto [place, isNew] = folders_.try_emplace(folder, sets_.size());
        if (isNew) {
            const std::string last = folder.substr(folder.rfind('/') + 1);
            sets_.push_back(
                {folder.empty() ? archiveName_ : platform::Utf8ToAnsi(last), {}, false});
        }
        return sets_[place->second];
    }

    static bool HoldsOnlyStartup(const ArchivedSet& set) {
        return set.screens.size() == 1 && set.screens[0].file == kScreenFileNames[0] &&
               !IsSingleLogoSet(set.name);
    }

    std::string NameOf(std::size_t number) const {
        const std::string& name = sets_[number].name;
        const bool isSingle = IsSingleLogoSet(name);
        return FreeName(isSingle ? WithoutEnding(name) : name,
                        isSingle ? name.substr(name.size() - 4) : "",
                        [&](const std::string& other) {
                            for (std::size_t i = 0; i < number; ++i)
                                if (UpperCase(sets_[i].name) == UpperCase(other)) return true;
                            return false;
                        });
    }

    const std::string& archiveName_;
    std::map<std::string, std::size_t> folders_;  ///< which set a folder is
    std::vector<ArchivedSet> sets_;
    std::vector<ArchivedSet> pictures_;
};

std::string FaultBefore(const std::vector<ArchivedSet>& sets, const std::string& library) {
    std::uint64_t bytes = 0;
    for (const ArchivedSet& set : sets) {
        if (SetFolderName(set.name, library) != set.name)
            return "holds \"" + set.name + "\", which cannot be the name of a logo set";
        for (const ArchivedSet::Screen& screen : set.screens) {
            if (screen.entry->size > kLargestScreen)
                return "holds a screen that is larger than any that Windows shows";
            bytes += screen.entry->size;
        }
    }
    return bytes > kMostBytes ? InWords(ArchiveFault::TooMuch) : "";
}

std::string UnpackEntry(const PictureFile& file, const Entry& entry, const std::string& path) {
    pictures::FileWriter writer(path);
    const ArchiveFault fault = archive::Unpack(
        file, entry, [&](pictures::FileBytes bytes) { return writer.Write(bytes); });
    if (fault == ArchiveFault::Stopped) return kNotUnpacked;
    if (fault != ArchiveFault::None) return InWords(fault);
    if (!writer.Finish()) return kNotUnpacked;
    platform::SetModifiedAt(path, entry.modified);
    return "";
}

bool HasSizeOfScreen(const std::string& path) {
    for (const screen::ScreenFault fault : FaultsOfScreenFile(path))
        if (fault == screen::ScreenFault::NotABitmap || fault == screen::ScreenFault::WrongSize)
            return false;
    return true;
}

void RemoveScreens(const std::string& folder) {
    for (const std::string& screen : ScreensIn(folder)) {
        platform::SetAttributes(screen, platform::kNormalFile);
        platform::Remove(screen);
    }
}

void RemoveFolderWithScreens(const std::string& folder) {
    RemoveScreens(folder);
    platform::Remove(folder + kNameOfSet);
    platform::RemoveFolder(folder.substr(0, folder.size() - 1));
}

}  // namespace

bool IsArchiveName(const std::string& path) { return UpperEnding(path) == ".ZIP"; }

std::vector<ArchivedSet> SetsOfArchive(const std::vector<Entry>& entries,
                                       const std::string& archiveName) {
    Sorter sorter(archiveName);
    for (const Entry& entry : entries)
        if (!entry.IsFolder()) sorter.Add(entry);
    return sorter.Sets();
}

UnpackedSets::~UnpackedSets() {
    if (hidden_.empty() || isInterrupted_) return;
    for (std::size_t i = 1; i <= folders_; ++i) RemoveFolderWithScreens(FolderOf(i));
    platform::RemoveFolder(hidden_ + "0");
    platform::RemoveFolder(hidden_.substr(0, hidden_.size() - 1));
}

// Number 0 is for the screens that are replaced.
std::string UnpackedSets::FolderOf(std::size_t number) const {
    return hidden_ + std::to_string(number) + "\\";
}

// In the library, so that a set becomes one of its own by a new name alone, whatever the drives.
// Hidden folders are no sets.
bool UnpackedSets::MakeHiddenFolder() {
    hidden_ = core::MakeHiddenFolder(library_, kImportFolders);
    return !hidden_.empty() && platform::MakeFolder(hidden_ + "0");
}

std::string UnpackedSets::Unpack(const std::string& path, const Progress& progress) {
    const auto file = pictures::FileOnDisk::Open(path);
    if (!file) return "cannot be read";
    const archive::Directory all = archive::ReadDirectory(PictureFile(*file), platform::DosToUtf8);
    if (file->HasFailed()) return "cannot be read";
    if (all.fault != ArchiveFault::None) return InWords(all.fault);

    const auto sets = SetsOfArchive(all.entries, WithoutEnding(FileNameOf(path)));
    std::string fault = FaultBefore(sets, library_);
    if (fault.empty() && !MakeHiddenFolder()) fault = kNotUnpacked;
    for (std::size_t done = 0; done < sets.size() && fault.empty(); ++done) {
        if (!progress(static_cast<double>(done) / sets.size())) {
            sets_.clear();
            return "";
        }
        fault = UnpackNext(PictureFile(*file), sets[done]);
        if (file->HasFailed()) fault = "cannot be read";
    }
    if (!fault.empty()) sets_.clear();
    if (fault.empty() && sets_.empty()) fault = "holds no screens";
    return fault;
}

std::string UnpackedSets::UnpackNext(const PictureFile& file, const ArchivedSet& set) {
    const std::string folder = FolderOf(folders_ + 1);
    if (!platform::MakeFolder(folder.substr(0, folder.size() - 1))) return kNotUnpacked;
    ++folders_;
    UnpackedSet unpacked{set.name, {}};
    for (const ArchivedSet::Screen& screen : set.screens) {
        const std::string fault = UnpackEntry(file, *screen.entry, folder + screen.file);
        if (!fault.empty()) return fault;
        unpacked.screens.push_back(screen.file);
    }
    if (!set.isPicture || HasSizeOfScreen(folder + kScreenFileNames[0])) {
        sets_.push_back(std::move(unpacked));
        return "";
    }
    // The next set takes the folder of what was no screen.
    RemoveFolderWithScreens(folder);
    --folders_;
    return "";
}

bool UnpackedSets::Take(std::size_t number) {
    const std::string from = FolderOf(number + 1);
    const std::string to = library_ + sets_[number].name;
    if (platform::IsFolder(to)) return ReplaceScreens(sets_[number], from, to + "\\");
    return platform::Rename(from.substr(0, from.size() - 1), to);
}

// The old screens step aside, and come back when not all new ones can take their places.
bool UnpackedSets::ReplaceScreens(const UnpackedSet& set, const std::string& from,
                                  const std::string& to) {
    struct Move {
        std::string from;
        std::string to;
    };
    std::vector<Move> moves;
    for (const std::string& screen : set.screens) {
        if (platform::FileAttributes(to + screen))
            moves.push_back({to + screen, FolderOf(0) + screen});
        moves.push_back({from + screen, to + screen});
    }
    if (!pictures::WriteWholeFile(from + kNameOfSet, {set.name.begin(), set.name.end()}))
        return false;
    std::size_t done = 0;
    while (done < moves.size() && platform::Rename(moves[done].from, moves[done].to)) ++done;
    const bool all = done == moves.size();
    while (!all && done > 0 && platform::Rename(moves[done - 1].to, moves[done - 1].from)) --done;
    if (!all && done > 0) {
        // Neither the one nor the other: the next start brings the rest.
        isInterrupted_ = true;
        return false;
    }
    platform::Remove(from + kNameOfSet);
    // Those that are replaced make room for those of the next set.
    if (all) RemoveScreens(FolderOf(0));
    return all;
}

}  // namespace vistrel::core
