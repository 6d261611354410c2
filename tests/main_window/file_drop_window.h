// A window on which files are dropped, as on a folder of the file manager.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace vistrel::test {

class FileDropWindow {
 public:
    /// Shows a small window at a place of the screen; what is dropped on it is copied into
    /// `folder`. Must be made by the thread that handles the messages, with OLE.
    FileDropWindow(POINT at, std::string folder);
    ~FileDropWindow();

    HWND window() const { return window_; }
    /// How many drops came.
    int drops() const { return drops_; }
    /// The paths of the last one.
    const std::vector<std::string>& paths() const { return paths_; }
    /// What the source allowed it: DROPEFFECT_COPY and others.
    DWORD allowed() const { return allowed_; }

 private:
    class Target;

    HWND window_;
    std::string folder_;
    Target* target_;
    std::vector<std::string> paths_;
    DWORD allowed_ = 0;
    volatile int drops_ = 0;
};

}  // namespace vistrel::test
