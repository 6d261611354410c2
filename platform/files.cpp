// Files and folders: attributes, listing, copying, renaming and deleting.
#include "platform/files.h"

#include <windows.h>

#include "platform/characters.h"
#include "platform/fault.h"
#include "platform/system_error.h"

namespace vistrel::platform {

namespace {

class SearchHandle {
 public:
    explicit SearchHandle(HANDLE handle) : handle_(handle) {}
    ~SearchHandle() {
        if (IsOpen()) FindClose(handle_);
    }
    SearchHandle(const SearchHandle&) = delete;
    SearchHandle& operator=(const SearchHandle&) = delete;

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle_; }

 private:
    HANDLE handle_;
};

/// The name by which an entry can be opened. One with letters that the code page lacks comes with
/// question marks in their places, which no file's name holds: its short name has none.
std::string NameOf(const WIN32_FIND_DATAA& found) {
    const std::string name = found.cFileName;
    const bool lossy = name.find('?') != std::string::npos;
    return lossy && found.cAlternateFileName[0] ? found.cAlternateFileName : name;
}

FolderEntry EntryOf(const WIN32_FIND_DATAA& found) {
    const auto joined = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; };
    return {NameOf(found), found.dwFileAttributes, joined(found.nFileSizeHigh, found.nFileSizeLow),
            joined(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime)};
}

// Windows 95 does not know a folder by a name that ends in a backslash, other than a drive's root.
std::string WithoutFinalBackslash(const std::string& path) {
    const bool isRoot = path.size() == 3 && path[1] == ':';
    if (path.size() < 2 || !EndsInBackslash(path) || isRoot) return path;
    return path.substr(0, path.size() - 1);
}

/// True when the disk has an entry by just this path, its last name's case included.
bool IsNamedSo(const std::string& path) {
    WIN32_FIND_DATAA found;
    const SearchHandle search(FindFirstFileA(path.c_str(), &found));
    return search.IsOpen() && path.ends_with(std::string("\\") + found.cFileName);
}

// Wine calls a change of case alone done and leaves the name as it was: it takes a name in between.
void ChangeCase(const std::string& from, const std::string& to) {
    const std::string between = to + ".~";
    if (!MoveFileA(from.c_str(), between.c_str())) return;
    if (!MoveFileA(between.c_str(), to.c_str())) MoveFileA(between.c_str(), from.c_str());
}

}  // namespace

void FailOnDrivesNotReady() { SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX); }

bool ForEachEntry(const std::string& pattern, const std::function<bool(const FolderEntry&)>& visit,
                  Error* error) {
    if (fault::ShouldFail()) return Failed(error, kInjectedError);
    WIN32_FIND_DATAA found;
    const SearchHandle search(FindFirstFileA(pattern.c_str(), &found));
    if (!search.IsOpen()) return Failed(error, GetLastError());
    while (visit(EntryOf(found)) && FindNextFileA(search.Get(), &found)) {
    }
    return true;
}

std::optional<std::uint32_t> FileAttributes(const std::string& path) {
    if (fault::ShouldFail()) return std::nullopt;
    const DWORD attributes = GetFileAttributesA(WithoutFinalBackslash(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return std::nullopt;
    return attributes;
}

bool IsFolder(const std::string& path) {
    const auto attributes = FileAttributes(path);
    return attributes && (*attributes & kDirectory) != 0;
}

bool SetAttributes(const std::string& path, std::uint32_t attributes, Error* error) {
    if (fault::ShouldFail()) return Failed(error, kInjectedError);
    // Read-only comes last: Wine changes no other attribute of a file that is read-only already.
    const std::uint32_t others = attributes & ~kReadOnlyFile;
    const BOOL set = SetFileAttributesA(path.c_str(), others ? others : FILE_ATTRIBUTE_NORMAL);
    if (!set || others == attributes) return Report(set, error);
    return Report(SetFileAttributesA(path.c_str(), attributes), error);
}

bool CopyOver(const std::string& from, const std::string& to, Error* error) {
    if (fault::ShouldFail()) return Failed(error, kInjectedError);
    return Report(CopyFileA(from.c_str(), to.c_str(), FALSE), error);
}

bool Remove(const std::string& path, Error* error) {
    if (fault::ShouldFail()) return Failed(error, kInjectedError);
    return Report(DeleteFileA(path.c_str()), error);
}

bool RemoveMatching(const std::string& pattern, Error* error) {
    const std::string folder = pattern.substr(0, LastBackslash(pattern) + 1);
    std::vector<std::string> names;
    const bool listed = ForEachEntry(
        pattern,
        [&](const FolderEntry& entry) {
            if (!entry.IsFolder()) names.push_back(entry.name);
            return true;
        },
        error);
    bool removedAll = listed;
    for (const std::string& name : names) {
        if (!Remove(folder + name, error)) removedAll = false;
    }
    return removedAll;
}

bool Rename(const std::string& from, const std::string& to, Error* error) {
    if (fault::ShouldFail()) return Failed(error, kInjectedError);
    const BOOL renamed = MoveFileA(from.c_str(), to.c_str());
    if (renamed && lstrcmpiA(from.c_str(), to.c_str()) == 0 && !IsNamedSo(to)) ChangeCase(from, to);
    return Report(renamed, error);
}

bool MakeFolder(const std::string& path, Error* error) {
    if (fault::ShouldFail()) return Failed(error, kInjectedError);
    return Report(CreateDirectoryA(path.c_str(), nullptr), error);
}

bool RemoveFolder(const std::string& path, Error* error) {
    if (fault::ShouldFail()) return Failed(error, kInjectedError);
    return Report(RemoveDirectoryA(path.c_str()), error);
}

}  // namespace vistrel::platform
