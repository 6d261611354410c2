// Characters of the system's code page, which are one byte long or, in some code pages, two. The
// second byte of a pair may be the code of a backslash or of a letter and is neither.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vistrel::platform {

/// The number of bytes, 1 or 2, of the character that begins at `at`; 1 for a first byte whose
/// second is missing. `at` lies inside `text` and at a character's beginning.
std::size_t CharacterLength(std::string_view text, std::size_t at);

/// Whether a text comes before another in the system's order, which is that of its lists: without
/// regard to case, accents beside their letters.
bool ComesBefore(const std::string& text, const std::string& other);

/// A text in capital letters, those with accents too.
std::string InCapitals(std::string text);

/// Where the last backslash of a path stands; npos without one.
std::size_t LastBackslash(std::string_view path);
/// True when a path's last character is a backslash.
bool EndsInBackslash(std::string_view path);

}  // namespace vistrel::platform
