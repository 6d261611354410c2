// Shufflet: installs one of the other logo sets at random, each once before any comes again.
// Returns an Outcome.
#include "companions/change_set.h"
#include "core/rotation.h"
#include "platform/clock.h"

int main() {
    using namespace vistrel;
    const core::ShuffleRound stored = core::StoredShuffleRound();
    core::ShuffleRound round = stored;
    core::RandomGenerator generator(platform::SecondsSinceMidnight());
    const auto other = [&](const std::vector<std::string>& sets, const std::string& installed) {
        // A set that cannot be installed has not had its turn.
        round = stored;
        return round.Next(sets, installed, generator);
    };
    auto outcome = companions::ChangeLogoSet(other);
    const bool changed = outcome != companions::Outcome::VistrelRuns &&
                         outcome != companions::Outcome::NoSets &&
                         outcome != companions::Outcome::LogoFolderNotThere;
    if (changed && !core::StoreShuffleRound(round) && outcome == companions::Outcome::Done)
        outcome = companions::Outcome::SetNotRecorded;
    return static_cast<int>(outcome);
}
