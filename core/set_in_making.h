// A set that is being made, unseen until it is whole.
#pragma once

#include <string>

namespace vistrel::core {

/// Makes a hidden folder in the library (which ends in a backslash) whose name begins with
/// `beginning`; hidden folders are no sets. Its path with a backslash; empty when it cannot be
/// made.
std::string MakeHiddenFolder(const std::string& library, const std::string& beginning);

/// Removes a folder (without a backslash at its end) and all that it holds, read-only or not.
void RemoveWithContents(const std::string& folder);

/// A folder that lies in a hidden one of the library until it is whole: it becomes a set by a new
/// name alone, whatever the drive. Whoever ends the program meanwhile leaves no half set behind.
class SetInMaking {
 public:
    /// `library` ends in a backslash.
    explicit SetInMaking(std::string library);
    SetInMaking(const SetInMaking&) = delete;
    SetInMaking& operator=(const SetInMaking&) = delete;
    /// What has not become a set is removed.
    ~SetInMaking();

    /// Where it is to be filled; ends in a backslash. Empty when no folder could be made.
    const std::string& Folder() const { return folder_; }
    /// Gives the set its name in the library. False when there is something of that name.
    bool Finish(const std::string& name);

 private:
    std::string library_;
    std::string hidden_;
    std::string folder_;
};

/// Removes what a program that was ended while it made a set has left in the library.
void RemoveUnfinishedSets(const std::string& library);

}  // namespace vistrel::core
