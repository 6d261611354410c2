// Stands for a browser or a mail program: writes the address that it is started with, its folder
// and how its window is to be shown to a file, a line each.
#include <windows.h>

#include <string>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR arguments, int) {
    char folder[MAX_PATH] = "";
    GetCurrentDirectoryA(sizeof folder, folder);
    STARTUPINFOA startup = {};
    GetStartupInfoA(&startup);
    const std::string record =
        std::string(arguments) + "\n" + folder + "\n" + std::to_string(startup.wShowWindow) + "\n";
    // Under another name first, so that whoever waits for the file finds it whole.
    const HANDLE file =
        CreateFileA("C:\\opening.new", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, record.data(), static_cast<DWORD>(record.size()), &written, nullptr);
    CloseHandle(file);
    MoveFileA("C:\\opening.new", "C:\\opening.txt");
    return 0;
}
