// The check sum of ZIP files.
#pragma once

#include <cstdint>
#include <span>

namespace vistrel::archive {

/// Goes on with a sum that begins as 0.
std::uint32_t Crc32(std::uint32_t sum, std::span<const std::uint8_t> bytes);

}  // namespace vistrel::archive
