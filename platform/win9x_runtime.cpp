// Stands in for functions that the compiler's run-time library asks of the system and that Windows
// 95 and 98 do not have, or have only as a stub that fails. The linker looks for a function's
// import pointer (__imp_...) in our objects before it looks into the import libraries; so with
// these pointers defined here the program imports none of them.
#include <sys/stat.h>
#include <windows.h>

#include <cstdio>

namespace {

/// A wide name in the system's own code page, in a buffer that lives as long as this does.
class NarrowName {
 public:
    explicit NarrowName(const wchar_t* wide) {
        fits_ = wide && WideCharToMultiByte(CP_ACP, 0, wide, -1, text_, sizeof text_, nullptr,
                                            nullptr) != 0;
    }
    const char* OrNull() const { return fits_ ? text_ : nullptr; }

 private:
    char text_[MAX_PATH];
    bool fits_;
};

// The run-time's locks are never shared between programs: the name can be left out.
HANDLE WINAPI UnnamedSemaphore(SECURITY_ATTRIBUTES* security, LONG initial, LONG maximum,
                               const wchar_t*) {
    return CreateSemaphoreA(security, initial, maximum, nullptr);
}

// No name means the program itself; a name that cannot be told in the code page is no module's.
HMODULE WINAPI ModuleByWideName(const wchar_t* wide) {
    if (!wide) return GetModuleHandleA(nullptr);
    const NarrowName name(wide);
    return name.OrNull() ? GetModuleHandleA(name.OrNull()) : nullptr;
}

HMODULE WINAPI LibraryByWideName(const wchar_t* wide) {
    const NarrowName name(wide);
    return name.OrNull() ? LoadLibraryA(name.OrNull()) : nullptr;
}

// The same record with 64-bit times; the old run-time fills the one with 32-bit times.
int __cdecl StatWithLongTimes(int file, struct _stat64* to) {
    struct _stati64 found;
    const int result = _fstati64(file, &found);
    if (result != 0) return result;
    *to = {};
    to->st_dev = found.st_dev;
    to->st_ino = found.st_ino;
    to->st_mode = found.st_mode;
    to->st_nlink = found.st_nlink;
    to->st_uid = found.st_uid;
    to->st_gid = found.st_gid;
    to->st_rdev = found.st_rdev;
    to->st_size = found.st_size;
    to->st_atime = found.st_atime;
    to->st_mtime = found.st_mtime;
    to->st_ctime = found.st_ctime;
    return 0;
}

FILE* __cdecl OpenByWideName(const wchar_t* wideName, const wchar_t* wideMode) {
    const NarrowName name(wideName);
    const NarrowName mode(wideMode);
    return name.OrNull() && mode.OrNull() ? std::fopen(name.OrNull(), mode.OrNull()) : nullptr;
}

// What the locks of newer libraries ask for. The program has one thread and starts no other: nobody
// else is in a section, there is nobody to wait for or to wake, and a thread's number is not asked.
BOOL WINAPI EnterAsNobodyElseIsThere(CRITICAL_SECTION* section) {
    EnterCriticalSection(section);
    return TRUE;
}
DWORD WINAPI NoThreadNumber(HANDLE) { return 0; }
void WINAPI NobodyWaits(void*) {}
BOOL WINAPI WaitForNobody(void*, CRITICAL_SECTION*, DWORD) { return TRUE; }

}  // namespace

#define VISTREL_IMPORT_POINTER(variable, importName, function)            \
    extern "C" {                                                          \
    extern const void* const variable __asm__(importName);                \
    const void* const variable = reinterpret_cast<const void*>(function); \
    }

VISTREL_IMPORT_POINTER(createSemaphorePointer, "__imp__CreateSemaphoreW@16", UnnamedSemaphore)
VISTREL_IMPORT_POINTER(getModuleHandlePointer, "__imp__GetModuleHandleW@4", ModuleByWideName)
VISTREL_IMPORT_POINTER(loadLibraryPointer, "__imp__LoadLibraryW@4", LibraryByWideName)
VISTREL_IMPORT_POINTER(fstatPointer, "__imp___fstat64", StatWithLongTimes)
VISTREL_IMPORT_POINTER(wfopenPointer, "__imp___wfopen", OpenByWideName)
VISTREL_IMPORT_POINTER(tryEnterPointer, "__imp__TryEnterCriticalSection@4",
                       EnterAsNobodyElseIsThere)
VISTREL_IMPORT_POINTER(getThreadIdPointer, "__imp__GetThreadId@4", NoThreadNumber)
VISTREL_IMPORT_POINTER(initializeConditionPointer, "__imp__InitializeConditionVariable@4",
                       NobodyWaits)
VISTREL_IMPORT_POINTER(wakePointer, "__imp__WakeConditionVariable@4", NobodyWaits)
VISTREL_IMPORT_POINTER(wakeAllPointer, "__imp__WakeAllConditionVariable@4", NobodyWaits)
VISTREL_IMPORT_POINTER(sleepConditionPointer, "__imp__SleepConditionVariableCS@12", WaitForNobody)
