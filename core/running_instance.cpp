#include "core/running_instance.h"

#include "platform/running_window.h"

namespace vistrel::core {

namespace {

/// A copy that is starting shows its window soon, one that is closing makes room soon: so often
/// this is looked at, with so many milliseconds between.
constexpr int kLooks = 150;
constexpr unsigned long kPause = 100;

}  // namespace

bool VistrelIsRunning() { return platform::WindowOfClassExists(kMainWindowClass); }

OnlyCopy::OnlyCopy() : mutex_("Vistrel is open") {}

bool OnlyCopy::Take() {
    for (int look = 0; look < kLooks; ++look) {
        if (mutex_.TakeWithin(kPause)) return true;
        if (platform::BringToFront(kMainWindowClass)) return false;
    }
    return false;
}

}  // namespace vistrel::core
