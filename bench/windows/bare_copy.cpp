// What the companions are measured against: a program that loads the same system libraries, copies
// files and does nothing else. With /flush it waits until each copy is on the disk, as Mirrorkin
// has to for the sake of power cuts. Usage: bare_copy [/flush] FROM TO [FROM TO]...
#include <windows.h>

#include <cstring>

namespace {

bool Flush(const char* path) {
    HANDLE file = CreateFileA(path, GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    const bool flushed = FlushFileBuffers(file) != 0;
    CloseHandle(file);
    return flushed;
}

/// Without a use of them the libraries would not be loaded.
bool HasLibraries() {
    HKEY key = nullptr;
    const bool opened = RegOpenKeyExA(HKEY_LOCAL_MACHINE, "SOFTWARE", 0, KEY_READ, &key) == 0;
    RegCloseKey(key);
    return opened && !IsWindow(nullptr);
}

}  // namespace

int main(int count, char** arguments) {
    const bool flush = count > 1 && std::strcmp(arguments[1], "/flush") == 0;
    if (!HasLibraries()) return 2;
    for (int i = flush ? 2 : 1; i + 1 < count; i += 2) {
        if (!CopyFileA(arguments[i], arguments[i + 1], FALSE)) return 1;
        if (flush && !Flush(arguments[i + 1])) return 1;
    }
    return 0;
}
