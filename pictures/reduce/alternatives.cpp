// The tables of changes.
#include "pictures/reduce/alternatives.h"

namespace vistrel::reduce {

Alternatives::Alternatives(const Palette& palette) : changes_(palette.size) {
    const NeighborTable neighbors(palette);
    for (int i = 0; i < palette.size; ++i) {
        const Neighbors& list = neighbors.Of(i);
        Changes& changes = changes_[i];
        changes.count = list.count;
        changes.color = list.color;
        changes.harmless = list.count == 0 ? UINT32_MAX : std::uint32_t(list.squared[0]) / 4;
        for (int k = 0; k < list.count; ++k) {
            const ColorPoint d = palette.colors[list.color[k]] - palette.colors[i];
            changes.xy[2 * k] = d.x;
            changes.xy[2 * k + 1] = d.y;
            changes.z[2 * k] = d.z;
            changes.half[k] = list.squared[k] / 2;
        }
    }
}

}  // namespace vistrel::reduce
