// The histogram of a picture: its colours gathered into small cells, with exact means.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "pictures/reduce/space.h"

namespace vistrel::reduce {

/// The pixels whose colours begin with the same bits.
struct Cell {
    std::uint32_t count = 0;
    std::uint32_t red = 0;  ///< sum over the pixels; green and blue likewise
    std::uint32_t green = 0;
    std::uint32_t blue = 0;
    ColorPoint mean;          ///< see SetMeans
    std::uint16_t color = 0;  ///< the palette entry that stands for the cell
};

struct Histogram {
    std::vector<Cell> cells;            ///< in the order in which the picture shows them first
    std::vector<std::uint16_t> cellOf;  ///< for each pixel the number of its cell
    int bits = 0;                       ///< of each channel that pixels of a cell share
};

/// Gathers `pixels` pixels (red, green, blue). The cells are as fine as keeps their number
/// manageable: 6 bits a channel for most pictures, 8 where there are few colours.
Histogram MakeHistogram(const std::uint8_t* rgb, std::size_t pixels);

/// Gives every cell its mean in `space`.
void SetMeans(Histogram& histogram, const WorkingSpace& space);

/// The distinct colours in the order of their first pixels, or nothing when there are more than
/// `most` (up to 256). `indices` then holds each pixel's number.
std::vector<Rgb> FewColors(const std::uint8_t* rgb, std::size_t pixels, std::size_t most,
                           std::uint8_t* indices);

}  // namespace vistrel::reduce
