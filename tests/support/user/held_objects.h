// What a program that loses something holds more of.
#pragma once

#include <ostream>

namespace vistrel::test {

/// How far up the tables of this process's objects are filled: the highest place of some new ones,
/// since free places are used again first. What is lost moves it up, and the next beside it.
/// (The system's own calls tell no numbers in Wine: their answer is 0 whatever is held.)
struct HeldObjects {
    int system = 0;   ///< files, processes, events and the like
    int drawing = 0;  ///< of GDI
    int windows = 0;  ///< and menus

    /// By more than so many of one kind.
    bool AreMoreThan(const HeldObjects& others, int some = 0) const {
        return system > others.system + some || drawing > others.drawing + some ||
               windows > others.windows + some;
    }
};

HeldObjects CountHeldObjects();

inline std::ostream& operator<<(std::ostream& out, const HeldObjects& held) {
    return out << held.system << " of the system's, " << held.drawing << " for drawing, "
               << held.windows << " windows";
}

}  // namespace vistrel::test
