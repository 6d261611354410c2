// Random numbers.
#pragma once

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

/// A number of 1 to `count` other than `current`, each equally likely. `count` is at least 2.
int DrawOther(RandomGenerator& generator, int count, int current);

}  // namespace vistrel::core
