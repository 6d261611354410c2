// Why an operation failed.
#pragma once

namespace vistrel::platform {

/// The system's error number (GetLastError); 0 while nothing has failed.
struct Error {
    unsigned long code = 0;

    /// True when the folder was found but not the file in it.
    bool IsFileNotFound() const { return code == 2; }
};

}  // namespace vistrel::platform
