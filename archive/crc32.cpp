#include "archive/crc32.h"

#include <array>

namespace vistrel::archive {
namespace {

constexpr std::array<std::uint32_t, 256> MakeTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
        std::uint32_t rest = byte;
        for (int bit = 0; bit < 8; ++bit) rest = (rest >> 1) ^ ((rest & 1) ? 0xEDB88320u : 0u);
        table[byte] = rest;
    }
    return table;
}

constexpr std::array<std::uint32_t, 256> kTable = MakeTable();

}  // namespace

std::uint32_t Crc32(std::uint32_t sum, std::span<const std::uint8_t> bytes) {
    sum = ~sum;
    for (const std::uint8_t byte : bytes) sum = (sum >> 8) ^ kTable[(sum ^ byte) & 0xFF];
    return ~sum;
}

}  // namespace vistrel::archive
