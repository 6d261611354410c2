// A small picture of a screen file, made for lists and previews: fast, since it is drawn at each
// selection.
#pragma once

#include "pictures/picture_file.h"

namespace vistrel::screen {

/// Shrinks an uncompressed 8-bit bitmap to `width` x `height` pixels by averaging the area that
/// each of them covers. Empty when the file is of another kind, or smaller than that on either
/// axis: other readers and a better filter serve these.
std::optional<pictures::ScaledPicture> PreviewOfScreen(const pictures::PictureFile& file, int width,
                                                       int height);

}  // namespace vistrel::screen
