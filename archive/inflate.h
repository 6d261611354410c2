// Unpacks what the method "deflate" has packed.
#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include "archive/fault.h"
#include "pictures/picture_file.h"

namespace vistrel::archive {

/// Takes the next bytes; false when it wants no more.
using Sink = std::function<bool(std::span<const std::uint8_t> bytes)>;

/// Unpacks the bytes of `file` from `begin` to before `end`, which must lie in it, and hands them
/// to `sink` in pieces. About 45 KB of memory are used, however much is unpacked; how much that may
/// be is for the sink to say.
ArchiveFault Inflate(const pictures::PictureFile& file, std::size_t begin, std::size_t end,
                     const Sink& sink);

}  // namespace vistrel::archive
