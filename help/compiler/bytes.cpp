// Little-endian numbers and the format's compressed integers.
#include "help/compiler/bytes.h"

namespace vistrel::help {

void PutU8(std::string& bytes, unsigned value) { bytes.push_back(static_cast<char>(value & 0xFF)); }

void PutU16(std::string& bytes, unsigned value) {
    PutU8(bytes, value);
    PutU8(bytes, value >> 8);
}

void PutU32(std::string& bytes, std::uint32_t value) {
    PutU16(bytes, value & 0xFFFF);
    PutU16(bytes, value >> 16);
}

void PutText(std::string& bytes, std::string_view text) {
    bytes.append(text);
    PutU8(bytes, 0);
}

void PutFixed(std::string& bytes, std::string_view text, std::size_t width) {
    const std::string_view kept = text.substr(0, width);
    bytes.append(kept);
    bytes.append(width - kept.size(), '\0');
}

void PutShort(std::string& bytes, unsigned value) {
    if (value < 0x80)
        PutU8(bytes, value * 2);
    else
        PutU16(bytes, value * 2 + 1);
}

void PutSignedShort(std::string& bytes, int value) {
    if (value >= -64 && value < 64)
        PutU8(bytes, static_cast<unsigned>(value + 64) * 2);
    else
        PutU16(bytes, static_cast<unsigned>(value + 16384) * 2 + 1);
}

void PutLong(std::string& bytes, std::uint32_t value) {
    if (value < 0x8000)
        PutU16(bytes, value * 2);
    else
        PutU32(bytes, value * 2 + 1);
}

void PutSignedLong(std::string& bytes, std::int32_t value) {
    if (value >= -16384 && value < 16384)
        PutU16(bytes, static_cast<unsigned>(value + 16384) * 2);
    else
        PutU32(bytes, (static_cast<std::uint32_t>(value) + 0x40000000u) * 2 + 1);
}

}  // namespace vistrel::help
