// Little-endian numbers out of a file's bytes. Bytes beyond the end of the file count as 0, so a
// header that is cut short has zeros where it ends, and no caller has to look twice. A file is what
// has a size and bytes in square brackets.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vistrel::pictures {

template <class File>
std::uint32_t Byte(File&& file, std::size_t offset) {
    return offset < file.size() ? file[offset] : 0;
}

template <class File>
std::uint32_t Word(File&& file, std::size_t offset) {
    return Byte(file, offset) | Byte(file, offset + 1) << 8;
}

template <class File>
std::uint32_t DoubleWord(File&& file, std::size_t offset) {
    return Word(file, offset) | Word(file, offset + 2) << 16;
}

}  // namespace vistrel::pictures
