#include "platform/open_dialog.h"

#include <windows.h>

#include <cstddef>

#include "platform/fault.h"

namespace vistrel::platform {

namespace {

OPENFILENAMEA RecordOf(OpenDialogRequest& request) {
    OPENFILENAMEA record = {};
    // 76 bytes in a 32-bit program: later fields are unknown to Windows 95.
    record.lStructSize = offsetof(OPENFILENAMEA, lpTemplateName) + sizeof record.lpTemplateName;
    record.hwndOwner = request.owner;
    record.hInstance = GetModuleHandleA(nullptr);
    record.lpstrFilter = request.filter.c_str();
    record.lpstrFile = request.file.data();
    record.nMaxFile = static_cast<DWORD>(request.file.size() + 1);
    record.lpstrFileTitle = request.fileTitle.data();
    record.nMaxFileTitle = static_cast<DWORD>(request.fileTitle.size() + 1);
    record.lpstrInitialDir = request.initialFolder.c_str();
    record.lpstrTitle = request.title.c_str();
    return record;
}

}  // namespace

bool RunOpenDialog(OpenDialogRequest& request) {
    if (fault::ShouldFail()) return false;
    OPENFILENAMEA record = RecordOf(request);
    record.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY;
    return GetOpenFileNameA(&record) != 0;
}

bool RunSaveDialog(OpenDialogRequest& request, const std::string& ending) {
    if (fault::ShouldFail()) return false;
    OPENFILENAMEA record = RecordOf(request);
    record.lpstrDefExt = ending.c_str();
    record.Flags =
        OFN_PATHMUSTEXIST | OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_NOREADONLYRETURN;
    return GetSaveFileNameA(&record) != 0;
}

}  // namespace vistrel::platform
