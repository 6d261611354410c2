#include "platform/system_error.h"

#include <windows.h>

namespace vistrel::platform {

bool Failed(Error* error, unsigned long code) {
    if (error) error->code = code;
    return false;
}

bool Report(int succeeded, Error* error) {
    return succeeded ? true : Failed(error, GetLastError());
}

}  // namespace vistrel::platform
