// The image library's boundary: operations that take ANSI paths, plain pointers and handles of
// global memory blocks. Who receives a handle frees it with FreeGlobal (GlobalFree on Windows).
// Conversions and previews cross it; the last operation draws, on Windows: preview/draw_rgb.h.
#pragma once

#include <cstdint>

#include "platform/global_memory.h"

namespace vistrel::pictures {

/// Initialises the library once at start with the code that comes with it.
void ImgDLLStringInitDLL(const char* code);

/// Each reads a file into a new memory block of 24-bit pixels (red, green, blue, rows from the top,
/// no padding) and gives its size in pixels. 0 when the file cannot be read; the sizes are then
/// left as they were.
platform::GlobalHandle ImgDLLReadRGBFromBMP(const char* path, std::int16_t* width,
                                            std::int16_t* height);
platform::GlobalHandle ImgDLLReadRGBFromGIF(const char* path, std::int16_t* width,
                                            std::int16_t* height);
platform::GlobalHandle ImgDLLReadRGBFromJPG(const char* path, std::int16_t* width,
                                            std::int16_t* height);

/// What ImgDLLReadRGBAtSize reads a picture for.
enum class ReadingFor { Keeping, Looking };

/// As wanted width and height: the picture's own.
inline constexpr int kOwnSize = -1;

/// Reads a file in the format that its name stands for, at the wanted size in one go: the quick way
/// for all who do not need the whole picture, and what the program itself uses. The block is that
/// of reading the file and ImgDLLResizeRGB: byte for byte for BMP and GIF; of a JPG only what the
/// size needs is decoded, which differs from that by as little as docs/picture-quality.md tells.
/// For Looking, a screen file is shrunk by averaging. `width` and `height` become the picture's own
/// size. 0 as for the others.
platform::GlobalHandle ImgDLLReadRGBAtSize(const char* path, int wantedWidth, int wantedHeight,
                                           ReadingFor purpose, std::int16_t* width,
                                           std::int16_t* height);

/// Scales 24-bit pixels to a new size; the handle of a new memory block, 0 on failure.
platform::GlobalHandle ImgDLLResizeRGB(const std::uint8_t* rgb, int width, int height, int newWidth,
                                       int newHeight);

/// Reduces 24-bit pixels to at most `colors` colours; see QuantizeRgb. 1 on success.
int ImgDLLQuantizeRGBTo8Bit(const std::uint8_t* rgb, std::uint8_t* indices, int width, int height,
                            int colors, std::uint8_t* palette);

/// Writes a colour-mapped bitmap; bitsPerPixel must be 8. 1 on success.
int ImgDLLSaveColormappedToBMP(const char* path, const std::uint8_t* indices, int width, int height,
                               int bitsPerPixel, int colors, const std::uint8_t* palette);

}  // namespace vistrel::pictures
