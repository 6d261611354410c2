// A random choice among the other sets: Marsaglia's xorshift with 128 bits of state.
#include "core/random_choice.h"

#include <bit>
#include <cstdint>

namespace vistrel::core {

namespace {

/// One step of the splitmix64 sequence, which spreads a seed's few changing bits over all of them.
std::uint64_t NextSeed(std::uint64_t& state) {
    state += 0x9E3779B97F4A7C15u;
    std::uint64_t mixed = state;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
}

}  // namespace

RandomGenerator::RandomGenerator(double secondsSinceMidnight) {
    auto seed = std::bit_cast<std::uint64_t>(secondsSinceMidnight);
    for (unsigned& word : state_) word = static_cast<unsigned>(NextSeed(seed) >> 32);
    state_[0] |= 1;  // all words 0 would give nothing but 0
}

double RandomGenerator::Next() {
    const unsigned mixed = state_[0] ^ (state_[0] << 11);
    const unsigned last = state_[3];
    for (int word = 0; word < 3; ++word) state_[word] = state_[word + 1];
    state_[3] = last ^ (last >> 19) ^ mixed ^ (mixed >> 8);
    return state_[3] / 4294967296.0;
}

int DrawOther(RandomGenerator& generator, int count, int current) {
    for (;;) {
        const int drawn = static_cast<int>(generator.Next() * count) + 1;
        if (drawn != current) return drawn;
    }
}

}  // namespace vistrel::core
