// Little-endian numbers and the format's compressed integers, appended to a byte string.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vistrel::help {

/// "No such place" in every address field of the format.
constexpr std::uint32_t kNowhere = 0xFFFFFFFF;

void PutU8(std::string& bytes, unsigned value);
void PutU16(std::string& bytes, unsigned value);
void PutU32(std::string& bytes, std::uint32_t value);

/// Appends `text` and one zero byte.
void PutText(std::string& bytes, std::string_view text);

/// Appends `text` cut or zero-filled to exactly `width` bytes.
void PutFixed(std::string& bytes, std::string_view text, std::size_t width);

/// Appends 0..32767 in one or two bytes; bit 0 of the first byte tells the width.
void PutShort(std::string& bytes, unsigned value);

/// Appends -16384..16383 in one or two bytes.
void PutSignedShort(std::string& bytes, int value);

/// Appends 0..0x7FFFFFFF in two or four bytes.
void PutLong(std::string& bytes, std::uint32_t value);

/// Appends -0x40000000..0x3FFFFFFF in two or four bytes.
void PutSignedLong(std::string& bytes, std::int32_t value);

}  // namespace vistrel::help
