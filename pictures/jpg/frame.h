// What the markers of a JPEG file say: the frame, its components and each scan.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "pictures/jpg/entropy/huffman.h"

namespace vistrel::jpg {

/// A quantisation table: what each coefficient is multiplied by to dequantize it, in the file's
/// (zigzag) order.
using QuantTable = std::array<std::uint16_t, kBlockSize>;

/// One component (luma, a colour difference, an ink) of a frame.
struct JpgComponent {
    int id = 0;
    int across = 1;  ///< sampling factors, 1 to 4
    int down = 1;
    int quantIndex = 0;
    int width = 0;  ///< samples within the picture
    int height = 0;
    int blocksAcross = 0;  ///< blocks that hold them
    int blocksDown = 0;
    int paddedAcross = 0;  ///< blocks with those that fill up the interleaved MCUs
    int paddedDown = 0;
    bool hasQuant = false;  ///< set by the component's first scan
    QuantTable quant = {};
};

/// The frame: the picture's size and components.
struct JpgFrame {
    bool progressive = false;
    int width = 0;
    int height = 0;
    int maxAcross = 1;  ///< largest sampling factors
    int maxDown = 1;
    int mcusAcross = 0;  ///< interleaved ones: parts of the picture with all components
    int mcusDown = 0;
    std::vector<JpgComponent> components;  ///< 1, 3 or 4
};

/// A component's part in a scan.
struct JpgScanPart {
    int component = 0;  ///< index in JpgFrame::components
    int dcTable = 0;    ///< 0 to 3
    int acTable = 0;
};

/// The header of one scan.
struct JpgScan {
    std::vector<JpgScanPart> parts;  ///< 1 to 4
    int first = 0;                   ///< band of coefficients, 0..63 in a sequential file
    int last = 63;
    int high = 0;               ///< bit position of the scan before, 0 in a first scan
    int low = 0;                ///< bit position of this scan
    std::size_t dataStart = 0;  ///< where the coded data begin in the file

    bool IsDc() const { return first == 0; }
    bool IsRefinement() const { return high != 0; }
};

/// How the components make a colour.
enum class JpgColor { Grey, Ycc, Rgb, Cmyk, Ycck };

/// The tables that markers define between scans.
struct JpgTables {
    std::array<QuantTable, 4> quant = {};
    std::array<bool, 4> hasQuant = {};
    std::array<HuffmanTable, 4> dc;
    std::array<HuffmanTable, 4> ac;
    int restartInterval = 0;  ///< MCUs between restart markers, 0 for none
};

}  // namespace vistrel::jpg
