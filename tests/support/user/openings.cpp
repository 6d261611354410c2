// What the shell opens, as the program that it starts for it sees that.
#include "tests/support/user/openings.h"

#include <windows.h>

#include <cstdlib>
#include <sstream>

#include "tests/support/user/poll.h"

namespace vistrel::user {

namespace {

constexpr char kRecord[] = "C:\\opening.txt";

void SetDefaultValue(const std::string& key, const std::string& name, const std::string& value) {
    HKEY open = nullptr;
    RegCreateKeyExA(HKEY_CLASSES_ROOT, key.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &open,
                    nullptr);
    RegSetValueExA(open, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                   static_cast<DWORD>(value.size() + 1));
    RegCloseKey(open);
}

/// The lines of the record; none while there is no whole one.
std::string Record() {
    char text[1024] = "";
    const HANDLE file = CreateFileA(kRecord, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    DWORD read = 0;
    ReadFile(file, text, sizeof text - 1, &read, nullptr);
    CloseHandle(file);
    return text;
}

std::string WithBlanks(std::string address) {
    for (std::size_t at; (at = address.find("%20")) != std::string::npos;)
        address.replace(at, 3, " ");
    return address;
}

}  // namespace

void RecordOpenings(const std::string& protocol) {
    SetDefaultValue(protocol, "URL Protocol", "");
    SetDefaultValue(protocol + "\\shell\\open\\command", "", "C:\\test\\record_opening.exe %1");
    DeleteFileA(kRecord);
}

Opening NextOpening() {
    std::string record;
    if (!WaitUntil([&] { return !(record = Record()).empty(); })) return {};
    DeleteFileA(kRecord);
    std::istringstream lines(record);
    Opening opening;
    std::string show;
    std::getline(lines, opening.address);
    std::getline(lines, opening.folder);
    std::getline(lines, show);
    opening.address = WithBlanks(opening.address);
    opening.show = std::atoi(show.c_str());
    return opening;
}

}  // namespace vistrel::user
