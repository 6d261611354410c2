// How the sources of this folder pass on why a call failed.
#pragma once

#include "platform/error.h"

namespace vistrel::platform {

/// What an operation that a test makes fail reports: "a device is not functioning".
inline constexpr unsigned long kInjectedError = 31;

/// Stores `code` if `error` is given; returns false, as the failing operation does.
bool Failed(Error* error, unsigned long code);

/// Turns a system call's own success into ours, with the system's reason if it failed.
bool Report(int succeeded, Error* error);

}  // namespace vistrel::platform
