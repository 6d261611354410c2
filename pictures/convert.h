// Turns any picture into a screen file.
#pragma once

#include <string>

#include "pictures/rgb_picture.h"

namespace vistrel::pictures {

enum class ConversionResult { Written, NotRead, NotReduced, NotWritten };

/// Makes a 320 x 400, 256-colour screen file of any BMP, GIF or JPG picture and tells how far it
/// came. Unless the result is Written, the target is as it was.
ConversionResult TryConvertToLogo(const std::string& sourcePath, const std::string& targetPath);

/// The same; the outcome is dropped.
void ConvertToLogo(const std::string& sourcePath, const std::string& targetPath);

}  // namespace vistrel::pictures
