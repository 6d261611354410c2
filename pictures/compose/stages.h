// The stages from a picture file to a screen file, so that a window that shows each change at once
// runs only those behind it.
//
// clang-format off
//   stage          from -> to                                what it costs
//   ReadComposed   file -> Intermediate, once per picture    what a conversion's reading costs
//   Frame          Intermediate -> Framed                    little: while framing or turn is dragged
//   FrameFinely    the same, by the filter of conversions    some times as much: when the hand rests
//   ReadFramed     file -> Framed, as conversions read       much: the real thing, for the screen file
//   Adjust         Framed -> 24-bit screen: light, text      little
//   Reduce         24-bit screen -> 256 colours              half a conversion
//   Write          256 colours -> file                       little
// clang-format on
//
// A window keeps the last result of each stage. While a track bar of the light is dragged only
// Adjust is run, on the Framed that it has.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "pictures/compose/composition.h"
#include "pictures/compose/geometry.h"
#include "pictures/convert.h"
#include "pictures/screen/indexed_screen.h"

namespace vistrel::compose {

/// A picture as it lies in its file (upright, not turned), reduced to some half a million pixels,
/// so that any framing of it can be made quickly. Zoomed to more than 2 it is less sharp than the
/// file.
struct Intermediate {
    pictures::PictureSize file;                   ///< the picture's size in the file
    std::uint64_t checksum = 0;                   ///< as ChecksumOfPicture tells it
    std::optional<screen::IndexedScreen> moving;  ///< see ReadMovingScreen in movement.h
    /// One byte longer than it would have to be, so that four can be read at every pixel.
    pictures::RgbPicture reduced;
};

/// A picture on the screen before light and text.
struct Framed {
    pictures::RgbPicture screen;  ///< 320 x 400
    ScreenRectangle picture;      ///< what the light works on: a plain border keeps its colour
};

/// The most pixels of an Intermediate.
inline constexpr int kMostIntermediatePixels = 640 * 800;

/// The size of the picture in a file, upright. Empty when it cannot be read.
std::optional<pictures::PictureSize> SizeOfPicture(const std::string& path);

/// Another number when anything in the file is another. Empty as for SizeOfPicture.
std::optional<std::uint64_t> ChecksumOfPicture(const std::string& path);

/// Empty when the picture cannot be read or memory runs out.
std::optional<Intermediate> ReadComposed(const std::string& path);

/// Each pixel of the screen from at most four of the intermediate, without a multiplication.
Framed Frame(const Intermediate& intermediate, const Composition& composition);

/// By the filter that conversions use.
Framed FrameFinely(const Intermediate& intermediate, const Composition& composition);

/// Reads no more of the file than the framed part of it needs. Stretched and not turned, the screen
/// is that of a conversion, byte for byte. Empty as for ReadComposed.
std::optional<Framed> ReadFramed(const std::string& path, const Composition& composition);

/// Light and text.
pictures::RgbPicture Adjust(Framed framed, const Composition& composition);

/// All colours that a screen can have.
inline constexpr int kColors = 256;

/// The 256 colours that will be on the disk, or fewer. Empty when memory runs out.
std::optional<screen::IndexedScreen> Reduce(const pictures::RgbPicture& screen,
                                            reduce::Dither dither, int colors = kColors);

/// Writes a screen file; false when that fails, and `path` is then as it was.
bool Write(const std::string& path, const screen::IndexedScreen& screen);

/// All of it: a screen file of any picture, by ReadFramed. Unless the result is Written, the target
/// is as it was. An untouched Composition gives what TryConvertToLogo gives; only that a screen
/// whose colours move goes on moving as far as it can (see movement.h).
pictures::ConversionResult MakeScreen(const std::string& sourcePath, const std::string& targetPath,
                                      const Composition& composition);

}  // namespace vistrel::compose
