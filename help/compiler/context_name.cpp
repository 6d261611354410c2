// Topic names and their hash.
#include "help/compiler/context_name.h"

namespace vistrel::help {
namespace {

// The value of a character in the hash, 0 if it may not stand in a name.
std::uint32_t ValueOf(char c) {
    if (c >= '1' && c <= '9') return static_cast<std::uint32_t>(c - '0');
    if (c == '0') return 10;
    if (c == '.') return 12;
    if (c == '_') return 13;
    if (c >= 'a' && c <= 'z') return static_cast<std::uint32_t>(17 + c - 'a');
    if (c >= 'A' && c <= 'Z') return static_cast<std::uint32_t>(17 + c - 'A');
    return 0;
}

}  // namespace

bool IsContextName(std::string_view name) {
    for (char c : name)
        if (ValueOf(c) == 0) return false;
    return !name.empty();
}

std::uint32_t ContextHash(std::string_view name) {
    std::uint32_t hash = 0;
    for (char c : name) hash = hash * 43 + ValueOf(c);
    return hash;
}

}  // namespace vistrel::help
