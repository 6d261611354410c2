// Writing the screens of a logo set from the files that fill the editor's slots.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "core/logo_set.h"

namespace vistrel::core {

/// The paths of the files that become the three screens; empty for an empty slot.
using Slots = std::array<std::string, 3>;

/// Makes an empty file that stays until the session ends, and returns its path; empty when it
/// cannot.
using NewSessionFile = std::function<std::string()>;

/// How far saving came. What was written before a step failed stays written.
struct SaveResult {
    bool saved = false;
    /// The name or slot that the command looked at last: when it failed, most likely the reason.
    std::string lastRead;
};

/// Makes the set's folder, which must not exist, and copies the pictures of the slots into it. A
/// slot without one leaves the set without that screen.
SaveResult CreateSet(const LogoSet& set, SetKind kind, const Slots& slots);

/// Writes the slots over the screens of a set that exists. Where slots hold each other's screens
/// their pictures are kept in session files first, which the slots name then. A startup-only set
/// loses its other two screens.
SaveResult UpdateSet(const LogoSet& set, SetKind kind, Slots& slots, const NewSessionFile& newFile);

/// Writes the second and third slot over the wait and shutdown screens that all single-logo sets of
/// the library share; otherwise as UpdateSet.
SaveResult SaveSharedScreens(const std::string& library, Slots& slots,
                             const NewSessionFile& newFile);

}  // namespace vistrel::core
