// Why an operation failed.
#pragma once

namespace vistrel {

/// The system's error number (GetLastError); 0 while nothing has failed.
struct Error {
    unsigned long code = 0;
};

}  // namespace vistrel
