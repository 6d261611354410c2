// A clock that ticks while it is enabled.
#pragma once

#include <functional>

#include "platform/handles.h"

namespace vistrel::controls {

class Timer {
 public:
    /// `interval` in milliseconds.
    explicit Timer(unsigned interval) : interval_(interval) {}
    ~Timer() { SetEnabled(false); }
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    void Attach(platform::WindowHandle window) { window_ = window; }
    bool Enabled() const { return enabled_; }
    /// Starting it anew begins a whole interval.
    void SetEnabled(bool enabled);
    /// Starts it, and its first tick comes as soon as what is being handled is done.
    void TickSoon();

    std::function<void()> Tick;

 private:
    unsigned interval_;
    platform::WindowHandle window_ = nullptr;
    bool enabled_ = false;
};

}  // namespace vistrel::controls
