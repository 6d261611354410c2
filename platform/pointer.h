// The mouse pointer of the whole application.
#pragma once

namespace vistrel::platform {

/// Shows the hourglass for as long as it lives; these may nest.
class BusyPointer {
 public:
    BusyPointer();
    ~BusyPointer();
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

    /// True while one lives: windows then answer WM_SETCURSOR with the hourglass.
    static bool Shown();
};

/// Puts the default pointer back, whatever BusyPointers live.
void ShowDefaultPointer();

}  // namespace vistrel::platform
