#include "platform/characters.h"

#include <windows.h>

namespace vistrel {

std::size_t CharacterLength(std::string_view text, std::size_t at) {
    const bool pair = at + 1 < text.size() && IsDBCSLeadByte(static_cast<BYTE>(text[at]));
    return pair ? 2 : 1;
}

}  // namespace vistrel
