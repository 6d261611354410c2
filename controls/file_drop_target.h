// Lets files and folders be dropped on a window.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/handles.h"

namespace vistrel::controls {

class FileDropTarget {
 public:
    /// `dropped` gets the full paths of each drop that offers the file-list format; others are
    /// refused. The thread has OLE from then until the target's end.
    FileDropTarget(platform::WindowHandle window,
                   std::function<void(const std::vector<std::string>& paths)> dropped);
    ~FileDropTarget();
    FileDropTarget(const FileDropTarget&) = delete;
    FileDropTarget& operator=(const FileDropTarget&) = delete;

 private:
    class Receiver;

    platform::WindowHandle window_;
    bool hasOle_;
    Receiver* receiver_;
};

}  // namespace vistrel::controls
