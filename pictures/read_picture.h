// Picture files by their names: whole, or at the size that is needed.
#pragma once

#include <optional>
#include <string>

#include "pictures/rgb_picture.h"

namespace vistrel::pictures {

/// Reads a picture file in the format that its name stands for. Empty when it cannot be read.
std::optional<RgbPicture> ReadPicture(const std::string& path);

/// Reads a picture file scaled to `width` x `height` pixels, without having all of it in memory.
/// Empty when it cannot be read or the size is out of range.
std::optional<ScaledPicture> ReadPictureScaled(const std::string& path, int width, int height);

/// As ReadPictureScaled, for a picture that is only looked at: a screen file is shrunk by
/// averaging, which takes a tenth of the time.
std::optional<ScaledPicture> ReadPicturePreview(const std::string& path, int width, int height);

/// True of a photograph that lies in its file on its side, upside down or mirrored, and says so.
bool IsToBeTurned(const std::string& path);

}  // namespace vistrel::pictures
