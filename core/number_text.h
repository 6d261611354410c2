// Numbers that are kept as text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vistrel::core {

/// The whole number that a text begins with, after blanks and a sign; what follows it does not
/// count. 0 when it begins with none; empty when the number does not fit into 16 bits.
std::optional<std::int16_t> LeadingNumber(const std::string& text);

}  // namespace vistrel::core
