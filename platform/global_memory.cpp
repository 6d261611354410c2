// Movable memory blocks: the system's own on Windows, the C library's where there is no Windows.
#include "platform/global_memory.h"

#ifdef _WIN32

#include <windows.h>

#include "platform/fault.h"

namespace vistrel::platform {

GlobalHandle AllocateGlobal(std::size_t bytes) {
    if (fault::ShouldFail()) return nullptr;
    return GlobalAlloc(GMEM_MOVEABLE, bytes);
}

void* LockGlobal(GlobalHandle block) {
    if (block == nullptr || fault::ShouldFail()) return nullptr;
    return GlobalLock(block);
}

void UnlockGlobal(GlobalHandle block) {
    if (block != nullptr) GlobalUnlock(block);
}

void FreeGlobal(GlobalHandle block) {
    if (block != nullptr) GlobalFree(block);
}

}  // namespace vistrel::platform

#else

#include <cstdlib>

namespace vistrel::platform {

GlobalHandle AllocateGlobal(std::size_t bytes) { return std::malloc(bytes); }

// The C library's blocks never move: the handle is the address.
void* LockGlobal(GlobalHandle block) { return block; }

void UnlockGlobal(GlobalHandle) {}

void FreeGlobal(GlobalHandle block) { std::free(block); }

}  // namespace vistrel::platform

#endif
