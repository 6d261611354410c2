// A small machine for tests.
#include "tests/support/machine/machine.h"

#include <windows.h>

#include <algorithm>

#include "platform/fault.h"
#include "tests/support/user/poll.h"

namespace vistrel::test {

using namespace platform;

namespace {

constexpr const char* kSettings = "SOFTWARE\\Tarnwick\\Vistrel";
constexpr const char* kNames[] = {"LOGO.SYS", "LOGOW.SYS", "LOGOS.SYS"};

/// Where a path's backslashes stand; the second byte of a pair is none.
std::vector<std::size_t> BackslashesIn(const std::string& path) {
    std::vector<std::size_t> places;
    for (const char* at = path.c_str(); *at; at = CharNextA(at)) {
        if (*at == '\\') places.push_back(static_cast<std::size_t>(at - path.c_str()));
    }
    return places;
}

std::string WithoutBackslash(std::string path) {
    const std::vector<std::size_t> backslashes = BackslashesIn(path);
    if (!backslashes.empty() && backslashes.back() == path.size() - 1) path.pop_back();
    return path;
}

std::wstring Widened(const std::string& text) {
    std::wstring wide(text.size(), L'\0');
    wide.resize(MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()),
                                    wide.data(), static_cast<int>(wide.size())));
    return wide;
}

/// Sets a value by the function below RegSetValueExA, which would end a text at its first NUL and
/// add one.
void SetAsItIs(HKEY key, const std::string& name, const StoredValue& value) {
    struct CountedText {
        USHORT size;
        USHORT capacity;
        WCHAR* text;
    };
    using Set = LONG(WINAPI*)(HANDLE, const CountedText*, ULONG, ULONG, const void*, ULONG);
    const auto set = reinterpret_cast<Set>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll.dll"), "NtSetValueKey")));
    std::wstring wideName = Widened(name);
    const auto nameSize = static_cast<USHORT>(wideName.size() * sizeof(WCHAR));
    const CountedText counted = {nameSize, nameSize, wideName.data()};
    std::string bytes = value.bytes;
    if (value.type == REG_SZ || value.type == REG_EXPAND_SZ) {
        const std::wstring wide = Widened(bytes);
        bytes.assign(reinterpret_cast<const char*>(wide.data()), wide.size() * sizeof(WCHAR));
    }
    ASSERT_EQ(set(key, &counted, 0, value.type, bytes.data(), static_cast<ULONG>(bytes.size())), 0);
}

}  // namespace

void Put(const std::string& path, const std::string& contents) {
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE) << path;
    DWORD written = 0;
    WriteFile(file, contents.data(), static_cast<DWORD>(contents.size()), &written, nullptr);
    CloseHandle(file);
    ASSERT_EQ(written, contents.size()) << path;
}

std::optional<std::string> Contents(const std::string& path) {
    HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return std::nullopt;
    std::string contents(GetFileSize(file, nullptr), '\0');
    DWORD got = 0;
    ReadFile(file, contents.data(), static_cast<DWORD>(contents.size()), &got, nullptr);
    CloseHandle(file);
    return contents;
}

bool Exists(const std::string& path) {
    return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

unsigned long AttributesOf(const std::string& path) {
    return GetFileAttributesA(path.c_str()) & ~static_cast<DWORD>(FILE_ATTRIBUTE_ARCHIVE);
}

void GiveAttributes(const std::string& path, unsigned long attributes) {
    // Wine changes no other attribute of a file that is read-only already.
    const DWORD others = attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY);
    ASSERT_TRUE(SetFileAttributesA(path.c_str(), others ? others : FILE_ATTRIBUTE_NORMAL)) << path;
    ASSERT_TRUE(SetFileAttributesA(path.c_str(), attributes)) << path;
}

void MakeFolders(const std::string& path) {
    for (const std::size_t end : BackslashesIn(path)) {
        if (end > 2) CreateDirectoryA(path.substr(0, end).c_str(), nullptr);
    }
    ASSERT_TRUE(Exists(WithoutBackslash(path))) << path;
}

