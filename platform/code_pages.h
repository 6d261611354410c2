// Texts of this system's code pages as UTF-8, and back.
#pragma once

#include <string>

namespace vistrel::platform {

std::string AnsiToUtf8(const std::string& text);
/// From the code page of MS-DOS, in which old archives name their files.
std::string DosToUtf8(const std::string& text);
/// A character that the code page lacks, and what is no UTF-8, becomes "_" or the nearest that it
/// has.
std::string Utf8ToAnsi(const std::string& text);

}  // namespace vistrel::platform
