#include "platform/named_mutex.h"

#include <windows.h>

namespace vistrel::platform {

NamedMutex::NamedMutex(const std::string& name)
    : handle_(CreateMutexA(nullptr, FALSE, name.c_str())) {}

NamedMutex::~NamedMutex() {
    if (taken_) ReleaseMutex(handle_);
    if (handle_) CloseHandle(handle_);
}

bool NamedMutex::TakeWithin(unsigned long milliseconds) {
    if (!handle_) return true;
    // One that its program left behind without letting it go is free as well.
    taken_ = WaitForSingleObject(handle_, milliseconds) != WAIT_TIMEOUT;
    return taken_;
}

}  // namespace vistrel::platform
