// Mirrorkin: brings the wait and shutdown screens of the installed set into place when Windows
// starts. Returns an Outcome; started without "/auto" it says what it is and returns 0.
#include <algorithm>

#include "companions/mirror_screens.h"
#include "core/generali.h"
#include "core/locations.h"
#include "core/synchronizing.h"
#include "platform/message_box.h"

int main(int count, char** arguments) {
    using namespace vistrel;
    const bool atStart =
        std::any_of(arguments + std::min(count, 1), arguments + count,
                    [](const char* argument) { return core::UpperCase(argument) == "/AUTO"; });
    if (!atStart) {
        platform::Tell(
            nullptr,
            "Mirrorkin brings the wait and shutdown screens of your logo set into place each time "
            "Windows starts. Vistrel starts it by itself while \"Synchronize logos\" is on.",
            platform::Icon::Information, "Mirrorkin");
        return static_cast<int>(companions::Outcome::Done);
    }
    const core::SystemLocations locations = core::FindSystemLocations();
    return static_cast<int>(companions::MirrorScreens(
        core::ReadSynchronizedPath(locations.programFolder), locations.windowsDirectory));
}
