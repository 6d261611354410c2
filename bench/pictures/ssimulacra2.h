// SSIMULACRA 2, a measure of visible differences that was fitted to people's judgements.
#pragma once

#include <array>

#include "bench/pictures/planes.h"

namespace vistrel::bench {

/// The score of a picture against its reference, both as linear light (red, green, blue; 0..1).
/// 100 means alike, 90 hardly visible differences, 70 visible ones.
double Ssimulacra2(std::array<Plane, 3> reference, std::array<Plane, 3> candidate);

}  // namespace vistrel::bench
