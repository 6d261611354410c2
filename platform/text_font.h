// A font as a user chooses it.
#pragma once

#include <string>

namespace vistrel::platform {

struct TextFont {
    std::string face = "Arial";
    int tenthsOfPoint = 360;  ///< 72 points are an inch, of which a screen is seen 5 high
    int weight = 700;         ///< 400 normal, 700 bold
    bool italic = false;
    int charSet = 1;  ///< the system's number; 1 stands for the one of the system

    bool operator==(const TextFont&) const = default;
};

}  // namespace vistrel::platform
