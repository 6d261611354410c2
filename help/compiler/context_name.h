// Topic names and the hash under which the help file knows them.
#pragma once

#include <cstdint>
#include <string_view>

namespace vistrel::help {

/// Whether a topic may bear the name: letters, digits, '.' and '_' only, at least one.
bool IsContextName(std::string_view name);

/// The hash of a valid name; upper and lower case give the same. Different names can collide.
std::uint32_t ContextHash(std::string_view name);

}  // namespace vistrel::help
