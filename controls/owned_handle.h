// The system's handles that free themselves.
#pragma once

#include <utility>

#include "platform/handles.h"

namespace vistrel::controls {

void FreeHandle(platform::MenuHandle menu);
void FreeHandle(platform::ImageListHandle images);
void FreeHandle(platform::FontHandle font);
void FreeHandle(platform::BrushHandle brush);

/// Holds a handle, or none, that is freed together with this object and when another takes its
/// place.
template <typename Handle>
class Owned {
 public:
    Owned(Handle handle = nullptr) : handle_(handle) {}
    ~Owned() {
        if (handle_) FreeHandle(handle_);
    }
    Owned(Owned&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    Owned& operator=(Owned&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }

    operator Handle() const { return handle_; }
    Handle get() const { return handle_; }

 private:
    Handle handle_;
};

using OwnedMenu = Owned<platform::MenuHandle>;
using OwnedImageList = Owned<platform::ImageListHandle>;
using OwnedFont = Owned<platform::FontHandle>;
using OwnedBrush = Owned<platform::BrushHandle>;

}  // namespace vistrel::controls
