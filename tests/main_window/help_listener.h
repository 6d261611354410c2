// Stands for the system's help viewer and notes what it is asked for.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace vistrel::test {

class HelpListener {
 public:
    struct Request {
        unsigned command = 0;
        unsigned long data = 0;
        std::string file;
    };

    /// Must be made by the thread that handles the messages, before the real viewer was started.
    HelpListener();
    ~HelpListener();

    const std::optional<Request>& asked() const;
    /// What was asked for last, which is forgotten with that.
    static Request Take();

 private:
    HWND window_;
};

}  // namespace vistrel::test