void KeepAccessTime(const std::string& folder) {
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    const ULONGLONG hour = 3600ull * 10'000'000;
    const ULONGLONG later = (ULONGLONG{now.dwHighDateTime} << 32 | now.dwLowDateTime) + hour;
    const FILETIME accessed = {static_cast<DWORD>(later), static_cast<DWORD>(later >> 32)};
    HANDLE open = CreateFileA(folder.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ, nullptr,
                              OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    EXPECT_TRUE(SetFileTime(open, nullptr, &accessed, nullptr));
    CloseHandle(open);
}

Names NamesIn(const std::string& folder) {
    std::vector<std::string> names;
    WIN32_FIND_DATAA found;
    HANDLE search = FindFirstFileA((folder + "*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        const std::string name = found.cFileName;
        const bool lossy = name.find('?') != std::string::npos;
        if (name != "." && name != "..") names.push_back(lossy ? found.cAlternateFileName : name);
    } while (FindNextFileA(search, &found));
    FindClose(search);
    std::sort(names.begin(), names.end());
    return names;
}

void RemoveTree(const std::string& path) {
    const std::string name = WithoutBackslash(path);
    if (RemoveDirectoryA(name.c_str())) return;
    const DWORD attributes = GetFileAttributesA(name.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return;
    SetFileAttributesA(name.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (!(attributes & FILE_ATTRIBUTE_DIRECTORY)) {
        ASSERT_TRUE(DeleteFileA(name.c_str())) << name;
        return;
    }
    for (const std::string& entry : NamesIn(name + "\\")) RemoveTree(name + "\\" + entry);
    // A program that is just ending may still have it as its current folder.
    ASSERT_TRUE(WaitUntil([&] { return RemoveDirectoryA(name.c_str()) != 0; })) << name;
}

std::string OddName() { return GetACP() == 932 ? "\x83\x61\x95\x5C" : "Caf\xE9"; }

StoredValue TextValue(const std::string& text) { return {REG_SZ, text}; }

StoredValue TextValueWithNul(const std::string& text) { return {REG_SZ, text + '\0'}; }

StoredValue SavedText(const std::string& text) {
    const bool is9x = (GetVersion() & 0x80000000u) != 0;
    return is9x ? TextValueWithNul(text) : TextValue(text);
}

std::optional<StoredValue> StoredIn(const std::string& key, const std::string& name) {
    HKEY open = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, key.c_str(), 0, KEY_READ, &open) != 0)
        return std::nullopt;
    StoredValue value;
    DWORD size = 0;
    LSTATUS status = RegQueryValueExA(open, name.c_str(), nullptr, &value.type, nullptr, &size);
    // A buffer with room to spare would get a NUL that is not stored.
    value.bytes.resize(size);
    if (status == 0) {
        status = RegQueryValueExA(open, name.c_str(), nullptr, nullptr,
                                  reinterpret_cast<BYTE*>(value.bytes.data()), &size);
    }
    RegCloseKey(open);
    if (status != 0) return std::nullopt;
    return value;
}

void StoreIn(const std::string& key, const std::string& name, const StoredValue& value) {
    HKEY open = nullptr;
    ASSERT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, key.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                              nullptr, &open, nullptr),
              0);
    SetAsItIs(open, name, value);
    RegCloseKey(open);
}

void ForgetValue(const std::string& key, const std::string& name) {
    HKEY open = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, key.c_str(), 0, KEY_ALL_ACCESS, &open) != 0) return;
    RegDeleteValueA(open, name.c_str());
    RegCloseKey(open);
}

std::optional<StoredValue> Stored(const std::string& name) { return StoredIn(kSettings, name); }

void Store(const std::string& name, const StoredValue& value) { StoreIn(kSettings, name, value); }

void ForgetSettings() { RegDeleteKeyA(HKEY_LOCAL_MACHINE, kSettings); }

void WithEachOperationFailing(const std::function<void()>& prepare,
                              const std::function<void()>& command,
                              const std::function<void(int failed)>& check) {
    prepare();
    fault::Reset();
    command();
    const int operations = fault::Counted();
    ASSERT_GT(operations, 0);
    for (int failing = 1; failing <= operations; ++failing) {
        SCOPED_TRACE("operation " + std::to_string(failing) + " of " + std::to_string(operations));
        prepare();
        fault::FailOperation(failing);
        command();
        fault::Reset();
        check(failing);
    }
}

Machine::Machine() {
    RemoveTree(root);
    for (const std::string& folder : {boot, windows, logos, program, startup}) MakeFolders(folder);
    ForgetSettings();
    ForgetValue(kRunKey, "Mirrorkin");
    RemoveTree("C:\\msdos.sys");
    fault::Reset();
}

Machine::~Machine() {
    fault::Reset();
    // The open-file dialog makes the folder that it shows the current one.
    SetCurrentDirectoryA("C:\\test");
    RemoveTree(root);
    RemoveTree("C:\\msdos.sys");
    for (const char* name : kNames) RemoveTree(std::string("C:\\") + name);
    ForgetSettings();
    ForgetValue(kRunKey, "Mirrorkin");
}

void Machine::PutScreens(const std::string& folder, const std::string& tag) {
    MakeFolders(folder);
    for (const char* name : kNames) Put(folder + name, tag + " " + name);
}

std::vector<std::string> Machine::Installed() const {
    return {Contents(boot + kNames[0]).value_or("-"), Contents(windows + kNames[1]).value_or("-"),
            Contents(windows + kNames[2]).value_or("-")};
}

}  // namespace vistrel::test
