// The system is asked where it can be: Windows 95 lacks the call.
#include "platform/wide_registers.h"

#if defined(_WIN32) && !defined(_WIN64)

#include <windows.h>

namespace vistrel::platform {

bool KeepsWideRegisters() {
    constexpr DWORD kSse = 6;  // PF_XMMI_INSTRUCTIONS_AVAILABLE
    using Asking = BOOL(WINAPI*)(DWORD);
    const auto ask = reinterpret_cast<Asking>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleA("kernel32.dll"), "IsProcessorFeaturePresent")));
    return ask != nullptr && ask(kSse);
}

}  // namespace vistrel::platform

#else

namespace vistrel::platform {

bool KeepsWideRegisters() { return true; }

}  // namespace vistrel::platform

#endif
