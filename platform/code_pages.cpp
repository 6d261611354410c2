// By way of UTF-16. Windows 95 does not count UTF-8 among its code pages.
#include "platform/code_pages.h"

#include <windows.h>

#include <cstdint>
#include <vector>

namespace vistrel::platform {

namespace {

/// In no string: some linkers take a library's object twice that holds code of wide strings.
using WideText = std::vector<wchar_t>;

constexpr char32_t kFirstBeyond16Bits = 0x10000;
constexpr char32_t kNoCharacter = 0xFFFD;

WideText Wide(const std::string& text, UINT codePage) {
    const int length = static_cast<int>(text.size());
    WideText wide(text.size());
    if (length > 0)
        wide.resize(MultiByteToWideChar(codePage, 0, text.data(), length, wide.data(), length));
    return wide;
}

/// The character at `at`, which moves behind it.
char32_t NextOfUtf16(const WideText& text, std::size_t& at) {
    const char32_t first = text[at++];
    if ((first & 0xFC00) != 0xD800 || at == text.size() || (text[at] & 0xFC00) != 0xDC00)
        return first;
    return kFirstBeyond16Bits + ((first & 0x3FF) << 10) + (text[at++] & 0x3FF);
}

void AppendUtf8(std::string& text, char32_t character) {
    if (character < 0x80) {
        text += static_cast<char>(character);
        return;
    }
    // The first byte tells how many follow, each with six bits.
    const int following = character < 0x800 ? 1 : character < kFirstBeyond16Bits ? 2 : 3;
    text += static_cast<char>(((0xF0 << (3 - following)) & 0xFF) | (character >> (6 * following)));
    for (int i = following - 1; i >= 0; --i)
        text += static_cast<char>(0x80 | ((character >> (6 * i)) & 0x3F));
}

std::string Utf8(const WideText& wide) {
    std::string text;
    for (std::size_t at = 0; at < wide.size();) AppendUtf8(text, NextOfUtf16(wide, at));
    return text;
}

/// The character at `at`, which moves behind it; kNoCharacter for bytes that are none.
char32_t NextOfUtf8(const std::string& text, std::size_t& at) {
    const auto first = static_cast<std::uint8_t>(text[at++]);
    if (first < 0x80) return first;
    const int following = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
    if (following == 0 || first >= 0xF8) return kNoCharacter;
    char32_t character = first & (0x3F >> following);
    for (int i = 0; i < following; ++i) {
        if (at == text.size() || (text[at] & 0xC0) != 0x80) return kNoCharacter;
        character = character << 6 | (text[at++] & 0x3F);
    }
    return character;
}

WideText WideOfUtf8(const std::string& text) {
    WideText wide;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = NextOfUtf8(text, at);
        if (character < kFirstBeyond16Bits) {
            wide.push_back(static_cast<wchar_t>(character));
            continue;
        }
        const char32_t rest = character - kFirstBeyond16Bits;
        wide.push_back(static_cast<wchar_t>(0xD800 | (rest >> 10 & 0x3FF)));
        wide.push_back(static_cast<wchar_t>(0xDC00 | (rest & 0x3FF)));
    }
    return wide;
}

}  // namespace

std::string AnsiToUtf8(const std::string& text) { return Utf8(Wide(text, CP_ACP)); }

std::string DosToUtf8(const std::string& text) { return Utf8(Wide(text, CP_OEMCP)); }

std::string Utf8ToAnsi(const std::string& text) {
    const WideText wide = WideOfUtf8(text);
    const int length = static_cast<int>(wide.size());
    std::string ansi(2 * wide.size(), '\0');
    if (length > 0)
        ansi.resize(WideCharToMultiByte(CP_ACP, 0, wide.data(), length, ansi.data(), 2 * length,
                                        "_", nullptr));
    return ansi;
}

}  // namespace vistrel::platform
