#include "core/number_text.h"

#include <charconv>

namespace vistrel::core {

std::optional<std::int16_t> LeadingNumber(const std::string& text) {
    const char* first = text.data();
    const char* const last = first + text.size();
    while (first != last && *first == ' ') ++first;
    // from_chars takes a minus sign itself but no plus sign.
    if (last - first >= 2 && first[0] == '+' && first[1] != '-') ++first;
    std::int16_t number = 0;
    const auto [end, error] = std::from_chars(first, last, number);
    if (error == std::errc::result_out_of_range) return std::nullopt;
    return error == std::errc{} ? number : std::int16_t{0};
}

}  // namespace vistrel::core
