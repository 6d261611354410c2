// Shufflet: installs one of the other logo sets at random. Returns an Outcome.
#include "companions/change_set.h"
#include "core/random_choice.h"
#include "platform/clock.h"

int main() {
    using namespace vistrel;
    const auto other = [](const std::vector<std::string>& sets, const std::string& installed) {
        core::RandomGenerator generator(platform::SecondsSinceMidnight());
        return core::RandomOtherSet(generator, sets, installed);
    };
    return static_cast<int>(companions::ChangeLogoSet(other));
}
