// What something long tells of itself while it goes on.
#pragma once

#include <functional>

namespace vistrel::core {

/// Told how much is done, from 0 to 1; false when the user wants no more of it.
using Progress = std::function<bool(double share)>;

inline const Progress kNobodyAsks = [](double) { return true; };

}  // namespace vistrel::core
