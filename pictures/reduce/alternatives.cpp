// The tables of changes.
#include "pictures/reduce/alternatives.h"

#include <algorithm>

namespace vistrel::reduce {
namespace {

void Put(loops::Alternatives& others, int k, const std::uint16_t* from, const std::uint16_t* to,
         const ErrorField& field) {
    const int x = to[0] - from[0];
    const int y = to[1] - from[1];
    const int z = to[2] - from[2];
    others.xy[2 * k] = static_cast<std::int16_t>(x);
    others.xy[2 * k + 1] = static_cast<std::int16_t>(y);
    others.z[2 * k] = static_cast<std::int16_t>(z);
    const std::int64_t squared = SquaredLength(x, y, z);
    const std::int64_t half = field.Weighed(squared) / 2;
    others.half[k] = static_cast<std::int32_t>(half);
    // |d * field| is at most |d| |field|.
    const std::int64_t enough = squared == 0 ? 0 : half * half / squared;
    others.enough[k] = static_cast<std::uint32_t>(std::min<std::int64_t>(enough, UINT32_MAX));
}

}  // namespace

std::vector<loops::Alternatives> AlternativesOf(const Palette& palette, const ErrorPalette& colors,
                                                const ErrorField& field) {
    static_assert(Neighbors::kMost == loops::Alternatives::kMost);
    const NeighborTable neighbors(palette);
    std::vector<loops::Alternatives> all(palette.size);
    for (int i = 0; i < palette.size; ++i) {
        const Neighbors& list = neighbors.Of(i);
        loops::Alternatives& others = all[i];
        others.count = list.count;
        others.color = list.color;
        for (int k = 0; k < list.count; ++k) {
            Put(others, k, &colors[i * loops::kPoint], &colors[list.color[k] * loops::kPoint],
                field);
        }
        others.enough[list.count] = UINT32_MAX;
        for (int k = list.count - 2; k >= 0; --k)
            others.enough[k] = std::min(others.enough[k], others.enough[k + 1]);
        // Where a field just makes the nearest change worth while, it would have to point right at
        // that colour: half as much again is worth looking for one.
        others.harmless = list.count == 0 ? UINT32_MAX : others.enough[0] + others.enough[0] / 2;
    }
    return all;
}

}  // namespace vistrel::reduce
