// What the benchmarks put on their machine.
#pragma once

#include <windows.h>

#include <string>

namespace vistrel::bench {

/// Stores one of the program's settings.
inline void Store(const char* name, const std::string& text) {
    HKEY key = nullptr;
    RegCreateKeyA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Tarnwick\\Vistrel", &key);
    RegSetValueExA(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                   static_cast<DWORD>(text.size() + 1));
    RegCloseKey(key);
}

}  // namespace vistrel::bench
