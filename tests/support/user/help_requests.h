// A help viewer for tests: it shows nothing and notes what it is asked for, by whatever program.
#pragma once

#include <windows.h>

#include <ostream>
#include <string>

namespace vistrel::user {

/// What a viewer is asked to show.
struct HelpRequest {
    unsigned command = 0;  ///< 0 when nothing was asked for
    unsigned long data = 0;
    std::string file;

    bool operator==(const HelpRequest&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const HelpRequest& request) {
        return out << "command " << request.command << " with " << request.data << " of "
                   << request.file;
    }
};

/// While it lives the system takes it for the running help viewer.
class HelpRequests {
 public:
    HelpRequests();
    ~HelpRequests();
    HelpRequests(const HelpRequests&) = delete;
    HelpRequests& operator=(const HelpRequests&) = delete;

    /// Waits until something has been asked for since the last call, and returns it; nothing
    /// (command 0) when that does not come.
    HelpRequest Next();
    /// Whether nothing has been asked for since the last call.
    bool None();

 private:
    static DWORD WINAPI Run(void* self);
    static LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM wide, LPARAM data);
    HelpRequest Take();

    CRITICAL_SECTION lock_;
    HelpRequest request_;
    HWND window_ = nullptr;
    HANDLE ready_;
    HANDLE thread_;
};

}  // namespace vistrel::user
