#include "platform/file_time.h"

#include <windows.h>

#include "platform/fault.h"

namespace vistrel::platform {

std::uint32_t ModifiedAt(const std::string& path) {
    if (fault::ShouldFail()) return 0;
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return 0;
    FindClose(search);
    FILETIME local;
    WORD date = 0;
    WORD time = 0;
    if (!FileTimeToLocalFileTime(&found.ftLastWriteTime, &local) ||
        !FileTimeToDosDateTime(&local, &date, &time))
        return 0;
    return std::uint32_t{date} << 16 | time;
}

void SetModifiedAt(const std::string& path, std::uint32_t time) {
    if (fault::ShouldFail()) return;
    FILETIME local;
    FILETIME modified;
    if (!DosDateTimeToFileTime(HIWORD(time), LOWORD(time), &local) ||
        !LocalFileTimeToFileTime(&local, &modified))
        return;
    const HANDLE file =
        CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return;
    SetFileTime(file, nullptr, nullptr, &modified);
    CloseHandle(file);
}

std::string DayInWords(std::uint64_t modified) {
    const FILETIME time{static_cast<DWORD>(modified), static_cast<DWORD>(modified >> 32)};
    FILETIME local;
    SYSTEMTIME day;
    char words[80];
    if (modified == 0 || !FileTimeToLocalFileTime(&time, &local) ||
        !FileTimeToSystemTime(&local, &day) ||
        !GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &day, nullptr, words, sizeof words))
        return "";
    return words;
}

}  // namespace vistrel::platform
