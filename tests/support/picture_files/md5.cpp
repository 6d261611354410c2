// The MD5 digest, RFC 1321.
#include "tests/support/picture_files/md5.h"

#include <array>
#include <bit>
#include <cmath>
#include <vector>

namespace vistrel::test {

namespace {

using State = std::array<std::uint32_t, 4>;

std::uint32_t Mix(int round, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
    switch (round) {
        case 0:
            return (b & c) | (~b & d);
        case 1:
            return (d & b) | (~d & c);
        case 2:
            return b ^ c ^ d;
        default:
            return c ^ (b | ~d);
    }
}

std::uint32_t Word(const std::uint8_t* block, int i) {
    const std::uint8_t* word = block + 4 * i;
    return word[0] | word[1] << 8 | word[2] << 16 | static_cast<std::uint32_t>(word[3]) << 24;
}

// Takes in 64 bytes.
void AddBlock(State& state, const std::uint8_t* block) {
    static constexpr int kTurns[4][4] = {
        {7, 12, 17, 22}, {5, 9, 14, 20}, {4, 11, 16, 23}, {6, 10, 15, 21}};
    static constexpr int kWords[4][2] = {{1, 0}, {5, 1}, {3, 5}, {7, 0}};  // factor and start
    auto [a, b, c, d] = state;
    for (int step = 0; step < 64; ++step) {
        const int round = step / 16;
        const int word = (kWords[round][0] * step + kWords[round][1]) % 16;
        const auto sine = static_cast<std::uint32_t>(4294967296.0 * std::fabs(std::sin(step + 1)));
        const std::uint32_t sum = a + Mix(round, b, c, d) + sine + Word(block, word);
        a = d;
        d = c;
        c = b;
        b += std::rotl(sum, kTurns[round][step % 4]);
    }
    state[0] += a;
    state[1] += b;
    state[2] += c;
    state[3] += d;
}

}  // namespace

std::string Md5(std::span<const std::uint8_t> bytes) {
    State state = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476};
    const std::size_t whole = bytes.size() / 64 * 64;
    for (std::size_t at = 0; at < whole; at += 64) AddBlock(state, &bytes[at]);

    std::vector<std::uint8_t> end(bytes.begin() + static_cast<std::ptrdiff_t>(whole), bytes.end());
    end.push_back(0x80);
    while (end.size() % 64 != 56) end.push_back(0);
    const std::uint64_t bits = std::uint64_t{bytes.size()} * 8;
    for (int i = 0; i < 8; ++i) end.push_back(static_cast<std::uint8_t>(bits >> (8 * i)));
    for (std::size_t at = 0; at < end.size(); at += 64) AddBlock(state, &end[at]);

    std::string digest;
    for (const std::uint32_t word : state) {
        for (int i = 0; i < 4; ++i) {
            const std::uint32_t byte = word >> (8 * i) & 255;
            digest += "0123456789abcdef"[byte / 16];
            digest += "0123456789abcdef"[byte % 16];
        }
    }
    return digest;
}

}  // namespace vistrel::test
