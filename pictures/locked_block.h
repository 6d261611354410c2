// A picture on this side of the image library's boundary.
#pragma once

#include <cstdint>

#include "platform/global_memory.h"

namespace vistrel::pictures {

/// The memory block of a picture: locked as long as this lives, and freed with it.
class LockedBlock {
 public:
    explicit LockedBlock(platform::GlobalHandle block)
        : block_(block), pixels_(static_cast<std::uint8_t*>(platform::LockGlobal(block))) {}
    ~LockedBlock() {
        if (pixels_ != nullptr) platform::UnlockGlobal(block_);
        platform::FreeGlobal(block_);
    }
    LockedBlock(const LockedBlock&) = delete;
    LockedBlock& operator=(const LockedBlock&) = delete;

    /// Null when there is no block, or none that can be locked.
    const std::uint8_t* pixels() const { return pixels_; }

 private:
    platform::GlobalHandle block_;
    std::uint8_t* pixels_;
};

}  // namespace vistrel::pictures
