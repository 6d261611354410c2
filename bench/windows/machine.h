// What the benchmarks put on their machine.
#pragma once

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <climits>
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

inline const std::string kLogos = "C:\\logos\\";

/// Makes a logo folder with so many empty sets, "Set 0" and so on, each name with this ending, and
/// chooses it.
inline void MakeLibrary(int sets, const std::string& ending = "") {
    CreateDirectoryA("C:\\logos", nullptr);
    for (int i = 0; i < sets; ++i)
        CreateDirectoryA((kLogos + "Set " + std::to_string(i) + ending).c_str(), nullptr);
    Store("LogoPath", kLogos);
}

inline void HandleMessages() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&message);
}

/// Adds a row to a bare list view.
inline void AddRow(HWND list, const char* text) {
    LVITEMA item{};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.iItem = INT_MAX;
    item.pszText = const_cast<char*>(text);
    SendMessageA(list, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
}

}  // namespace vistrel::bench
