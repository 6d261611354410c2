// What a program that loses something holds more of.
#pragma once

#include <ostream>

namespace vistrel::test {

/// How many objects of the system's this process holds. The system's own calls that tell so answer
/// 0 in Wine, whatever is held; but each place of its tables can be asked after, since the lower
/// half of a handle stands for whatever has that place.
struct HeldObjects {
    int handles = 0;  ///< of files, processes, threads, events and the like
    int drawing = 0;  ///< contexts, bitmaps, brushes, pens, fonts, regions, palettes
    int windows = 0;  ///< and menus, icons and cursors

    /// By more than so many of one kind.
    bool AreMoreThan(const HeldObjects& others, int some = 0) const {
        return handles > others.handles + some || drawing > others.drawing + some ||
               windows > others.windows + some;
    }
};

HeldObjects CountHeldObjects();

inline std::ostream& operator<<(std::ostream& out, const HeldObjects& held) {
    return out << held.handles << " handles, " << held.drawing << " for drawing, " << held.windows
               << " windows and menus";
}

}  // namespace vistrel::test
