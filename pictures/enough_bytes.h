// Tells an honest file from a few bytes that claim a huge picture, before memory is asked for.
#pragma once

#include "pictures/rgb_picture.h"

namespace vistrel::pictures {

/// Pictures up to this size are decoded however little a file holds: a blank one may be a few
/// bytes long, and this much memory (12 MB) does no harm.
inline constexpr std::int64_t kDecodedAnyway = 4 * 1024 * 1024;

/// False when the pixels of a large picture cannot be in `bytes` bytes of compressed data, even if
/// each byte stood for `mostPixelsInAByte` pixels and only a tenth of the picture were there.
inline bool EnoughBytes(std::size_t bytes, std::int64_t pixels, std::int64_t mostPixelsInAByte) {
    return pixels <= kDecodedAnyway ||
           static_cast<std::int64_t>(bytes) >= pixels / mostPixelsInAByte / 10;
}

}  // namespace vistrel::pictures
