#include "tests/support/user/held_objects.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace vistrel::test {
namespace {

/// The highest place of some objects that `make` makes and `end` ends.
template <class Make, class End, class Place>
int HighestPlace(Make make, End end, Place place) {
    std::array<decltype(make()), 64> objects{};
    int highest = 0;
    for (auto& object : objects) {
        object = make();
        highest = std::max<int>(highest, place(reinterpret_cast<ULONG_PTR>(object)));
    }
    for (auto& object : objects) end(object);
    return highest;
}

}  // namespace

HeldObjects CountHeldObjects() {
    const auto lowHalf = [](ULONG_PTR handle) { return static_cast<int>(LOWORD(handle)); };
    return {HighestPlace([] { return CreateEventA(nullptr, FALSE, FALSE, nullptr); }, CloseHandle,
                         [](ULONG_PTR handle) { return static_cast<int>(handle / 4); }),
            HighestPlace([] { return CreateSolidBrush(RGB(1, 2, 3)); }, DeleteObject, lowHalf),
            HighestPlace(CreateMenu, DestroyMenu, lowHalf)};
}

}  // namespace vistrel::test
