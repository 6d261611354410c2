#include "platform/folder_dialog.h"

#include <objbase.h>
#include <shlobj.h>
#include <windows.h>

#include "platform/characters.h"
#include "platform/fault.h"

namespace vistrel::platform {

namespace {

// The browser knows a folder by its name without a backslash at the end, a drive by its root.
std::string NameForBrowser(const std::string& folder) {
    if (folder.size() > 3 && EndsInBackslash(folder)) return folder.substr(0, folder.size() - 1);
    return folder;
}

/// Selects the start folder, whose name is `start`, once the browser is there.
int CALLBACK SelectStart(HWND browser, UINT message, LPARAM, LPARAM start) {
    if (message == BFFM_INITIALIZED && start) {
        SendMessageA(browser, BFFM_SETSELECTIONA, TRUE, start);
    }
    return 0;
}

}  // namespace

std::string PickFolder(WindowHandle owner, const std::string& prompt, const std::string& start) {
    if (fault::ShouldFail()) return {};
    const std::string startFolder = NameForBrowser(start);
    char displayName[MAX_PATH] = {};
    BROWSEINFOA request = {};
    request.hwndOwner = owner;
    request.pszDisplayName = displayName;
    request.lpszTitle = prompt.c_str();
    request.ulFlags = BIF_RETURNONLYFSDIRS;
    request.lpfn = SelectStart;
    request.lParam = startFolder.empty() ? 0 : reinterpret_cast<LPARAM>(startFolder.c_str());
    const LPITEMIDLIST picked = SHBrowseForFolderA(&request);
    if (!picked) return {};
    char path[MAX_PATH] = {};
    const bool isFolder = SHGetPathFromIDListA(picked, path) != 0;
    CoTaskMemFree(picked);
    return isFolder ? path : "";
}

}  // namespace vistrel::platform
