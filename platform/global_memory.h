// Movable memory blocks that are passed by handle. On Windows these are the system's own
// GlobalAlloc blocks; where pictures are built without Windows, the C library's.
#pragma once

#include <cstddef>

namespace vistrel::platform {

using GlobalHandle = void*;

/// A new block of `bytes` bytes; 0 when there is no memory.
GlobalHandle AllocateGlobal(std::size_t bytes);

/// The block's address until UnlockGlobal; null for a handle that names no block.
void* LockGlobal(GlobalHandle block);
void UnlockGlobal(GlobalHandle block);
void FreeGlobal(GlobalHandle block);

}  // namespace vistrel::platform
