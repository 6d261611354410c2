// Turns UTF-8 into Windows-1252, character by character.
#include "help/compiler/windows_1252.h"

#include <array>
#include <cstdint>
#include <cstdio>

namespace vistrel::help {
namespace {

constexpr std::uint32_t kMalformed = 0xFFFFFFFF;

// What the bytes 80h to 9Fh stand for; the rest equals Unicode. 0: not used.
constexpr std::array<std::uint16_t, 32> kUpperControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

// Takes one character off the front of `utf8`.
std::uint32_t TakeCharacter(std::string_view& utf8) {
    const auto first = static_cast<unsigned char>(utf8.front());
    utf8.remove_prefix(1);
    if (first < 0x80) return first;
    const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
    if (more == 0) return kMalformed;
    std::uint32_t character = first & (0x3Fu >> more);
    for (int i = 0; i < more; ++i) {
        if (utf8.empty() || (utf8.front() & 0xC0) != 0x80) return kMalformed;
        character = character << 6 | (utf8.front() & 0x3F);
        utf8.remove_prefix(1);
    }
    return character;
}

// The Windows-1252 byte of a character, 0 if there is none.
unsigned char ByteOf(std::uint32_t character) {
    if (character == '\t') return ' ';
    if ((character >= 0x20 && character < 0x7F) || (character >= 0xA0 && character <= 0xFF))
        return static_cast<unsigned char>(character);
    for (std::size_t i = 0; i < kUpperControls.size(); ++i)
        if (kUpperControls[i] != 0 && kUpperControls[i] == character)
            return static_cast<unsigned char>(0x80 + i);
    return 0;
}

}  // namespace

bool ToWindows1252(std::string_view utf8, std::string& text, std::string& problem) {
    text.clear();
    while (!utf8.empty()) {
        const std::uint32_t character = TakeCharacter(utf8);
        if (character == kMalformed) {
            problem = "the line is not UTF-8 text";
            return false;
        }
        const unsigned char byte = ByteOf(character);
        if (byte == 0) {
            char code[16];
            std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(character));
            problem = std::string("character ") + code + " is not in Windows-1252";
            return false;
        }
        text.push_back(static_cast<char>(byte));
    }
    return true;
}

}  // namespace vistrel::help
