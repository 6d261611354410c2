// A small picture of a screen.
#pragma once

#include <optional>

#include "pictures/rgb_picture.h"
#include "thumbnails/cache.h"

namespace vistrel::thumbnails {

/// The picture of a screen in `width` x `height` pixels, at most kKeptWidth x kKeptHeight: the one
/// that `cache` keeps, or made of a larger one there, or else of the file, and then kept in this
/// size. Empty when the file cannot be read.
std::optional<pictures::RgbPicture> ThumbnailOf(const Source& source, Cache& cache, int width,
                                                int height);

}  // namespace vistrel::thumbnails
