// Turns any picture into a screen file, and reads a picture at the size that somebody needs.
#pragma once

#include <optional>
#include <string>

#include "pictures/rgb_picture.h"

namespace vistrel {

enum class PictureFormat { Bmp, Gif, Jpg };

/// The format that the last four characters of a name stand for, in any case: ".GIF" and ".JPG";
/// anything else is taken as a bitmap.
PictureFormat FormatOfName(const std::string& path);

/// Reads a picture file in the format that its name stands for. Empty when it cannot be read.
std::optional<RgbPicture> ReadPicture(const std::string& path);

/// Reads a picture file scaled to `width` x `height` pixels: the fast way for whoever does not
/// need the picture itself. Empty when it cannot be read.
std::optional<ScaledPicture> ReadPictureScaled(const std::string& path, int width, int height);

/// Makes a 320 x 400, 256-colour screen file of any BMP, GIF or JPG picture. Nothing is written
/// when the picture cannot be read.
void ConvertToLogo(const std::string& sourcePath, const std::string& targetPath);

}  // namespace vistrel
