// A window from which files are dragged, as from a file manager.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace vistrel::test {

class FileDragSource {
 public:
    /// Shows a small window at a place of the screen; pressing the left button on it begins a real
    /// drag of these paths. `asFiles` false drags a plain text instead. Must be made by the thread
    /// that handles the messages.
    FileDragSource(POINT at, std::vector<std::string> paths, bool asFiles = true);
    ~FileDragSource();

    HWND window() const { return window_; }
    /// How the last drag ended: the effect of the drop, DROPEFFECT_NONE where it was refused; empty
    /// (~0) before.
    DWORD effect() const { return effect_; }
    /// Forgets how the last drag ended.
    void Forget() { effect_ = ~DWORD{0}; }
    void Begin();

 private:
    HWND window_;
    std::vector<std::string> paths_;
    bool asFiles_;
    volatile DWORD effect_ = ~DWORD{0};
};

}  // namespace vistrel::test
