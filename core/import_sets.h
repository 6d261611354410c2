// Taking logo sets from a ZIP file: of one that ExportSets has written, or of any other that holds
// screens.
#pragma once

#include <string>
#include <vector>

#include "archive/zip_reader.h"
#include "core/progress.h"

namespace vistrel::core {

/// True for a name that ends in ".ZIP".
bool IsArchiveName(const std::string& path);

/// A set that an archive holds.
struct ArchivedSet {
    struct Screen {
        const archive::Entry* entry;
        std::string file;  ///< the name of 8.3 that it gets
    };
    std::string name;  ///< no other of the archive has it
    std::vector<Screen> screens;
    /// A picture by another name: whether it is a screen shows when it is unpacked.
    bool isPicture = false;
};

/// The sets of an archive. Each folder with a screen in it is one that is called as the folder is;
/// screens in no folder are one that is called as the archive is (`archiveName`, without an
/// ending), a single-logo set when there is only a startup screen. Each other bitmap is a
/// single-logo set that is called as the picture is.
std::vector<ArchivedSet> SetsOfArchive(const std::vector<archive::Entry>& entries,
                                       const std::string& archiveName);

/// A set that has been unpacked: its name, and those of its screens.
struct UnpackedSet {
    std::string name;
    std::vector<std::string> screens;
};

/// The sets of a ZIP file, unpacked beside those of the library and taken in one by one. What is
/// not taken is removed in the end.
class UnpackedSets {
 public:
    /// `library` ends in a backslash.
    explicit UnpackedSets(std::string library) : library_(std::move(library)) {}
    UnpackedSets(const UnpackedSets&) = delete;
    UnpackedSets& operator=(const UnpackedSets&) = delete;
    ~UnpackedSets();

    /// Unpacks all sets of the archive at `path`, into a hidden folder of the library. What keeps
    /// it from that, as half a sentence behind the file's name; empty when all went well, and when
    /// the user stopped it: there are no sets then.
    std::string Unpack(const std::string& path, const Progress& progress = kNobodyAsks);

    const std::vector<UnpackedSet>& Sets() const { return sets_; }

    /// Makes the set of this number one of the library. Where there is a set of that name its
    /// screens are replaced by those that the new one has, and the others stay. False when that
    /// failed; the library is then as it was, or will have the new set when the program starts
    /// again.
    bool Take(std::size_t number);

 private:
    std::string UnpackNext(const pictures::PictureFile& file, const ArchivedSet& set);
    std::string FolderOf(std::size_t number) const;
    bool MakeHiddenFolder();
    bool ReplaceScreens(const UnpackedSet& set, const std::string& from, const std::string& to);

    std::string library_;
    std::string hidden_;             ///< ends in a backslash; empty while there is none
    std::size_t folders_ = 0;        ///< how many hidden_ holds or held
    std::vector<UnpackedSet> sets_;  ///< what these folders are
    bool isInterrupted_ = false;     ///< a set has some of its new screens, and cannot lose them
};

}  // namespace vistrel::core
