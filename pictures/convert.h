// Turns any picture into a screen file, and reads a picture at the size that somebody needs.
#pragma once

#include <optional>
#include <string>

#include "pictures/rgb_picture.h"

namespace vistrel::pictures {

enum class PictureFormat { Bmp, Gif, Jpg };

/// The format that the last four characters of a name stand for, in any case: ".GIF" and ".JPG";
/// anything else is taken as a bitmap.
PictureFormat FormatOfName(const std::string& path);

/// Reads a picture file in the format that its name stands for. Empty when it cannot be read.
std::optional<RgbPicture> ReadPicture(const std::string& path);

/// True of a photograph that lies in its file on its side, upside down or mirrored, and says so.
bool IsToBeTurned(const std::string& path);

/// Reads a picture file scaled to `width` x `height` pixels: the fast way for whoever does not
/// need the picture itself. Empty when it cannot be read or the size is out of range.
std::optional<ScaledPicture> ReadPictureScaled(const std::string& path, int width, int height);

/// The size of the picture that a file's bytes hold, upright. Empty when it cannot be read.
std::optional<PictureSize> SizeOfPicture(PictureFormat format, FileBytes file);

/// A part of that picture, which must lie within it, scaled. Of the file only what it needs is
/// read. The whole picture comes out as ReadPictureScaled reads it.
std::optional<RgbPicture> ReadPartScaled(PictureFormat format, FileBytes file,
                                         const PictureArea& area, int width, int height);

/// As ReadPictureScaled, for a picture that is only looked at: a screen file is shrunk by
/// averaging, which takes a tenth of the time.
std::optional<ScaledPicture> ReadPicturePreview(const std::string& path, int width, int height);

enum class ConversionResult { Written, NotRead, NotReduced, NotWritten };

/// Makes a 320 x 400, 256-colour screen file of any BMP, GIF or JPG picture and tells how far it
/// came. Unless the result is Written, the target is as it was.
ConversionResult TryConvertToLogo(const std::string& sourcePath, const std::string& targetPath);

/// The same, telling nothing.
void ConvertToLogo(const std::string& sourcePath, const std::string& targetPath);

}  // namespace vistrel::pictures
