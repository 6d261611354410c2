// What the columns of the list say of a logo set: facts of its files.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/logo_set.h"

namespace vistrel::core {

/// Facts of the screens in the set's own folder: those that a single-logo set shares with all
/// others do not count.
struct SetDetails {
    std::array<bool, 3> has{};   ///< which screens there are, in the order of LogoScreen
    int movingColors = 0;        ///< of the startup screen; 0 for one that stands still
    std::uint64_t modified = 0;  ///< when the last changed one was; counts up, 0 without screens
    std::uint64_t size = 0;      ///< of all of them, in bytes

    int Screens() const { return has[0] + has[1] + has[2]; }
};

/// Reads no more of the disk than the folder's list and the head of the startup screen.
SetDetails DetailsOf(const LogoSet& set);

/// "Startup, wait, shutdown", or those of them that are there; empty for none.
std::string ScreensInWords(const SetDetails& details);

}  // namespace vistrel::core
