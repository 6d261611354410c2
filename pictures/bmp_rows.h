// Uncompressed rows of a bitmap file as red, green, blue.
#pragma once

#include "pictures/bmp_header.h"

namespace vistrel {

/// Reads the rows of one uncompressed bitmap in any order. `file` must outlive it.
class BmpRows {
 public:
    BmpRows(FileBytes file, const BmpHeader& header);

    /// True when more than nine tenths of the pixels are not in the file: then nobody would
    /// recognise the picture, and a few bytes could ask for any amount of memory.
    bool HopelesslyShort() const;

    /// Writes row `y` (0 is the top one) to `rgb`, 3 bytes a pixel. Pixels that the file does not
    /// have any more are read as if their bytes were 0.
    void Read(int y, std::uint8_t* rgb);

 private:
    // One colour of a 16- or 32-bit pixel: full[(pixel & mask) >> shift] is its value up to 255.
    struct Channel {
        std::uint32_t mask = 0;
        int shift = 0;
        std::array<std::uint8_t, 256> full{};
    };

    static Channel MakeChannel(std::uint32_t mask);
    const std::uint8_t* Row(int y);
    void Unpack(const std::uint8_t* row, std::uint8_t* rgb) const;
    void UnpackIndices(const std::uint8_t* row, std::uint8_t* rgb) const;
    void UnpackChannels(const std::uint8_t* row, std::uint8_t* rgb) const;

    BmpHeader header_;
    FileBytes pixels_;
    std::array<Channel, 3> channels_;
    std::vector<std::uint8_t> cutRow_;  // the row in which the file ends, made up with zeros
};

}  // namespace vistrel
