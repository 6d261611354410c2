// The choice that the descent makes at every pixel: is a neighbouring colour better here?
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "pictures/quantize_palette.h"

namespace vistrel {

/// For each colour of a palette the changes to its neighbours, laid out to be weighed together.
class Alternatives {
 public:
    explicit Alternatives(const Palette& palette);

    /// The colour that a pixel should have which now has `own` and whose place in the error field
    /// holds `field`: changing a pixel's colour by d changes the sum that is made small by
    /// c * (|d|^2 + 2 d * field), see ErrorField. `own` when no neighbour would make it less.
    int Better(int own, const Point& field) const;

 private:
    struct alignas(16) Changes {
        std::array<std::int16_t, 2 * Neighbors::kMost> xy{};  ///< x and y of each d in turn
        std::array<std::int16_t, 2 * Neighbors::kMost> z{};   ///< z of each d, and 0, in turn
        std::array<std::int32_t, Neighbors::kMost> half{};    ///< |d|^2 / 2
        std::array<std::uint8_t, Neighbors::kMost> color{};
        std::int32_t count = 0;
        /// A field of at most this squared length cannot make any change worth while.
        std::uint32_t harmless = 0;
    };
    std::vector<Changes> changes_;
};

}  // namespace vistrel
