#include "platform/characters.h"

#include <windows.h>

namespace vistrel::platform {

std::size_t CharacterLength(std::string_view text, std::size_t at) {
    const bool pair = at + 1 < text.size() && IsDBCSLeadByte(static_cast<BYTE>(text[at]));
    return pair ? 2 : 1;
}

bool ComesBefore(const std::string& text, const std::string& other) {
    return lstrcmpiA(text.c_str(), other.c_str()) < 0;
}

std::string InCapitals(std::string text) {
    CharUpperBuffA(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

std::size_t LastBackslash(std::string_view path) {
    std::size_t last = std::string_view::npos;
    for (std::size_t at = 0; at < path.size(); at += CharacterLength(path, at)) {
        if (path[at] == '\\') last = at;
    }
    return last;
}

bool EndsInBackslash(std::string_view path) {
    return !path.empty() && LastBackslash(path) == path.size() - 1;
}

}  // namespace vistrel::platform
