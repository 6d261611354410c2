// Stands for a picture program: writes the command line by which it was started to a file.
#include <windows.h>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    const char* line = GetCommandLineA();
    // Under another name first, so that whoever waits for the file finds it whole.
    const HANDLE file =
        CreateFileA("C:\\arguments.new", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, line, static_cast<DWORD>(lstrlenA(line)), &written, nullptr);
    CloseHandle(file);
    MoveFileA("C:\\arguments.new", "C:\\arguments.txt");
    return 0;
}
