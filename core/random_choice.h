// A random choice among the other sets.
#pragma once

#include <string>
#include <vector>

namespace vistrel::core {

/// Uniform numbers, seeded from the seconds since midnight with their fractions.
class RandomGenerator {
 public:
    explicit RandomGenerator(double secondsSinceMidnight);
    /// The next number of [0, 1).
    double Next();

 private:
    unsigned state_[4];
};

/// One of `sets`, of which there is at least one, other than `installed` unless that is the only
/// one. Each of the others is equally likely.
std::string RandomOtherSet(RandomGenerator& generator, const std::vector<std::string>& sets,
                           const std::string& installed);

/// A number of 1 to `count` other than `current`, each equally likely. `count` is at least 2.
int DrawOther(RandomGenerator& generator, int count, int current);

}  // namespace vistrel::core
