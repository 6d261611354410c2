// Little-endian numbers out of a file's bytes. Bytes beyond the end of the file count as 0, so a
// header that is cut short has zeros where it ends, and no caller has to look twice.
#pragma once

#include "pictures/rgb_picture.h"

namespace vistrel::pictures {

inline std::uint32_t Byte(FileBytes file, std::size_t offset) {
    return offset < file.size() ? file[offset] : 0;
}

inline std::uint32_t Word(FileBytes file, std::size_t offset) {
    return Byte(file, offset) | Byte(file, offset + 1) << 8;
}

inline std::uint32_t DoubleWord(FileBytes file, std::size_t offset) {
    return Word(file, offset) | Word(file, offset + 2) << 16;
}

}  // namespace vistrel::pictures
