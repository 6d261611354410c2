// What an install replaces: kept before, and brought back when the user takes the install back.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "core/install.h"

namespace vistrel::core {

/// One of the three installed screens as it was, and as the install leaves it.
struct ReplacedScreen {
    bool wasThere = false;
    std::uint32_t attributes = 0;
    std::uint32_t sum = 0;  ///< check sum of what was there; 0 without
    bool isThere = false;
    std::uint32_t newSum = 0;
};

/// What there is to know to take an install back.
struct InstallRecord {
    std::array<ReplacedScreen, 3> screens;
    /// Whether the replaced screens lie in "Previous screens"; else they are those of `setName`.
    bool areKept = false;
    std::string setName;           ///< of the set that was the installed one; empty when unknown
    std::string newName;           ///< of the set that replaced it
    bool companionWanted = false;  ///< what the main window wanted of Mirrorkin
};

enum class UndoResult {
    Done,
    SourceIsGone,  ///< the replaced screens are not what they were; nothing has changed
    NotWritten     ///< a screen could not be written; it can be tried again
};

class PreviousScreens {
 public:
    /// `programFolder` ends in a backslash: what is replaced is kept in "Previous screens" there.
    PreviousScreens(const std::string& programFolder, InstallTargets targets)
        : folder_(programFolder + "Previous screens"), targets_(std::move(targets)) {}

    /// To be called before `newName` is installed. Keeps the installed screens unless they are just
    /// those of the set `setName`; what was kept before goes, but only then. A power cut leaves
    /// either the one or the other. Nothing happens before a set is installed over itself. False
    /// when they could not be kept: there is nothing to undo then.
    bool Keep(const std::string& setName, const std::string& newName, bool synchronize,
              bool companionWanted);

    /// Ends what a program has left that was ended while it kept screens or brought them back: each
    /// installed screen is then the old or the new one.
    void EndInterrupted() const;

    /// The install that can be taken back, if there is one.
    std::optional<InstallRecord> Last() const;

    /// Whether somebody else has changed the installed screens since.
    bool HaveChangedSince(const InstallRecord& record) const;

    /// Brings the three files back as they were, attributes included.
    UndoResult BringBack(const InstallRecord& record);

 private:
    std::array<std::string, 3> Installed() const;
    std::array<std::string, 3> SourceOf(const InstallRecord& record) const;
    std::string RecordFile() const { return folder_ + "\\Undo.txt"; }
    bool KeepScreens(const InstallRecord& record);
    bool WriteRecord(const std::string& folder, const InstallRecord& record) const;
    void EndInterruptedKeeping() const;

    std::string folder_;  ///< without a backslash at its end
    InstallTargets targets_;
};

}  // namespace vistrel::core
